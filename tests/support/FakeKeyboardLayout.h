// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/display/KeyboardLayout.h"

#include <map>

namespace vellumry {

/// A layout that types what `characters` says, key code by key code.
class FakeKeyboardLayout : public KeyboardLayout {
public:
    std::map<quint32, QString> characters{
        {0, QStringLiteral("a")}, {1, QStringLiteral("s")}, {9, QStringLiteral("v")}, {20, QStringLiteral("3")}};
    std::map<quint32, quint32> scanCodes; ///< native scan code to key code

    [[nodiscard]] std::optional<quint32> keyCodeFor(QChar character) const override {
        for (const auto& [keyCode, text] : characters) {
            if (keyCode < 128 && text.toLower() == QString(character.toLower()))
                return keyCode;
        }
        return std::nullopt;
    }
    [[nodiscard]] std::optional<QString> charactersFor(quint32 keyCode) const override {
        const auto found = characters.find(keyCode);
        return found == characters.end() ? std::nullopt : std::optional(found->second);
    }
    [[nodiscard]] std::optional<quint32> keyCodeOfScanCode(quint32 nativeScanCode) const override {
        const auto found = scanCodes.find(nativeScanCode);
        return found == scanCodes.end() ? std::nullopt : std::optional(found->second);
    }
};

} // namespace vellumry
