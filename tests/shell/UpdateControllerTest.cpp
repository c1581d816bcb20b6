// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/UpdateController.h"

#include "support/FakeSoftwareUpdater.h"

#include <gtest/gtest.h>

namespace vellumry {
namespace {

UpdateConfiguration usual() {
    return {.feedURL = QUrl(QStringLiteral("https://updates.example.org/feed.xml")),
            .publicKey = QString::fromLatin1(QByteArray(32, 'k').toBase64())};
}

class UpdateControllerTest : public ::testing::Test {
protected:
    UpdateControllerTest() {
        controller.now = [this] { return now; };
        controller.idleSeconds = [this] { return idle; };
        controller.isBusy = [this] { return isBusy; };
    }
    /// The updater has a verified version; true when it is kept for later.
    bool offer(const char* version, bool isCritical = false) {
        return updater.willInstallOnQuit({QString::fromLatin1(version), isCritical}, [this] { ++installs; });
    }

    Date now = 1'700'000'000;
    double idle = 0;
    bool isBusy = false;
    int installs = 0;
    FakeSoftwareUpdater updater;
    UpdateController controller{usual(), &updater};
};

TEST_F(UpdateControllerTest, AReleaseBuildWithAFeedAndAKeyStartsTheUpdater) {
    EXPECT_TRUE(controller.isEnabled());
    EXPECT_EQ(updater.starts, 1);
    EXPECT_TRUE(controller.automaticallyInstalls());
}

struct ConfigurationCase {
    const char* name;
    const char* feed;
    int keyBytes;
    bool isDebug;
    bool isTest;
    bool isEnabled;
};

class UpdateConfigurationTest : public ::testing::TestWithParam<ConfigurationCase> {};

TEST_P(UpdateConfigurationTest, AllowsUpdatesOrNot) {
    const ConfigurationCase& given = GetParam();
    FakeSoftwareUpdater updater;
    const UpdateController controller(
        {.feedURL = QUrl(QString::fromLatin1(given.feed)),
         .publicKey = QStringLiteral(" %1\n").arg(QString::fromLatin1(QByteArray(given.keyBytes, 'k').toBase64())),
         .isDebugBuild = given.isDebug,
         .isRunningTests = given.isTest},
        &updater);
    EXPECT_EQ(controller.isEnabled(), given.isEnabled);
    EXPECT_EQ(updater.starts, given.isEnabled ? 1 : 0);
}

INSTANTIATE_TEST_SUITE_P(
    Each, UpdateConfigurationTest,
    ::testing::Values(ConfigurationCase{"Https", "https://a.example/feed", 32, false, false, true},
                      ConfigurationCase{"KeyOf31Bytes", "https://a.example/feed", 31, false, false, false},
                      ConfigurationCase{"KeyOf33Bytes", "https://a.example/feed", 33, false, false, false},
                      ConfigurationCase{"NoKey", "https://a.example/feed", 0, false, false, false},
                      ConfigurationCase{"PlainHttp", "http://a.example/feed", 32, false, false, false},
                      ConfigurationCase{"PlainHttpToALookAlike", "http://localhost.example/feed", 32, false, false,
                                        false},
                      ConfigurationCase{"LoopbackByName", "http://localhost:8080/feed", 32, false, false, true},
                      ConfigurationCase{"LoopbackByAddress", "http://127.0.0.1:8080/feed", 32, false, false, true},
                      ConfigurationCase{"LoopbackByIpv6", "http://[::1]:8080/feed", 32, false, false, true},
                      ConfigurationCase{"NoHost", "https:///feed", 32, false, false, false},
                      ConfigurationCase{"NoFeed", "", 32, false, false, false},
                      ConfigurationCase{"OtherScheme", "file:///feed", 32, false, false, false},
                      ConfigurationCase{"DebugBuild", "https://a.example/feed", 32, true, false, false},
                      ConfigurationCase{"TestRun", "https://a.example/feed", 32, false, true, false}),
    [](const auto& each) { return std::string(each.param.name); });

TEST(UpdateController, AKeyThatIsNoBase64DisablesUpdates) {
    UpdateConfiguration configuration = usual();
    configuration.publicKey = QStringLiteral("%%%not base64%%%");
    EXPECT_FALSE(configuration.allowsUpdates());
}

TEST(UpdateController, WithoutAnUpdaterNothingHappens) {
    UpdateController controller(usual(), nullptr);
    EXPECT_FALSE(controller.isEnabled());
    controller.checkNow();
    controller.requestInstall();
    controller.installIfQuiet();
    controller.setAutomaticallyInstalls(false);
    EXPECT_EQ(controller.pendingVersion(), std::nullopt);
}

TEST_F(UpdateControllerTest, AVersionThatIsReadyIsKeptAndShown) {
    EXPECT_TRUE(offer("2.0"));
    EXPECT_EQ(controller.pendingVersion(), (PendingUpdate{QStringLiteral("2.0"), PendingUpdate::State::ready}));
    EXPECT_EQ(installs, 0);
}

TEST_F(UpdateControllerTest, ACriticalVersionIsNeverHeldBack) {
    EXPECT_FALSE(offer("2.0", true));
    EXPECT_EQ(controller.pendingVersion(), std::nullopt);
    EXPECT_TRUE(updater.shouldHandleShowing({QStringLiteral("2.0"), true}, false));
}

TEST_F(UpdateControllerTest, AnAvailableVersionIsShownByOurMenuUntilTheUserHasSeenIt) {
    const SoftwareUpdater::Item item{QStringLiteral("2.0"), false};
    EXPECT_FALSE(updater.shouldHandleShowing(item, false));
    EXPECT_TRUE(updater.shouldHandleShowing(item, true));
    updater.willHandleShowing(true, item);
    EXPECT_EQ(controller.pendingVersion(), std::nullopt);
    updater.willHandleShowing(false, item);
    EXPECT_EQ(controller.pendingVersion(), (PendingUpdate{QStringLiteral("2.0"), PendingUpdate::State::available}));
    updater.didReceiveUserAttention();
    EXPECT_EQ(controller.pendingVersion(), std::nullopt);
    updater.willHandleShowing(false, item);
    updater.willFinishSession();
    EXPECT_EQ(controller.pendingVersion(), std::nullopt);
}

TEST_F(UpdateControllerTest, OneThatIsReadyComesBeforeOneThatIsKnown) {
    updater.willHandleShowing(false, {QStringLiteral("3.0"), false});
    (void)offer("2.0");
    EXPECT_EQ(controller.pendingVersion()->version, QStringLiteral("2.0"));
}

TEST_F(UpdateControllerTest, TenMinutesWithoutInputAreEnough) {
    (void)offer("2.0");
    idle = 599.9;
    controller.installIfQuiet();
    EXPECT_EQ(installs, 0);
    idle = 600;
    controller.installIfQuiet();
    EXPECT_EQ(installs, 1);
}

TEST_F(UpdateControllerTest, NothingIsInstalledWhileTheProgramIsInUse) {
    (void)offer("2.0");
    idle = 100'000;
    isBusy = true;
    controller.installIfQuiet();
    EXPECT_EQ(installs, 0);
    controller.requestInstall();
    EXPECT_EQ(installs, 1) << "unless the user asks";
}

TEST_F(UpdateControllerTest, NothingIsInstalledThatIsNotReady) {
    idle = 100'000;
    controller.installIfQuiet();
    controller.requestInstall();
    EXPECT_EQ(installs, 0);
}

TEST_F(UpdateControllerTest, ASecondRequestWithinAMinuteDoesNothing) {
    (void)offer("2.0");
    controller.requestInstall();
    now += 59.9;
    controller.requestInstall();
    EXPECT_EQ(installs, 1);
    now += 0.1;
    controller.requestInstall();
    EXPECT_EQ(installs, 2);
}

TEST_F(UpdateControllerTest, ACheckIsAskedForOnlyWhenOneCanBeMade) {
    controller.checkNow();
    EXPECT_EQ(updater.checks, 1);
    updater.isReady = false;
    controller.checkNow();
    EXPECT_EQ(updater.checks, 1);
}

TEST_F(UpdateControllerTest, TheLastCheckIsTheUpdatersOrNow) {
    EXPECT_EQ(controller.lastChecked(), std::nullopt);
    updater.didFinishCycle();
    EXPECT_EQ(controller.lastChecked(), now);
    updater.lastChecked = 1'600'000'000;
    updater.didFinishCycle();
    EXPECT_EQ(controller.lastChecked(), 1'600'000'000);
}

TEST_F(UpdateControllerTest, TheSwitchIsTheUpdaters) {
    int changes = 0;
    QObject::connect(&controller, &UpdateController::changed, &controller, [&changes] { ++changes; });
    controller.setAutomaticallyInstalls(false);
    EXPECT_FALSE(updater.downloads);
    EXPECT_FALSE(controller.automaticallyInstalls());
    EXPECT_EQ(changes, 1);
}

} // namespace
} // namespace vellumry
