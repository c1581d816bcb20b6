// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "linux/pasteboard/OwnerWatch.h"
#include "linux/wayland/windows/WaylandWindows.h"

#include <QObject>
#include <chrono>

namespace vellumry {

/// Takes the window that was active when a copy was made for its program's: as long as that window is there, what
/// empties the clipboard does so on purpose. Where it is not known, a copy that has gone has lost its program.
class CopiedWindow final : public QObject, public OwnerWatch {
    Q_OBJECT
public:
    /// A program's windows and its copies do not go in one order; the later of the two is waited for that long.
    static constexpr std::chrono::milliseconds farewell{300};

    /// `windows` may be null.
    explicit CopiedWindow(std::shared_ptr<WaylandWindows> windows);

    void noteCopy() override;
    [[nodiscard]] QCoro::Task<bool> hasEnded() override;

private:
    /// False where it was not known.
    [[nodiscard]] bool isThere() const { return m_copied && m_windows->find(*m_copied) != nullptr; }

    std::shared_ptr<WaylandWindows> m_windows;
    std::optional<WaylandWindows::ID> m_copied;
};

} // namespace vellumry
