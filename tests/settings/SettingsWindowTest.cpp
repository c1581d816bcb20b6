// SPDX-License-Identifier: GPL-3.0-or-later
// The settings window as it is shown, worked by keys alone.
#include "settings/SettingsWindowController.h"

#include "settings/SettingsModel.h"
#include "support/AccessibleItems.h"
#include "support/Awaited.h"
#include "support/FakeKeyboardLayout.h"
#include "support/ShownTexts.h"
#include "support/Transfers.h"
#include "views/ViewEngine.h"

#include <QIcon>
#include <QPointer>
#include <QQuickItem>
#include <QQuickView>
#include <QTest>
#include <QTranslator>
#include <gtest/gtest.h>

namespace vellumry {
namespace {

/// The texts that are shown cut.
QStringList cutTexts(QQuickItem* item) {
    QStringList found;
    if (!item->isVisible())
        return found;
    if (item->inherits("QQuickText") && item->property("truncated").toBool())
        found.append(item->property("text").toString());
    for (QQuickItem* child : item->childItems())
        found += cutTexts(child);
    return found;
}

class SettingsWindowTest : public ::testing::Test {
protected:
    SettingsWindowTest() {
        model.actions.installedApplications = []() -> QCoro::Task<std::vector<InstalledApplication>> {
            co_return std::vector<InstalledApplication>{
                {QStringLiteral("org.example.Editor"), QStringLiteral("Editor"), {}, QStringLiteral("Editor")},
                {QStringLiteral("org.example.Viewer"), QStringLiteral("Viewer"), {}, QStringLiteral("Viewer")}};
        };
        model.actions.isTrusted = [] { return true; };
        controller.show(0);
        EXPECT_TRUE(QTest::qWaitForWindowActive(controller.window(), 60'000));
    }
    [[nodiscard]] QQuickView& window() const { return *controller.window(); }
    [[nodiscard]] QQuickItem* root() const { return window().rootObject(); }
    [[nodiscard]] QStringList texts() const { return shownTexts(root()); }
    [[nodiscard]] bool shows(const char* text) const { return texts().contains(QString::fromUtf8(text)); }
    [[nodiscard]] QQuickItem* item(QAccessible::Role role, const char* name) const {
        return accessibleItem(window().contentItem(), role, QString::fromUtf8(name));
    }
    [[nodiscard]] QString focused() const {
        const QQuickItem* item = window().activeFocusItem();
        return item ? accessibleName(item) : QString();
    }
    void press(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        QTest::keyClick(controller.window(), static_cast<Qt::Key>(key), modifiers);
    }
    /// Tab until that control has the keyboard.
    void tabTo(const char* name) {
        for (int step = 0; step < 60 && focused() != QString::fromUtf8(name); ++step)
            press(Qt::Key_Tab);
        ASSERT_EQ(focused(), QString::fromUtf8(name));
    }
    void goTo(int pane) { root()->setProperty("pane", pane); }
    /// Where somebody looks at what the windows are like.
    void savePicture(const char* name) const {
        const QString pictures = qEnvironmentVariable("VELLUMRY_PICTURES");
        if (!pictures.isEmpty())
            window().grabWindow().save(QStringLiteral("%1/%2.png").arg(pictures, QString::fromUtf8(name)));
    }

    UserDefaults defaults;
    Preferences preferences{defaults};
    FakeKeyboardLayout layout;
    ViewEngine views;
    Transfers transfers;
    SettingsModel model{preferences, layout};
    SettingsWindowController controller{model, transfers.model, views};
};

TEST_F(SettingsWindowTest, EachOpeningHasTheSameIcon) {
    const qint64 first = window().icon().cacheKey();
    controller.close();
    controller.show(0);
    EXPECT_EQ(window().icon().cacheKey(), first) << "what is drawn anew each time stays in Qt's cache";
}

TEST_F(SettingsWindowTest, IsAnOrdinaryWindowWithItsTitleAndWidth) {
    EXPECT_EQ(window().title(), QStringLiteral("Vellumry Settings"));
    EXPECT_FALSE(window().icon().isNull()) << "what task bars show where they do not know the desktop file";
    EXPECT_EQ(window().width(), 540);
    EXPECT_EQ(window().type(), Qt::Window);
    EXPECT_FALSE(window().flags().testFlag(Qt::FramelessWindowHint));
}

TEST_F(SettingsWindowTest, LeftAndRightGoThroughThePanes) {
    EXPECT_EQ(focused(), QStringLiteral("General"));
    const char* const contents[]{"Panel position", "Start / stop Paste Stack", "Keep at most", "Always on",
                                 "Copy once. Find it anytime."};
    for (int pane = 0; pane < 5; ++pane) {
        EXPECT_TRUE(shows(contents[pane])) << contents[pane];
        press(Qt::Key_Right);
    }
    EXPECT_EQ(focused(), QStringLiteral("About")) << "there is none behind the last";
    press(Qt::Key_Left);
    EXPECT_EQ(focused(), QStringLiteral("Privacy"));
    EXPECT_TRUE(shows("Always on"));
    press(Qt::Key_Home);
    EXPECT_EQ(focused(), QStringLiteral("General"));
}

TEST_F(SettingsWindowTest, TheKeyboardIsOnTheNameOfThePaneThatShows) {
    press(Qt::Key_End);
    EXPECT_EQ(focused(), QStringLiteral("About"));
    controller.show(0);
    EXPECT_EQ(focused(), QStringLiteral("General"));
    press(Qt::Key_Right);
    EXPECT_EQ(focused(), QStringLiteral("Shortcuts"));
}

TEST_F(SettingsWindowTest, AssistiveTechnologyReachesAPaneByItsTab) {
    item(QAccessible::PageTab, "Privacy")->forceActiveFocus();
    EXPECT_TRUE(shows("Always on"));
    QAccessibleInterface* tab = QAccessible::queryAccessibleInterface(item(QAccessible::PageTab, "History"));
    tab->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_TRUE(shows("Keep at most"));
}

TEST_F(SettingsWindowTest, SpaceWorksASwitchAtOnce) {
    tabTo("Paste as plain text by default");
    press(Qt::Key_Space);
    EXPECT_TRUE(defaults.boolean(QStringLiteral("plainTextByDefault")));
    QQuickItem* control = item(QAccessible::CheckBox, "Paste as plain text by default");
    ASSERT_NE(control, nullptr);
    EXPECT_TRUE(accessibleState(control).checked);
    press(Qt::Key_Space);
    EXPECT_FALSE(defaults.boolean(QStringLiteral("plainTextByDefault")));
}

TEST_F(SettingsWindowTest, ASwitchFollowsTheFile) {
    defaults.setObject(QStringLiteral("soundWhenPasting"), true);
    model.refresh();
    EXPECT_TRUE(accessibleState(item(QAccessible::CheckBox, "Sound when pasting")).checked);
}

TEST_F(SettingsWindowTest, APickerIsWorkedByArrowsAndByItsList) {
    tabTo("Recent clips in the menu");
    press(Qt::Key_Down);
    EXPECT_EQ(Preferences::recentInMenu(defaults), 20);
    press(Qt::Key_Up);
    EXPECT_EQ(Preferences::recentInMenu(defaults), 10);
    press(Qt::Key_Space);
    ASSERT_NE(item(QAccessible::PopupMenu, "Recent clips in the menu"), nullptr);
    EXPECT_EQ(focused(), QStringLiteral("10")) << "a screen reader hears where it is";
    press(Qt::Key_End);
    press(Qt::Key_Up);
    press(Qt::Key_Escape);
    EXPECT_EQ(Preferences::recentInMenu(defaults), 10);
    EXPECT_TRUE(window().isVisible()) << "Escape closed the list alone";
    EXPECT_EQ(focused(), QStringLiteral("Recent clips in the menu"));
    press(Qt::Key_Space);
    press(Qt::Key_Down);
    press(Qt::Key_Return);
    EXPECT_EQ(Preferences::recentInMenu(defaults), 20);
    EXPECT_EQ(item(QAccessible::PopupMenu, "Recent clips in the menu"), nullptr);
}

TEST_F(SettingsWindowTest, TheRowOfThePermissionFollowsTheSwitchAboveIt) {
    EXPECT_TRUE(shows("Allowed in Privacy & Security → Accessibility"));
    model.setPasteDirectly(false);
    EXPECT_FALSE(shows("Allowed in Privacy & Security → Accessibility"));
    model.actions.isTrusted = [] { return false; };
    model.setPasteDirectly(true);
    model.refreshAll();
    EXPECT_TRUE(shows("Needs your OK in Privacy & Security → Accessibility"));
    EXPECT_TRUE(shows("Allow…"));
}

TEST_F(SettingsWindowTest, AShortcutIsRecordedFromTheKeyboardAlone) {
    goTo(1);
    tabTo("Open Vellumry");
    press(Qt::Key_Space);
    EXPECT_TRUE(shows("Press new shortcut…"));
    press(Qt::Key_Tab);
    EXPECT_TRUE(model.openPanelShortcut()->isRecording()) << "no key leaves the recorder";
    EXPECT_TRUE(shows("Hold Ctrl, Alt or Super with the key."));
    press(Qt::Key_Escape);
    EXPECT_TRUE(window().isVisible());
    EXPECT_FALSE(model.openPanelShortcut()->isRecording());
    press(Qt::Key_Return);
    EXPECT_TRUE(model.openPanelShortcut()->isRecording());
    press(Qt::Key_Backspace);
    EXPECT_FALSE(model.openPanelShortcut()->isRecording());
}

TEST_F(SettingsWindowTest, ARecordingEndsWithItsWindow) {
    model.pasteStackShortcut()->toggle();
    controller.close();
    EXPECT_FALSE(model.pasteStackShortcut()->isRecording());
}

TEST_F(SettingsWindowTest, ItIsGoneWhenItIsClosedAndMadeAnewWhenItIsOpened) {
    const QPointer<QQuickView> closed = controller.window();
    controller.close();
    EXPECT_FALSE(controller.isVisible());
    runUntil([&] { return !closed; });
    controller.show(2);
    EXPECT_TRUE(controller.isVisible());
    EXPECT_EQ(root()->property("pane"), 2);
}

TEST_F(SettingsWindowTest, ATakenShortcutIsShownWithAnotherOffered) {
    model.actions.offerShortcut = [] {
        return std::optional(ShortcutRegistrations::Offer{QStringLiteral("openPanelShortcut"),
                                                          {KeyCode::v, Modifier::control | Modifier::option}});
    };
    goTo(1);
    EXPECT_FALSE(shows("Use It"));
    model.setShortcutProblems({QStringLiteral("X is already used by another app. Pick another shortcut.")});
    EXPECT_TRUE(shows("X is already used by another app. Pick another shortcut."));
    tabTo("Use It");
    press(Qt::Key_Return);
    EXPECT_EQ(preferences.shortcut(QStringLiteral("openPanelShortcut")),
              (Shortcut{KeyCode::v, Modifier::control | Modifier::option}));
}

TEST_F(SettingsWindowTest, ClearingAsksFirstAndTheWayOutHasTheKeyboard) {
    int cleared = 0;
    int deleted = 0;
    model.actions.clearHistory = [&cleared]() -> QCoro::Task<void> {
        ++cleared;
        co_return;
    };
    model.actions.deleteEverything = [&deleted]() -> QCoro::Task<void> {
        ++deleted;
        co_return;
    };
    goTo(2);
    tabTo("Clear…");
    press(Qt::Key_Space);
    EXPECT_TRUE(shows("Clear your clipboard history?"));
    EXPECT_EQ(focused(), QStringLiteral("Cancel"));
    for (int step = 0; step < 6; ++step) {
        press(Qt::Key_Tab);
        EXPECT_NE(focused(), QStringLiteral("Keep at most")) << "the window behind is out of reach";
    }
    press(Qt::Key_Escape);
    EXPECT_FALSE(shows("Clear your clipboard history?"));
    EXPECT_EQ(cleared + deleted, 0);
    EXPECT_EQ(focused(), QStringLiteral("Clear…"));
    press(Qt::Key_Space);
    tabTo("Clear History, Keep Pinned");
    press(Qt::Key_Return);
    EXPECT_EQ(cleared, 1);
    press(Qt::Key_Space);
    tabTo("Delete Everything");
    press(Qt::Key_Return);
    EXPECT_EQ(deleted, 1);
}

TEST_F(SettingsWindowTest, OtherProgramsHistoriesAreImportedByKeysAlone) {
    const PasteboardItem item{{{QStringLiteral("public.utf8-plain-text"), "theirs"}}, {}};
    transfers.peers.add(QStringLiteral("copyq"), {PeerClip{{item}}}, 1795000000);
    transfers.peers.found.push_back({QStringLiteral("x"), QStringLiteral("X"), PeerHistory::State::locked});
    goTo(2);
    tabTo("Import…");
    press(Qt::Key_Return);
    EXPECT_EQ(focused(), QStringLiteral("Done"));
    runUntil([this] { return shows("COPYQ"); });
    EXPECT_TRUE(shows("1 items"));
    EXPECT_TRUE(shows("Encrypted: nothing in it can be read"));
    EXPECT_TRUE(transfers.store.clips().empty());
    tabTo("Import");
    press(Qt::Key_Space);
    runUntil([this] { return shows("1 clips were imported."); });
    EXPECT_EQ(transfers.store.clips().size(), 1U);
    EXPECT_EQ(cutTexts(root()), QStringList());
    EXPECT_EQ(namelessControls(root()), QStringList());
    savePicture("settings-import");
    tabTo("Undo Import");
    press(Qt::Key_Space);
    runUntil([this] { return shows("The import was taken back."); });
    EXPECT_TRUE(transfers.store.clips().empty());
    press(Qt::Key_Escape);
    EXPECT_EQ(focused(), QStringLiteral("Import…"));
}

TEST_F(SettingsWindowTest, EverythingIsExportedByKeysAlone) {
    goTo(2);
    tabTo("Export…");
    press(Qt::Key_Return);
    EXPECT_EQ(focused(), QStringLiteral("New folder"));
    const QString folder = transfers.model.suggestedFolder();
    EXPECT_TRUE(texts().contains(folder) || window().activeFocusItem()->property("text").toString() == folder);
    savePicture("settings-export");
    press(Qt::Key_Return);
    runUntil([this] { return transfers.model.message().contains(QStringLiteral("not encrypted there")); });
    EXPECT_TRUE(QFile::exists(folder + QStringLiteral("/index.json")));
    EXPECT_EQ(cutTexts(root()), QStringList());
    EXPECT_EQ(namelessControls(root()), QStringList());
    press(Qt::Key_Escape);
    EXPECT_TRUE(window().isVisible());
}

TEST_F(SettingsWindowTest, ApplicationsAreChosenByKeysAlone) {
    goTo(3);
    tabTo("Add Apps…");
    press(Qt::Key_Return);
    EXPECT_EQ(focused(), QStringLiteral("Search apps"));
    for (const char letter : {'v', 'i', 'e', 'w'})
        QTest::keyClick(controller.window(), letter);
    runUntil([this] { return !shows("Editor"); });
    EXPECT_TRUE(shows("Viewer"));
    press(Qt::Key_Down);
    EXPECT_EQ(focused(), QStringLiteral("Viewer"));
    press(Qt::Key_Space);
    EXPECT_TRUE(accessibleState(item(QAccessible::CheckBox, "Viewer")).checked);
    tabTo("Never Save");
    press(Qt::Key_Return);
    EXPECT_TRUE(preferences.ignoredApps().contains(QStringLiteral("org.example.Viewer")));
    EXPECT_TRUE(shows("Viewer")) << "in the list now";
    tabTo("Save clips from this app again");
    press(Qt::Key_Space);
    EXPECT_FALSE(preferences.ignoredApps().contains(QStringLiteral("org.example.Viewer")));
    EXPECT_FALSE(shows("Viewer"));
}

TEST_F(SettingsWindowTest, WhatWorksOnThisDesktopIsOnePage) {
    model.actions.desktopState = [] {
        DesktopState state;
        state.capabilities = {
            Capability::missing(QStringLiteral("XTest"), QStringLiteral("none")).serving({Feature::paste})};
        return state;
    };
    model.refreshAll();
    tabTo("Show…");
    press(Qt::Key_Return);
    EXPECT_TRUE(shows("Pasting for you"));
    EXPECT_TRUE(shows("XTest: none"));
    EXPECT_EQ(focused(), QStringLiteral("Done"));
    press(Qt::Key_Return);
    EXPECT_FALSE(shows("Pasting for you"));
}

TEST_F(SettingsWindowTest, UpdatesAreShownWhereThereAreAny) {
    UpdateState state;
    int installs = 0;
    model.actions.updates = [&state] { return state; };
    model.actions.setAutomaticUpdates = [&state](bool isOn) { state.automaticallyInstalls = isOn; };
    model.actions.installUpdate = [&installs] { ++installs; };
    goTo(4);
    EXPECT_TRUE(shows("Off in developer builds"));
    state.isEnabled = true;
    state.secondsSinceCheck = 10;
    model.noteUpdates();
    EXPECT_FALSE(shows("Off in developer builds"));
    EXPECT_TRUE(shows("Last checked just now"));
    tabTo("Install updates automatically");
    press(Qt::Key_Space);
    EXPECT_TRUE(state.automaticallyInstalls);
    state.readyVersion = QStringLiteral("2.0");
    model.noteUpdates();
    EXPECT_TRUE(shows("Vellumry 2.0 is ready to install"));
    tabTo("Restart Now");
    press(Qt::Key_Return);
    EXPECT_EQ(installs, 1);
}

TEST_F(SettingsWindowTest, TheMakersPagesAreReachedByKeys) {
    QStringList opened;
    model.actions.openLink = [&opened](const QString& address) { opened.append(address); };
    goTo(4);
    savePicture("settings-about");
    for (const char* name : {"Website", "Email support", "Privacy policy", "Terms"}) {
        tabTo(name);
        press(Qt::Key_Space);
    }
    EXPECT_EQ(
        opened,
        (QStringList{QStringLiteral("https://vellumry.com"), QStringLiteral("mailto:support@vellumry.com"),
                     QStringLiteral("https://vellumry.com/privacy"), QStringLiteral("https://vellumry.com/terms")}));
}

TEST_F(SettingsWindowTest, TheKeyboardBringsWhatItReachesIntoView) {
    window().resize(540, 320);
    tabTo("Save new screenshots");
    const QQuickItem* control = window().activeFocusItem();
    const QRectF place = control->mapRectToScene(QRectF(0, 0, control->width(), control->height()));
    EXPECT_TRUE(QRectF(0, 60, 540, 260).contains(place)) << place.y();
}

TEST_F(SettingsWindowTest, ClosesByItsKeysAndComesBackWithTheFirstPane) {
    goTo(3);
    press(Qt::Key_W, Qt::ControlModifier);
    EXPECT_FALSE(controller.isVisible());
    controller.show(0);
    ASSERT_TRUE(QTest::qWaitForWindowActive(controller.window(), 60'000));
    EXPECT_TRUE(shows("Panel position"));
    press(Qt::Key_Escape);
    EXPECT_FALSE(controller.isVisible());
}

/// A language that needs two fifths more room than English.
class LongWords : public QTranslator {
public:
    [[nodiscard]] bool isEmpty() const override { return false; }
    [[nodiscard]] QString translate(const char*, const char* key, const char*, int) const override {
        const QString text = QString::fromUtf8(key);
        return text == QLatin1String("en") ? text : text + text.left(text.size() * 2 / 5);
    }
};

class SettingsWindowInAnotherLanguageTest : public SettingsWindowTest {
protected:
    SettingsWindowInAnotherLanguageTest() { QCoreApplication::installTranslator(&words); }
    ~SettingsWindowInAnotherLanguageTest() override {
        QCoreApplication::removeTranslator(&words);
        QGuiApplication::setLayoutDirection(Qt::LeftToRight);
    }
    LongWords words;
};

TEST_F(SettingsWindowInAnotherLanguageTest, LongTextsAreNotCut) {
    // The pane is made anew with the words of that language.
    for (const int pane : {1, 2, 3, 4, 0}) {
        goTo(pane);
        EXPECT_EQ(cutTexts(root()), QStringList()) << pane;
    }
}

class SettingsWindowMirroredTest : public ::testing::Test {
protected:
    SettingsWindowMirroredTest() { QGuiApplication::setLayoutDirection(Qt::RightToLeft); }
    ~SettingsWindowMirroredTest() override { QGuiApplication::setLayoutDirection(Qt::LeftToRight); }
    [[nodiscard]] QQuickItem* item(QAccessible::Role role, const char* name) const {
        return accessibleItem(controller.window()->contentItem(), role, QString::fromUtf8(name));
    }
    [[nodiscard]] static double left(const QQuickItem* item) { return item->mapToScene(QPointF()).x(); }

    UserDefaults defaults;
    Preferences preferences{defaults};
    FakeKeyboardLayout layout;
    ViewEngine views;
    Transfers transfers;
    SettingsModel model{preferences, layout};
    SettingsWindowController controller{model, transfers.model, views};
};

TEST_F(SettingsWindowMirroredTest, AllRunsFromRightToLeft) {
    // What the language decides was decided when the views began.
    QGuiApplication::setLayoutDirection(Qt::RightToLeft);
    controller.show(0);
    ASSERT_TRUE(QTest::qWaitForWindowActive(controller.window(), 60'000));
    const QString pictures = qEnvironmentVariable("VELLUMRY_PICTURES");
    if (!pictures.isEmpty())
        controller.window()->grabWindow().save(pictures + QStringLiteral("/settings-mirrored.png"));
    EXPECT_GT(left(item(QAccessible::PageTab, "General")), left(item(QAccessible::PageTab, "About")));
    EXPECT_LT(left(item(QAccessible::CheckBox, "Open Vellumry at login")), 270);
    EXPECT_GT(left(item(QAccessible::StaticText, "Open Vellumry at login")), 60);
    QTest::keyClick(controller.window(), Qt::Key_Left);
    EXPECT_NE(item(QAccessible::Button, "Start / stop Paste Stack"), nullptr) << "the next pane lies to the left";
}

TEST_F(SettingsWindowTest, EveryControlHasANameForScreenReaders) {
    for (int pane = 0; pane < 5; ++pane) {
        goTo(pane);
        EXPECT_EQ(namelessControls(root()), QStringList()) << pane;
    }
}

} // namespace
} // namespace vellumry
