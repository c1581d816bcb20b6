// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <functional>
#include <vector>

namespace vellumry {

/// One entry of a menu as a value: what it says and what choosing it does. The row menu and the tray's menu are lists
/// of these; whoever draws them decides nothing.
struct ActionMenuItem {
    QString text{};   ///< empty for a separator
    QString symbol{}; ///< name of one of the program's symbols; may be empty
    QString keys{};   ///< the keys that do the same, as the user reads them; may be empty
    bool isEnabled = true;
    std::function<void()> handler{}; ///< called on the main thread when the entry is chosen; unset for what has entries
    std::vector<ActionMenuItem> items{}; ///< entries of a submenu

    [[nodiscard]] static ActionMenuItem separator() { return {}; }
    [[nodiscard]] bool isSeparator() const { return text.isEmpty(); }
};

} // namespace vellumry
