// SPDX-License-Identifier: GPL-3.0-or-later
#include "capture/RewriteWindow.h"

namespace vellumry {

void RewriteWindow::noteNext(qint64 noticedAt, bool isRead) {
    // Known already whether it is the same, or too late to be.
    const bool isUndecided = covers(noticedAt) && !isRead;
    m_end = isUndecided ? m_noticedAt + longest : m_noticedAt;
}

} // namespace vellumry
