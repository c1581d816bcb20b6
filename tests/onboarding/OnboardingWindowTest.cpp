// SPDX-License-Identifier: GPL-3.0-or-later
// The first run as it is shown, worked by keys alone.
#include "onboarding/OnboardingWindowController.h"

#include "onboarding/OnboardingModel.h"
#include "support/AccessibleItems.h"
#include "support/Awaited.h"
#include "support/ShownTexts.h"
#include "support/Transfers.h"
#include "views/ViewEngine.h"

#include <QIcon>
#include <QImage>
#include <QQuickItem>
#include <QQuickView>
#include <QTest>
#include <gtest/gtest.h>

namespace vellumry {
namespace {

class OnboardingWindowTest : public ::testing::Test {
protected:
    OnboardingWindowTest() {
        views.reducesMotion = [] { return true; };
        views.readText = [this](const ViewEngine::Deliver& deliver) { deliver(clipboard); };
        controller.onClose = [this] { ++closings; };
        controller.isQuitting = [this] { return isQuitting; };
        controller.show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(controller.window(), 60'000));
    }
    [[nodiscard]] OnboardingModel::Hooks hooks() {
        OnboardingModel::Hooks hooks;
        hooks.isTrusted = [this] { return isTrusted; };
        hooks.copy = [this](const QString& text) { clipboard = text; };
        hooks.openPanel = [this] { ++openings; };
        hooks.shortcutDisplay = [this] { return shortcut; };
        hooks.shortcutProblem = [this] { return problem; };
        hooks.shortcutOffer = [] { return QStringLiteral("Super+Alt+V"); };
        hooks.takeOfferedShortcut = [this] {
            shortcut = QStringLiteral("Super+Alt+V");
            problem.clear();
        };
        hooks.unlockKeyring = [this] { ++unlockings; };
        hooks.finish = [this](bool) { ++endings; };
        return hooks;
    }
    [[nodiscard]] QStringList texts() const { return shownTexts(controller.window()->rootObject()); }
    [[nodiscard]] bool shows(const char* text) const { return texts().contains(QString::fromUtf8(text)); }
    [[nodiscard]] QString focused() const {
        const QQuickItem* item = controller.window()->activeFocusItem();
        return item ? accessibleName(item) : QString();
    }
    void press(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
        QTest::keyClick(controller.window(), static_cast<Qt::Key>(key), modifiers);
    }
    void tabTo(const char* name) {
        for (int step = 0; step < 20 && focused() != QString::fromUtf8(name); ++step)
            press(Qt::Key_Tab);
        ASSERT_EQ(focused(), QString::fromUtf8(name));
    }

    bool isTrusted = true;
    bool isQuitting = false;
    QString shortcut = QStringLiteral("Super+Ctrl+V");
    QString problem;
    QString clipboard;
    int openings = 0;
    int unlockings = 0;
    int endings = 0;
    int closings = 0;
    ViewEngine views;
    Transfers transfers;
    OnboardingModel model{hooks()};
    OnboardingWindowController controller{model, transfers.model, views};
};

TEST_F(OnboardingWindowTest, TaskBarsHaveTheProgramsSignToShow) {
    const QImage icon = controller.window()->icon().pixmap(QSize(32, 32), 1.0).toImage();
    ASSERT_FALSE(icon.isNull());
    EXPECT_EQ(icon.pixelColor(0, 0).alpha(), 0) << "clear beside the sign";
    EXPECT_GT(icon.pixelColor(16, 28).blue(), icon.pixelColor(16, 28).red()) << "the blue tile";
}

TEST_F(OnboardingWindowTest, ReturnLeadsThroughAllFourSteps) {
    EXPECT_EQ(controller.window()->title(), QStringLiteral("Welcome to Vellumry"));
    EXPECT_EQ(controller.window()->width(), 640);
    EXPECT_TRUE(shows("Finds it in a keystroke"));
    EXPECT_EQ(focused(), QStringLiteral("Get Started"));
    press(Qt::Key_Return);
    EXPECT_TRUE(shows("Allowed. Vellumry can paste for you."));
    EXPECT_EQ(focused(), QStringLiteral("Continue"));
    press(Qt::Key_Return);
    EXPECT_TRUE(shows("Try it: takes 5 seconds"));
    EXPECT_EQ(focused(), QStringLiteral("Press Return to paste here")) << "what is pasted has its place";
    tabTo("Continue");
    press(Qt::Key_Return);
    EXPECT_TRUE(shows("You're all set"));
    EXPECT_EQ(focused(), QStringLiteral("Start Using Vellumry"));
    EXPECT_EQ(endings, 0);
    press(Qt::Key_Return);
    EXPECT_EQ(endings, 1);
}

TEST_F(OnboardingWindowTest, WithoutThePermissionItIsAskedForAndCanBeDoneWithout) {
    isTrusted = false;
    model.advance();
    EXPECT_TRUE(shows("Switch Vellumry on in System Settings. This screen updates by itself."));
    EXPECT_EQ(focused(), QStringLiteral("Open System Settings"));
    isTrusted = true;
    runUntil([this] { return shows("Allowed. Vellumry can paste for you."); });
    isTrusted = false;
    runUntil([this] { return !shows("Allowed. Vellumry can paste for you."); });
    tabTo("Not now, I'll press ⌘V myself");
    press(Qt::Key_Space);
    EXPECT_TRUE(shows("Try it: takes 5 seconds"));
    model.advance();
    EXPECT_TRUE(shows("Off: you press ⌘V"));
}

TEST_F(OnboardingWindowTest, TheTryIsReallyDone) {
    model.advance();
    model.advance();
    tabTo("Copy");
    press(Qt::Key_Space);
    EXPECT_EQ(clipboard, OnboardingModel::sample());
    EXPECT_EQ(focused(), QStringLiteral("Press Return to paste here"));
    model.notePanelOpened();
    EXPECT_FALSE(model.pasted());
    press(Qt::Key_V, Qt::ControlModifier);
    EXPECT_TRUE(model.pasted());
    EXPECT_TRUE(shows("That's it. Everything you copy is now one shortcut away."));
    tabTo("Replay");
    press(Qt::Key_Return);
    EXPECT_FALSE(model.copied() || model.panelOpened() || model.pasted());
    EXPECT_FALSE(shows("That's it. Everything you copy is now one shortcut away."));
}

TEST_F(OnboardingWindowTest, ThePanelOpensOverTheField) {
    model.advance();
    model.advance();
    tabTo("Open It for Me");
    press(Qt::Key_Return);
    EXPECT_EQ(openings, 1);
    EXPECT_EQ(focused(), QStringLiteral("Press Return to paste here"));
}

TEST_F(OnboardingWindowTest, OtherProgramsHistoriesAreOfferedOnTheLastStep) {
    const PasteboardItem item{{{QStringLiteral("public.utf8-plain-text"), "theirs"}}, {}};
    runUntil([this] { return !transfers.model.isLooking(); });
    transfers.peers.add(QStringLiteral("copyq"), {PeerClip{{item}}}, 1795000000);
    transfers.model.look();
    for (int step = 0; step < 3; ++step)
        model.advance();
    runUntil([this] { return shows("COPYQ"); });
    EXPECT_TRUE(shows("Bring your clips along"));
    EXPECT_TRUE(shows("1 items"));
    const QString pictures = qEnvironmentVariable("VELLUMRY_PICTURES");
    if (!pictures.isEmpty())
        controller.window()->grabWindow().save(pictures + QStringLiteral("/onboarding-import.png"));
    tabTo("Import");
    press(Qt::Key_Space);
    runUntil([this] { return shows("1 clips were imported."); });
    EXPECT_EQ(transfers.store.clips().size(), 1U);
}

TEST_F(OnboardingWindowTest, WithoutOtherProgramsNothingIsOffered) {
    for (int step = 0; step < 3; ++step)
        model.advance();
    runUntil([this] { return !transfers.model.isLooking(); });
    EXPECT_FALSE(shows("Bring your clips along"));
}

TEST_F(OnboardingWindowTest, AShortcutThatIsTakenIsShownWithAnotherOffered) {
    problem = QStringLiteral("Super+Ctrl+V is already used by another app. Pick another shortcut.");
    model.advance();
    model.advance();
    EXPECT_TRUE(shows("Super+Ctrl+V is already used by another app. Pick another shortcut."));
    tabTo("Use Super+Alt+V");
    press(Qt::Key_Return);
    EXPECT_FALSE(shows("Super+Ctrl+V is already used by another app. Pick another shortcut."));
    EXPECT_TRUE(shows("Super+Alt+V"));
}

TEST_F(OnboardingWindowTest, TheKeyringsQuestionHasAReasonBeforeItIsAsked) {
    model.advance();
    EXPECT_FALSE(shows("Unlock…"));
    model.setKeyringClosed(true);
    EXPECT_TRUE(shows("Your keyring is locked"));
    tabTo("Unlock…");
    press(Qt::Key_Return);
    EXPECT_EQ(unlockings, 1);
    model.setKeyringClosed(false);
    EXPECT_FALSE(shows("Unlock…"));
}

TEST_F(OnboardingWindowTest, ClosingItIsToldAndTheEndOfTheProgramIsNot) {
    press(Qt::Key_W, Qt::ControlModifier);
    EXPECT_EQ(closings, 1);
    controller.show();
    isQuitting = true;
    controller.close();
    EXPECT_EQ(closings, 1);
}

TEST_F(OnboardingWindowTest, WhereNoProgramCanHoldKeysTheLinesThatBindThemAreThereToCopy) {
    model.advance();
    model.advance();
    EXPECT_FALSE(texts().join(u' ').contains(QStringLiteral("For the shortcut")));
    OnboardingModel::Hooks asked = hooks();
    asked.ownBindings = {QStringLiteral("~/.config/wm"), {QStringLiteral("bind v"), QStringLiteral("bind s")}};
    OnboardingModel bound(asked);
    OnboardingWindowController window(bound, transfers.model, views);
    window.show();
    bound.advance();
    bound.advance();
    const QStringList shown = shownTexts(window.window()->rootObject());
    EXPECT_TRUE(shown.contains(QStringLiteral("For the shortcut, add this to ~/.config/wm")));
    EXPECT_TRUE(shown.contains(QStringLiteral("bind v\nbind s")));
}

TEST_F(OnboardingWindowTest, EveryControlHasANameForScreenReaders) {
    for (int step = 0; step < 4; ++step) {
        EXPECT_EQ(namelessControls(controller.window()->rootObject()), QStringList()) << step;
        if (step < 3)
            model.advance();
    }
}

} // namespace
} // namespace vellumry
