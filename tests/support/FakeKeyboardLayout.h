// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/display/KeyboardLayout.h"

#include <map>

namespace vellumry {

/// A layout that types what `characters` says, key code by key code.
class FakeKeyboardLayout : public KeyboardLayout {
public:
    std::map<KeyCode, QString> characters{{KeyCode::a, QStringLiteral("a")},
                                          {KeyCode::s, QStringLiteral("s")},
                                          {KeyCode::v, QStringLiteral("v")},
                                          {KeyCode::digit3, QStringLiteral("3")}};
    std::map<quint32, KeyCode> scanCodes; ///< by native scan code

    [[nodiscard]] std::optional<KeyCode> keyCodeFor(QChar character) const override {
        for (const auto& [keyCode, text] : characters) {
            if (text.toLower() == QString(character.toLower()))
                return keyCode;
        }
        return std::nullopt;
    }
    [[nodiscard]] std::optional<QString> charactersFor(KeyCode keyCode) const override {
        const auto found = characters.find(keyCode);
        return found == characters.end() ? std::nullopt : std::optional(found->second);
    }
    [[nodiscard]] std::optional<KeyCode> keyCodeOfScanCode(quint32 nativeScanCode) const override {
        const auto found = scanCodes.find(nativeScanCode);
        return found == scanCodes.end() ? std::nullopt : std::optional(found->second);
    }
};

} // namespace vellumry
