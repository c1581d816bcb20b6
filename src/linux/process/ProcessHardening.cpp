// SPDX-License-Identifier: GPL-3.0-or-later
#include "linux/process/ProcessHardening.h"

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

VisibleProcess::VisibleProcess()
    : m_before(prctl(PR_GET_DUMPABLE, 0, 0, 0, 0)) {
    prctl(PR_SET_DUMPABLE, 1, 0, 0, 0);
}

VisibleProcess::~VisibleProcess() {
    prctl(PR_SET_DUMPABLE, m_before, 0, 0, 0);
}

} // namespace vellumry
