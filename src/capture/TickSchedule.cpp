// SPDX-License-Identifier: GPL-3.0-or-later
#include "capture/TickSchedule.h"

#include <algorithm>

namespace vellumry {

qint64 TickSchedule::notified(qint64 now) {
    if (!m_first)
        m_first = now;
    return std::max(now, std::min(now + quiet, *m_first + longest));
}

} // namespace vellumry
