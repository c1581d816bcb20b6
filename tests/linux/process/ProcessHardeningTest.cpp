// SPDX-License-Identifier: GPL-3.0-or-later
#include "linux/process/ProcessHardening.h"

#include <gtest/gtest.h>
#include <memory>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

namespace vellumry {
namespace {

TEST(ProcessHardening, LeavesNoCoreDump) {
    const pid_t child = fork();
    if (child == 0) {
        hardenProcess();
        rlimit limit{1, 1};
        getrlimit(RLIMIT_CORE, &limit);
        const bool hasNoCore = limit.rlim_cur == 0 && limit.rlim_max == 0;
#ifdef VELLUMRY_INSPECTABLE
        const bool isClosed = true;
#else
        const bool isClosed = prctl(PR_GET_DUMPABLE) == 0;
#endif
        _exit(hasNoCore && isClosed ? 0 : 1);
    }
    int status = 0;
    ASSERT_EQ(waitpid(child, &status, 0), child);
    EXPECT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == 0);
}

TEST(ProcessHardening, TheProcessCanBeSeenForAMomentAndIsClosedAgain) {
    const pid_t child = fork();
    if (child == 0) {
        hardenProcess();
        const int closed = prctl(PR_GET_DUMPABLE);
        bool wasOpen = false;
        {
            const VisibleProcess visible;
            wasOpen = prctl(PR_GET_DUMPABLE) == 1;
        }
        _exit(wasOpen && prctl(PR_GET_DUMPABLE) == closed ? 0 : 1);
    }
    int status = 0;
    ASSERT_EQ(waitpid(child, &status, 0), child);
    EXPECT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == 0);
}

TEST(ProcessHardening, OfSeveralThatMakeTheProcessSeenTheLastHidesIt) {
    const pid_t child = fork();
    if (child == 0) {
        hardenProcess();
        const int closed = prctl(PR_GET_DUMPABLE);
        auto first = std::make_unique<VisibleProcess>();
        auto second = std::make_unique<VisibleProcess>();
        first.reset();
        const bool wasOpen = prctl(PR_GET_DUMPABLE) == 1;
        second.reset();
        _exit(wasOpen && prctl(PR_GET_DUMPABLE) == closed ? 0 : 1);
    }
    int status = 0;
    ASSERT_EQ(waitpid(child, &status, 0), child);
    EXPECT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == 0);
}

} // namespace
} // namespace vellumry
