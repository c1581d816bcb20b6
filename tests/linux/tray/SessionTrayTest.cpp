// SPDX-License-Identifier: GPL-3.0-or-later
#include "linux/tray/SessionTray.h"

#include "support/Eventually.h"
#include "support/FakeStatusItem.h"

#include <gtest/gtest.h>

namespace vellumry {
namespace {

class FakeClassicIcon : public ClassicIcon {
public:
    bool isWanted = false;
    void setWanted(bool wanted) override { isWanted = wanted; }
    [[nodiscard]] bool isShown() const override { return isWanted; }
};

class SessionTrayTest : public ::testing::Test {
protected:
    SessionTrayTest() {
        bus->hasPlace = false;
        tray.onMenuWanted = [this] { ++menus; };
        tray.onShownChanged = [this] { ++changes; };
    }
    /// The desktop's panel comes or goes.
    void setPlace(bool hasPlace) {
        bus->hasPlace = hasPlace;
        bus->onShownChanged();
    }
    FakeStatusItem* bus = new FakeStatusItem;
    FakeClassicIcon* classic = new FakeClassicIcon;
    SessionTray tray{std::unique_ptr<StatusItem>(bus), std::unique_ptr<ClassicIcon>(classic),
                     std::chrono::milliseconds(1)};
    int menus = 0;
    int changes = 0;
};

TEST_F(SessionTrayTest, WithoutAPanelOnTheBusTheClassicIconComesAndItsClickAsksForTheMenu) {
    tray.install();
    EXPECT_TRUE(bus->isInstalled);
    EXPECT_FALSE(classic->isWanted) << "the panel may still answer";
    ASSERT_TRUE(eventually([this] { return classic->isWanted; }));
    EXPECT_TRUE(tray.isShown());
    EXPECT_EQ(changes, 1);
    classic->onClicked();
    EXPECT_EQ(menus, 1);
}

TEST_F(SessionTrayTest, ThereIsNeverMoreThanOneIcon) {
    tray.install();
    ASSERT_TRUE(eventually([this] { return classic->isWanted; }));
    setPlace(true);
    EXPECT_FALSE(classic->isWanted);
    EXPECT_TRUE(tray.isShown());
    setPlace(false);
    EXPECT_TRUE(classic->isWanted);
    EXPECT_EQ(changes, 1) << "one or the other was there all the time";
}

TEST_F(SessionTrayTest, APanelThatAnswersAtOnceSeesNoClassicIconComeAndGo) {
    tray.install();
    setPlace(true);
    bool wasWanted = false;
    (void)eventually([this, &wasWanted] { return wasWanted = wasWanted || classic->isWanted; }, 100);
    EXPECT_FALSE(wasWanted);
}

TEST_F(SessionTrayTest, ThePanelGetsTheProgramsMenu) {
    tray.menu = [] { return std::vector<ActionMenuItem>(3); };
    EXPECT_EQ(bus->menu().size(), 3U);
    tray.menuChanged();
    EXPECT_EQ(bus->changes, 1);
}

TEST(SessionTrayWithoutClassicTrays, HasThePanelsIconAlone) {
    auto* bus = new FakeStatusItem;
    SessionTray tray{std::unique_ptr<StatusItem>(bus), nullptr, std::chrono::milliseconds(0)};
    bus->hasPlace = false;
    tray.install();
    EXPECT_FALSE(tray.isShown());
    bus->hasPlace = true;
    bus->onShownChanged();
    EXPECT_TRUE(tray.isShown());
}

} // namespace
} // namespace vellumry
