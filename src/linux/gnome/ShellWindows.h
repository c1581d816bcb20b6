// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "linux/gnome/ShellLink.h"
#include "linux/wayland/windows/WaylandWindows.h"

namespace vellumry {

/// The windows as our shell extension tells of them: those that have had the keyboard since. Main thread.
class ShellWindows final : public WaylandWindows {
public:
    explicit ShellWindows(std::shared_ptr<ShellLink> link);

private:
    void follow(quint64 window, const QString& application, qint64 process);
    void setActive(std::optional<ID> id);
    void forgetAll();

    std::shared_ptr<ShellLink> m_link;
    QHash<quint64, ID> m_ids; ///< by the shell's number
    std::optional<ID> m_active;
};

} // namespace vellumry
