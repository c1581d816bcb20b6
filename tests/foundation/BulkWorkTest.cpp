// SPDX-License-Identifier: GPL-3.0-or-later
#include "foundation/BulkWork.h"

#include <functional>
#include <gtest/gtest.h>
#include <thread>

namespace vellumry {
namespace {

struct Standing {
    int policy = sched_getscheduler(0);
    int priority = [] {
        sched_param parameters{};
        sched_getparam(0, &parameters);
        return parameters.sched_priority;
    }();
    bool operator==(const Standing&) const = default;
};

/// On a thread of the usual priority, whatever the tests run at.
void onUsualThread(const std::function<void()>& check) {
    std::thread([&check] {
        const sched_param none{};
        ASSERT_EQ(sched_setscheduler(0, SCHED_OTHER, &none), 0);
        check();
    }).join();
}

TEST(BulkWork, ItsThreadStandsBehindOthersWhileItLasts) {
    onUsualThread([] {
        const Standing before;
        {
            const BulkWork work;
            EXPECT_EQ(Standing().policy, SCHED_BATCH);
        }
        EXPECT_EQ(Standing(), before);
    });
}

TEST(BulkWork, WithinOtherBulkWorkItChangesNothing) {
    onUsualThread([] {
        const BulkWork work;
        {
            const BulkWork inner;
            EXPECT_EQ(Standing().policy, SCHED_BATCH);
        }
        EXPECT_EQ(Standing().policy, SCHED_BATCH);
    });
}

TEST(BulkWork, LeavesOtherThreadsAlone) {
    const Standing before;
    std::thread([] { const BulkWork work; }).join();
    EXPECT_EQ(Standing(), before);
}

} // namespace
} // namespace vellumry
