// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringList>
#include <functional>
#include <vector>

namespace vellumry {

/// One entry of a menu as a value: what it says and what choosing it does. The row menu and the tray's menu are lists
/// of these; the view that draws them decides nothing.
struct ActionMenuItem {
    QString text{};   ///< empty for a separator
    QString symbol{}; ///< name of one of the program's symbols; may be empty
    QString keys{};   ///< the keys that do the same, as the user reads them; may be empty
    bool isEnabled = true;
    std::function<void()> handler{}; ///< called on the main thread when the entry is chosen; unset for what has entries
    std::vector<ActionMenuItem> items{}; ///< entries of a submenu

    /// Whether the entry is a switch, and how it stands.
    enum class Check : quint8 { none, off, on };
    Check check = Check::none;
    QString note{};   ///< what is told of the entry beside it, once the pointer rests; may be empty
    QString swatch{}; ///< "#AARRGGBB", painted as a square in place of the symbol; may be empty
    /// `keys` for views that draw keys their own way: "Control", "Alt", "Shift" and "Super", and last what is on the
    /// key.
    QStringList chord{};

    [[nodiscard]] static ActionMenuItem separator() { return {}; }
    [[nodiscard]] bool isSeparator() const { return text.isEmpty(); }
};

} // namespace vellumry
