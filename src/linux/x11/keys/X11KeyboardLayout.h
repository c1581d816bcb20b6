// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "linux/x11/windows/XlibConnection.h"
#include "platform/display/KeyboardLayout.h"

namespace vellumry {

/// The letters of the layout that the X server has for the keyboard. A letter's virtual key code means the key that
/// types it (see `KeyPositions`), as it does for `X11HotKeys`.
class X11KeyboardLayout : public KeyboardLayout {
public:
    explicit X11KeyboardLayout(std::shared_ptr<XlibConnection> connection);

    [[nodiscard]] std::optional<KeyCode> keyCodeFor(QChar character) const override;
    [[nodiscard]] std::optional<QString> charactersFor(KeyCode keyCode) const override;
    [[nodiscard]] std::optional<KeyCode> keyCodeOfScanCode(quint32 nativeScanCode) const override;

private:
    std::shared_ptr<XlibConnection> m_connection;
};

} // namespace vellumry
