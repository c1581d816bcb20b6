// SPDX-License-Identifier: GPL-3.0-or-later
#include "linux/gnome/ShellWindows.h"

#include <QCoreApplication>

namespace vellumry {

ShellWindows::ShellWindows(std::shared_ptr<ShellLink> link)
    : m_link(std::move(link)) {
    connect(m_link.get(), &ShellLink::focusChanged, this, &ShellWindows::follow);
    connect(m_link.get(), &ShellLink::windowClosed, this, [this](quint64 window) {
        if (const auto id = m_ids.constFind(window); id != m_ids.constEnd()) {
            if (m_active == *id)
                m_active.reset();
            remove(*id);
            m_ids.erase(id);
        }
    });
    connect(m_link.get(), &ShellLink::thereChanged, this, [this](bool isThere) {
        if (!isThere)
            forgetAll();
    });
}

void ShellWindows::follow(quint64 window, const QString& application, qint64 process) {
    // While a panel of ours has the keyboard, no other window has.
    if (window == 0 || process == QCoreApplication::applicationPid()) {
        setActive(std::nullopt);
        return;
    }
    if (!m_ids.contains(window))
        m_ids.insert(window, add());
    const ID id = m_ids.value(window);
    if (m_active && *m_active != id)
        setActive(std::nullopt);
    m_active = id;
    update(id, Window{application, process, true});
}

void ShellWindows::setActive(std::optional<ID> id) {
    const std::optional<ID> before = std::exchange(m_active, id);
    const Window* known = before ? find(*before) : nullptr;
    if (known == nullptr)
        return;
    Window window = *known;
    window.isActive = false;
    update(*before, window);
}

void ShellWindows::forgetAll() {
    m_active.reset();
    for (const ID id : std::exchange(m_ids, {}))
        remove(id);
}

} // namespace vellumry
