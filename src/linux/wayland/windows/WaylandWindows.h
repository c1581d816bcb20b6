// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "linux/wayland/WaylandConnection.h"

#include <QHash>
#include <QObject>
#include <memory>
#include <optional>

namespace vellumry {

/// The windows of other programs, as far as the compositor tells us: which one is active, and whose it is. Main thread.
class WaylandWindows : public QObject {
    Q_OBJECT
public:
    using ID = quint64; ///< never used twice

    struct Window {
        QString applicationID; ///< as the program names its desktop file, as a rule
        qint64 process = 0;    ///< 0 where the compositor does not say
        bool isActive = false;
    };

    /// By the protocol that is offered: Plasma's, else that of wlroots. Null without either.
    [[nodiscard]] static std::unique_ptr<WaylandWindows> create(const std::shared_ptr<WaylandConnection>& connection);

    /// The window that is active; nothing while none is, or a panel has the keyboard.
    [[nodiscard]] std::optional<ID> active() const;
    /// The window that is or was active last, as long as it exists.
    [[nodiscard]] std::optional<ID> last() const { return m_last; }
    /// Null when it has gone.
    [[nodiscard]] const Window* find(ID id) const;

Q_SIGNALS:
    /// The active window may be another one, or none.
    void moved();

protected:
    ID add();
    void update(ID id, const Window& window);
    void remove(ID id);

private:
    QHash<ID, Window> m_windows;
    std::optional<ID> m_last;
    ID m_nextID = 1;
};

} // namespace vellumry
