// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <sched.h>

namespace vellumry {

/// While one of these lives, its thread gives way to threads that answer somebody: it neither interrupts them when it
/// becomes runnable nor keeps them waiting for its share. On an idle machine it is as fast as before. For work that
/// keeps a processor busy for long, as reading the history at a start does. Used on the thread that made it.
class BulkWork {
public:
    BulkWork();
    ~BulkWork();
    BulkWork(const BulkWork&) = delete;
    BulkWork& operator=(const BulkWork&) = delete;

private:
    int m_policy;
    sched_param m_parameters{};
};

} // namespace vellumry
