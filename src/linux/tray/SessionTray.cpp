// SPDX-License-Identifier: GPL-3.0-or-later
#include "linux/tray/SessionTray.h"

#include <utility>

namespace vellumry {

SessionTray::SessionTray(std::unique_ptr<StatusItem> overTheBus, std::unique_ptr<ClassicIcon> classic,
                         std::chrono::milliseconds patience)
    : m_overTheBus(std::move(overTheBus))
    , m_classic(std::move(classic)) {
    m_overTheBus->menu = [this] { return menu ? menu() : std::vector<ActionMenuItem>(); };
    m_overTheBus->onShownChanged = [this] { follow(); };
    m_patience.setSingleShot(true);
    m_patience.setInterval(patience);
    QObject::connect(&m_patience, &QTimer::timeout, &m_patience, [this] { follow(); });
    if (!m_classic)
        return;
    m_classic->onClicked = [this] { onMenuWanted(); };
    m_classic->onShownChanged = [this] { follow(); };
}

void SessionTray::install() {
    m_overTheBus->install();
    m_patience.start();
}

bool SessionTray::isShown() const {
    return m_overTheBus->isShown() || (m_classic && m_classic->isShown());
}

void SessionTray::follow() {
    if (m_classic)
        m_classic->setWanted(!m_overTheBus->isShown() && !m_patience.isActive());
    if (std::exchange(m_wasShown, isShown()) != m_wasShown)
        onShownChanged();
}

} // namespace vellumry
