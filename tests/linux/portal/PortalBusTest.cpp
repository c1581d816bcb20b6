// SPDX-License-Identifier: GPL-3.0-or-later
#include "linux/portal/PortalBus.h"

#include "linux/portal/PortalWorld.h"

#include <future>
#include <sys/prctl.h>

namespace vellumry {

namespace {

using namespace std::chrono_literals;

class PortalBusTest : public PortalWorld {
protected:
    PortalBusTest() { prctl(PR_SET_DUMPABLE, 0); }
    ~PortalBusTest() override {
        prctl(PR_SET_DUMPABLE, 1);
        QDBusConnection::disconnectFromBus(QStringLiteral("introducing"));
    }

    /// On another thread: it waits, and the portal is on this one.
    void introduce(std::chrono::milliseconds limit) {
        auto introducing = std::async(std::launch::async, [this, limit] {
            portalbus::introduce(QDBusConnection::connectToBus(bus.address(), QStringLiteral("introducing")), limit);
        });
        runUntil([&introducing] { return introducing.wait_for(0s) == std::future_status::ready; });
        introducing.get();
    }
};

} // namespace

TEST_F(PortalBusTest, APortalCanSeeWhoWeAreWhileItHearsOurName) {
    introduce(60s);
    EXPECT_EQ(portal.last("Register").arguments.value(0), portalbus::applicationID);
    EXPECT_EQ(portal.visibilityAtRegister, 1) << "it would refuse every request";
    EXPECT_EQ(prctl(PR_GET_DUMPABLE), 0);
}

TEST_F(PortalBusTest, APortalThatHangsIsNotWaitedFor) {
    portal.responses[QStringLiteral("Register")].isSilent = true;
    introduce(30ms);
    EXPECT_EQ(portal.count("Register"), 1);
    EXPECT_EQ(prctl(PR_GET_DUMPABLE), 0);
}

TEST_F(PortalBusTest, NoneIsStartedToBeIntroducedTo) {
    portal.end();
    introduce(60s);
    EXPECT_EQ(portal.count("Register"), 0);
}

} // namespace vellumry
