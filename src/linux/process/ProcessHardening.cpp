// SPDX-License-Identifier: GPL-3.0-or-later
#include "linux/process/ProcessHardening.h"

#include <mutex>
#include <sys/prctl.h>
#include <sys/resource.h>

namespace vellumry {

void hardenProcess() {
    const rlimit none{0, 0};
    setrlimit(RLIMIT_CORE, &none);
#ifndef VELLUMRY_INSPECTABLE
    // The limit alone does not hold where the kernel pipes dumps into a program.
    prctl(PR_SET_DUMPABLE, 0, 0, 0, 0);
#endif
}

namespace {

/// Of the process, as what it counts is.
struct Visibility {
    std::mutex mutex;
    int wanted = 0;
    int before = 0;
};

Visibility& visibility() {
    static Visibility visibility;
    return visibility;
}

} // namespace

VisibleProcess::VisibleProcess() {
    Visibility& now = visibility();
    const std::lock_guard lock(now.mutex);
    if (now.wanted++ > 0)
        return;
    now.before = prctl(PR_GET_DUMPABLE, 0, 0, 0, 0);
    prctl(PR_SET_DUMPABLE, 1, 0, 0, 0);
}

VisibleProcess::~VisibleProcess() {
    Visibility& now = visibility();
    const std::lock_guard lock(now.mutex);
    if (--now.wanted == 0)
        prctl(PR_SET_DUMPABLE, now.before, 0, 0, 0);
}

} // namespace vellumry
