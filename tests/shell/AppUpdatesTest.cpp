// SPDX-License-Identifier: GPL-3.0-or-later
// Newer versions in the running program.
#include "shell/AppEnvironment.h"

#include "shell/AppEnvironmentWorld.h"

namespace vellumry {
namespace {

class AppUpdatesTest : public AppEnvironmentWorld {
protected:
    AppUpdatesTest() { hasUpdates = true; }
    [[nodiscard]] QStringList menu() const {
        QStringList texts;
        for (const ActionMenuItem& item : environment->statusMenu()) {
            texts.append(item.text);
            for (const ActionMenuItem& below : item.items)
                texts.append(below.text);
        }
        return texts;
    }
    void offer() {
        EXPECT_TRUE(updater->willInstallOnQuit({QStringLiteral("2.0"), false}, [this] { ++installs; }));
    }

    int installs = 0;
};

TEST_F(AppUpdatesTest, AnUpdateIsInstalledWhileTheUserIsAway) {
    start();
    offer();
    EXPECT_TRUE(menu().contains(QStringLiteral("Restart to Update to 2.0")));
    idleSeconds = 599;
    maintain();
    EXPECT_EQ(installs, 0);
    idleSeconds = 600;
    maintain();
    EXPECT_EQ(installs, 1);
}

TEST_F(AppUpdatesTest, NotWhileThePanelIsOpenOrAStackRuns) {
    start();
    offer();
    idleSeconds = 100'000;
    environment->openPanel();
    maintain();
    EXPECT_EQ(installs, 0);
    environment->togglePanel();
    environment->toggleStack();
    maintain();
    EXPECT_EQ(installs, 0);
    environment->toggleStack();
    maintain();
    EXPECT_EQ(installs, 1);
}

TEST_F(AppUpdatesTest, NotWhileAQuestionWaits) {
    start();
    copyText("something to clear");
    offer();
    idleSeconds = 100'000;
    environment->askToClear();
    maintain();
    EXPECT_EQ(installs, 0);
}

TEST_F(AppUpdatesTest, TheUserAsksAndIsAnswered) {
    start();
    EXPECT_TRUE(menu().contains(QStringLiteral("Check for Updates…")));
    environment->updates().checkNow();
    EXPECT_EQ(updater->checks, 1);
    updater->onOutcome(SoftwareUpdater::Outcome::upToDate);
    EXPECT_TRUE(sees("Vellumry is up to date"));
    updater->onOutcome(SoftwareUpdater::Outcome::failed);
    EXPECT_TRUE(sees("The update couldn't be loaded. Nothing has changed"));
}

TEST_F(AppUpdatesTest, WhereAPackageManagerOwnsTheFilesNothingIsOffered) {
    hasUpdates = false;
    start();
    EXPECT_FALSE(environment->updates().isEnabled());
    EXPECT_FALSE(menu().contains(QStringLiteral("Check for Updates…")));
}

} // namespace
} // namespace vellumry
