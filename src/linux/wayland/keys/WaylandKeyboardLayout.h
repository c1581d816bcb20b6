// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "linux/wayland/keys/WaylandKeymap.h"
#include "platform/display/KeyboardLayout.h"

namespace vellumry {

/// The layout of the seat's keyboard. Main thread.
class WaylandKeyboardLayout final : public KeyboardLayout {
public:
    explicit WaylandKeyboardLayout(std::shared_ptr<WaylandKeymap> keymap)
        : m_keymap(std::move(keymap)) {}

    [[nodiscard]] std::optional<KeyCode> keyCodeFor(QChar character) const override;
    [[nodiscard]] std::optional<QString> charactersFor(KeyCode keyCode) const override;
    [[nodiscard]] std::optional<KeyCode> keyCodeOfScanCode(quint32 nativeScanCode) const override;

private:
    std::shared_ptr<WaylandKeymap> m_keymap;
};

} // namespace vellumry
