// SPDX-License-Identifier: GPL-3.0-or-later
#include "linux/keyring/CallDeadline.h"

namespace vellumry {

CallDeadline::CallDeadline(std::chrono::milliseconds limit, std::stop_token stop) {
    m_watch = std::thread([this, limit, stop = std::move(stop)] {
        std::unique_lock lock(m_mutex);
        if (!m_changed.wait_for(lock, stop, limit, [this] { return m_isOver; }))
            g_cancellable_cancel(m_cancellable.get());
    });
}

CallDeadline::~CallDeadline() {
    {
        const std::lock_guard lock(m_mutex);
        m_isOver = true;
    }
    m_changed.notify_one();
    m_watch.join();
}

} // namespace vellumry
