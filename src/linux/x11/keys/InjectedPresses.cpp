// SPDX-License-Identifier: GPL-3.0-or-later
#include "linux/x11/keys/InjectedPresses.h"

namespace vellumry {

void InjectedPresses::announce(Instant now) {
    const std::scoped_lock lock(m_mutex);
    m_announced.push_back(now);
}

bool InjectedPresses::claim(Instant now) {
    const std::scoped_lock lock(m_mutex);
    while (!m_announced.empty() && now - m_announced.front() > lifetime)
        m_announced.pop_front();
    if (m_announced.empty())
        return false;
    m_announced.pop_front();
    return true;
}

void InjectedPresses::forget() {
    const std::scoped_lock lock(m_mutex);
    m_announced.clear();
}

} // namespace vellumry
