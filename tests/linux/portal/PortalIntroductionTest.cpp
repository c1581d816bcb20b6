// SPDX-License-Identifier: GPL-3.0-or-later
#include "linux/portal/PortalIntroduction.h"

#include "linux/look/PortalSettings.h"
#include "linux/portal/PortalBus.h"
#include "linux/portal/PortalWorld.h"

#include <sys/prctl.h>

namespace vellumry {

namespace {

using namespace std::chrono_literals;

class PortalIntroductionTest : public PortalWorld {
protected:
    PortalIntroductionTest() { prctl(PR_SET_DUMPABLE, 0); }
    ~PortalIntroductionTest() override {
        link.reset();
        introduction.reset();
        prctl(PR_SET_DUMPABLE, 1);
    }

    void make(std::chrono::milliseconds limit) {
        link.reset();
        introduction.reset();
        QDBusConnection::disconnectFromBus(QStringLiteral("link"));
        introduction = std::make_shared<PortalIntroduction>(
            QDBusConnection::connectToBus(bus.address(), QStringLiteral("link")), limit);
    }
    QDBusMessage awaitedMade() {
        return awaited([](OneShot<QDBusMessage> made) -> QCoro::Task<QDBusMessage> {
            const QDBusMessage answer = co_await made;
            co_return answer;
        }(introduction->made()));
    }
    void expectHidden() {
        runUntil([] { return prctl(PR_GET_DUMPABLE) == 0; });
    }
};

} // namespace

TEST_F(PortalIntroductionTest, APortalCanSeeWhoWeAreWhileItHearsOurName) {
    introduction->begin();
    runUntil([this] { return portal.count("Register") == 1; });
    EXPECT_EQ(portal.last("Register").arguments.value(0), portalbus::applicationID);
    EXPECT_EQ(portal.visibilityAtRegister, 1) << "it would refuse every request";
    expectHidden();
}

TEST_F(PortalIntroductionTest, OneThatIsMadeIsRemembered) {
    introduction->begin();
    (void)awaitedMade();
    (void)awaitedMade();
    EXPECT_EQ(portal.count("Register"), 1);
}

TEST_F(PortalIntroductionTest, APortalThatHangsSeesUsForALimitedTime) {
    portal.responses[QStringLiteral("Register")].isSilent = true;
    make(30ms);
    introduction->begin();
    EXPECT_EQ(prctl(PR_GET_DUMPABLE), 1);
    runUntil([this] { return portal.count("Register") == 1; });
    expectHidden();
    EXPECT_EQ(awaitedMade().type(), QDBusMessage::ErrorMessage);
}

TEST_F(PortalIntroductionTest, NoneIsStartedToBeIntroducedTo) {
    portal.end();
    introduction->begin();
    expectHidden();
    EXPECT_EQ(portal.count("Register"), 0);
}

TEST_F(PortalIntroductionTest, OneThatBeginsLaterHearsOurName) {
    portal.end();
    introduction->begin();
    expectHidden();
    portal.begin();
    runUntil([this] { return portal.count("Register") == 1; });
    EXPECT_EQ(portal.visibilityAtRegister, 1);
    expectHidden();
}

TEST_F(PortalIntroductionTest, OneThatRestartsHearsOurNameAndCanSeeUs) {
    introduction->begin();
    (void)awaitedMade();
    expectHidden();
    portal.end();
    portal.visibilityAtRegister = -1;
    portal.begin();
    runUntil([this] { return portal.count("Register") == 2; });
    EXPECT_EQ(portal.visibilityAtRegister, 1);
    expectHidden();
}

TEST_F(PortalIntroductionTest, OneThatBeginsWhileTheProgramStartsIsAskedForSettingsBehindOurName) {
    portal.end();
    introduction->begin();
    expectHidden();
    // What the bus tells of it has not been heard when the settings are wanted.
    portal.begin();
    const PortalSettings settings(introduction, [] {});
    runUntil([this] { return portal.count("ReadAll") == 1; });
    EXPECT_EQ(portal.calls.front().member, u"Register") << "it would be nameless for good";
    EXPECT_NE(awaited(link->openSession(QStringLiteral("org.freedesktop.portal.GlobalShortcuts"))), QString());
}

TEST_F(PortalIntroductionTest, OneThatRestartsUnheardGetsNothingThatWasMeantForTheOneBefore) {
    introduction->begin();
    const QString session = awaited(link->openSession(QStringLiteral("org.freedesktop.portal.GlobalShortcuts")));
    portal.end();
    portal.calls.clear();
    portal.begin();
    link->closeSession(session);
    const QDBusMessage late = link->messageFor(QStringLiteral("org.freedesktop.portal.RemoteDesktop"),
                                               QStringLiteral("NotifyKeyboardKeycode"), {});
    const auto answer = link->call(late);
    EXPECT_EQ(awaited(link->openSession(QStringLiteral("org.freedesktop.portal.GlobalShortcuts"))), QString());
    runUntil([this] { return portal.count("Register") == 1; });
    EXPECT_EQ(portal.calls.front().member, u"Register");
    EXPECT_NE(awaited(link->openSession(QStringLiteral("org.freedesktop.portal.GlobalShortcuts"))), QString());
}

TEST_F(PortalIntroductionTest, OneThatFindsOurDesktopFileAMomentLaterIsToldAgainBeforeAnythingElse) {
    portal.responses[QStringLiteral("Register")] = {.isError = true,
                                                    .errorName = QStringLiteral("org.freedesktop.portal.Error.Failed")};
    introduction->begin();
    const PortalSettings settings(introduction, [] {});
    runUntil([this] { return portal.count("Register") == 1; });
    portal.responses.clear();
    runUntil([this] { return portal.count("ReadAll") == 1; });
    EXPECT_EQ(portal.count("Register"), 2);
    EXPECT_EQ(portal.calls[1].member, u"Register");
    EXPECT_FALSE(introduction->isUnknown());
    expectHidden();
}

TEST_F(PortalIntroductionTest, TheProgramMayEndMeanwhile) {
    portal.responses[QStringLiteral("Register")].isSilent = true;
    introduction->begin();
    const auto made = introduction->made();
    runUntil([this] { return portal.count("Register") == 1; });
    link.reset();
    introduction.reset();
    portal.end();
    expectHidden();
}

} // namespace vellumry
