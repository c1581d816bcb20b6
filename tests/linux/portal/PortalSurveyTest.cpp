// SPDX-License-Identifier: GPL-3.0-or-later
#include "linux/portal/PortalSurvey.h"

#include "linux/portal/PortalWorld.h"

#include <future>

namespace vellumry {

namespace {

using namespace std::chrono_literals;

class PortalSurveyTest : public PortalWorld {
protected:
    ~PortalSurveyTest() override { QDBusConnection::disconnectFromBus(QStringLiteral("survey")); }

    /// On another thread: it waits, and the portal is on this one.
    PortalSurvey taken(std::chrono::milliseconds limit) {
        auto taking = std::async(std::launch::async, [this, limit] {
            return PortalSurvey::take(QDBusConnection::connectToBus(bus.address(), QStringLiteral("survey")),
                                      PortalSurvey::Start::wanted, limit);
        });
        runUntil([&taking] { return taking.wait_for(0s) == std::future_status::ready; });
        return taking.get();
    }
};

} // namespace

TEST_F(PortalSurveyTest, TellsTheVersionsOfWhatIsThere) {
    portal.versions = {{QStringLiteral("org.freedesktop.portal.GlobalShortcuts"), 1},
                       {QStringLiteral("org.freedesktop.portal.RemoteDesktop"), 2}};
    EXPECT_EQ(taken(60s), (PortalSurvey{1, 2}));
}

TEST_F(PortalSurveyTest, AnInterfaceThatIsMissingIsNone) {
    portal.versions = {{QStringLiteral("org.freedesktop.portal.RemoteDesktop"), 2}};
    EXPECT_EQ(taken(60s), (PortalSurvey{0, 2}));
}

TEST_F(PortalSurveyTest, APortalThatDoesNotAnswerHasNothing) {
    portal.versions = {{QStringLiteral("org.freedesktop.portal.RemoteDesktop"), 2}};
    portal.responses[QStringLiteral("Get")].isSilent = true;
    EXPECT_EQ(taken(30ms), PortalSurvey());
}

TEST_F(PortalSurveyTest, WithoutAPortalNothingIsAsked) {
    portal.end();
    EXPECT_EQ(taken(60s), PortalSurvey());
}

} // namespace vellumry
