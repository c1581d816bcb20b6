// SPDX-License-Identifier: GPL-3.0-or-later
#include "foundation/BulkWork.h"

#include <algorithm>

namespace vellumry {

// On Linux a policy belongs to the thread; failing to change it changes nothing but speed.

BulkWork::BulkWork()
    : m_policy(sched_getscheduler(0)) {
    if (sched_getparam(0, &m_parameters) != 0)
        return;
    sched_param behind = m_parameters;
    if (m_policy == SCHED_OTHER) {
        (void)sched_setscheduler(0, SCHED_BATCH, &behind);
    } else if (m_policy == SCHED_RR || m_policy == SCHED_FIFO) {
        // Among equals a real-time thread runs for as long as it likes.
        behind.sched_priority = std::max(behind.sched_priority - 1, sched_get_priority_min(m_policy));
        (void)sched_setscheduler(0, m_policy, &behind);
    }
}

BulkWork::~BulkWork() {
    if (m_policy >= 0)
        (void)sched_setscheduler(0, m_policy, &m_parameters);
}

} // namespace vellumry
