// SPDX-License-Identifier: GPL-3.0-or-later
// Portals that end, come back, are not ready or refuse.
#include "linux/portal/PortalHotKeys.h"

#include "linux/portal/HotKeysWorld.h"

namespace vellumry {

TEST_F(PortalHotKeysTest, APortalThatComesBackIsAskedAgain) {
    FakePortalBackend backend(bus.address());
    grabBoth();
    untilStanding(Standing::given);
    const QString session = portal.session();
    portal.end();
    runUntil([&] { return backend.closed == QStringList{session}; });
    untilStanding(Standing::failed);
    portal.begin();
    untilStanding(Standing::given);
    portal.activate(portal.session(), panelName);
    runUntil([this] { return !pressed.empty(); });
}

TEST_F(PortalHotKeysTest, APortalThatDiesOfTheQuestionIsLeftInPeace) {
    portal.responses[QStringLiteral("BindShortcuts")].endsPortal = true;
    grabBoth();
    for (int dead = 1; dead <= 3; ++dead) {
        runUntil([this, dead] { return portal.count("BindShortcuts") == dead && !portal.isThere(); });
        untilStanding(Standing::failed);
        portal.begin();
    }
    settle();
    settle();
    EXPECT_EQ(portal.count("BindShortcuts"), 3);
}

TEST_F(PortalHotKeysTest, KeysThatAreTakenBackAreReportedAndNotAskedForAtOnce) {
    grabBoth();
    untilStanding(Standing::given);
    portal.closeSession(portal.session());
    untilStanding(Standing::failed);
    settle();
    EXPECT_EQ(portal.count("BindShortcuts"), 1);
}

TEST_F(PortalHotKeysTest, APortalThatIsNotReadyForSessionsIsAskedAgain) {
    portal.responses[QStringLiteral("CreateSession")].isError = true;
    grabBoth();
    runUntil([this] { return portal.count("CreateSession") == 2; });
    EXPECT_EQ(portal.count("BindShortcuts"), 0);
    portal.responses.clear();
    untilStanding(Standing::given);
    EXPECT_EQ(portal.shortcuts().size(), 2);
}

TEST_F(PortalHotKeysTest, APortalThatFindsNoDesktopFileIsReportedAsThat) {
    portal.responses[QStringLiteral("Register")] = {.isError = true,
                                                    .errorName = QStringLiteral("org.freedesktop.portal.Error.Failed")};
    portal.responses[QStringLiteral("CreateSession")].isError = true;
    grabBoth();
    untilStanding(Standing::failed);
    EXPECT_TRUE(hotKeys->capability().detail.contains(u"com.vellumry.Vellumry.desktop"));
    EXPECT_EQ(hotKeys->capability().features, std::vector{Feature::shortcuts});
    // The next one has found it.
    portal.responses.clear();
    portal.end();
    portal.begin();
    untilStanding(Standing::given);
    EXPECT_TRUE(hotKeys->capability().isFound);
}

TEST_F(PortalHotKeysTest, APortalThatIsNotReadyForTheQuestionIsAskedAgain) {
    portal.responses[QStringLiteral("BindShortcuts")].isError = true;
    grabBoth();
    runUntil([this] { return portal.count("BindShortcuts") == 2; });
    EXPECT_TRUE(refused.isEmpty()) << "no user has refused anything";
    portal.responses.clear();
    untilStanding(Standing::given);
    const int asked = portal.count("BindShortcuts");
    settle();
    settle();
    EXPECT_EQ(portal.count("BindShortcuts"), asked) << "given keys are not asked for again";
}

TEST_F(PortalHotKeysTest, APortalThatNeverGetsReadyIsLeftInPeace) {
    retry = std::chrono::milliseconds(1);
    portal.responses[QStringLiteral("CreateSession")].isError = true;
    grabBoth();
    runUntil([this] { return portal.count("CreateSession") == 5 && hotKeys->standing() == Standing::failed; });
    for (int round = 0; round < 20; ++round)
        (void)awaited(link->survey());
    EXPECT_EQ(portal.count("CreateSession"), 5);
}

TEST_F(PortalHotKeysTest, KeysThatAreGivenMeanwhileAreNotAskedForAgain) {
    portal.responses[QStringLiteral("CreateSession")].isError = true;
    grabBoth();
    untilStanding(Standing::failed);
    hotKeys->release(2);
    portal.responses.clear();
    untilStanding(Standing::given);
    EXPECT_EQ(portal.shortcuts().size(), 1);
    for (int round = 0; round < 20; ++round)
        settle();
    EXPECT_EQ(portal.count("BindShortcuts"), 1);
}

TEST_F(PortalHotKeysTest, WithoutAPortalTheyAreMissing) {
    portal.end();
    grabBoth();
    untilStanding(Standing::failed);
    EXPECT_FALSE(hotKeys->capability().isFound);
    EXPECT_EQ(hotKeys->capability().features, std::vector{Feature::shortcuts});
}

} // namespace vellumry
