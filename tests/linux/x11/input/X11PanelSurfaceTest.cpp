// SPDX-License-Identifier: GPL-3.0-or-later
#include "linux/x11/windows/X11PanelSurface.h"

#include "linux/x11/input/XClient.h"
#include "linux/x11/input/XSession.h"
#include "linux/x11/keys/X11HotKeys.h"
#include "linux/x11/windows/XWindowProperties.h"
#include "support/Eventually.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <atomic>
#include <future>
#include <gtest/gtest.h>
#include <linux/input-event-codes.h>

#include <X11/Xlib.h>

namespace vellumry {

using namespace std::chrono_literals;

namespace {

class TypedWindow : public QWindow {
public:
    QString typed;
    int clicks = 0;

protected:
    void mousePressEvent(QMouseEvent*) override { ++clicks; }
    void keyPressEvent(QKeyEvent* event) override { typed += event->text(); }
};

class X11PanelSurfaceTest : public ::testing::Test {
protected:
    void SetUp() override {
        ASSERT_NE(connection, nullptr);
        client.movePointer(1000, 700);
        surface.adopt(&panel);
        surface.onFocusLost = [this](QWindow* window) { lost.push_back(window); };
        ASSERT_TRUE(target.open("target", "Target"));
    }
    void TearDown() override { surface.dismiss(&panel); }

    void show() {
        surface.present(&panel, frame);
        ASSERT_EQ(windowproperties::focusWindow(*connection), panel.winId());
    }

    /// How many presses and releases have reached the target when it is `expected` or the wait is over.
    std::size_t keysOfTarget(std::size_t expected) {
        std::size_t got = 0;
        EXPECT_TRUE(eventually([&] {
            got += target.takeKeys().size();
            return got >= expected;
        }));
        return got;
    }

    const QRect frame{300, 200, 400, 200};
    std::shared_ptr<XlibConnection> connection = XlibConnection::create().value();
    std::shared_ptr<X11Focus> focus = std::make_shared<X11Focus>(connection);
    X11PanelSurface surface{connection, focus};
    TypedWindow panel;
    XClient target;
    XClient client;
    std::vector<QWindow*> lost;
};

/// What a window manager does about the selection that names it; it answers when the test says.
class FakeManager {
public:
    explicit FakeManager(const char* selection) { m_client.own(selection); }

    /// Waits for a question.
    void takeQuestion() {
        XIfEvent(
            m_client.display(), &m_question,
            [](Display*, XEvent* event, XPointer) -> Bool { return event->type == SelectionRequest; }, nullptr);
    }
    /// Answers the question that was taken last.
    void answer() {
        XEvent event{};
        event.xselection.type = SelectionNotify;
        event.xselection.requestor = m_question.xselectionrequest.requestor;
        event.xselection.selection = m_question.xselectionrequest.selection;
        event.xselection.target = m_question.xselectionrequest.target;
        event.xselection.property = m_question.xselectionrequest.property;
        // Mutter handles no error of this, and dies of it.
        static int errors;
        errors = 0;
        const auto before = XSetErrorHandler([](Display*, XErrorEvent*) -> int {
            ++errors;
            return 0;
        });
        XSendEvent(m_client.display(), event.xselection.requestor, False, NoEventMask, &event);
        XSync(m_client.display(), False);
        XSetErrorHandler(before);
        EXPECT_EQ(errors, 0) << "the window that asked is gone";
    }

private:
    XClient m_client;
    XEvent m_question{};
};

class FencedPanelTest : public X11PanelSurfaceTest {
protected:
    void SetUp() override {
        X11PanelSurfaceTest::SetUp();
        fenced.adopt(&panel);
    }
    void TearDown() override { fenced.dismiss(&panel); }

    FakeManager manager{"VELLUMRY_TEST_MANAGER"};
    X11PanelSurface fenced{connection, focus,
                           std::make_unique<WindowManagerFence>(connection, "VELLUMRY_TEST_MANAGER", 1h)};
};

} // namespace

TEST_F(X11PanelSurfaceTest, ThePanelTakesTypingAtOnce) {
    show();
    EXPECT_TRUE(panel.isVisible());
    EXPECT_EQ(panel.geometry(), frame);
    client.chord({KEY_A});
    EXPECT_TRUE(eventually([&] { return panel.typed == u"a"; }));
    EXPECT_TRUE(target.takeKeys().empty());
    EXPECT_TRUE(lost.empty());
}

TEST_F(FencedPanelTest, TheKeyboardIsTakenOnceTheWindowManagerKnowsThePanel) {
    fenced.present(&panel, frame);
    manager.takeQuestion();
    EXPECT_TRUE(panel.isVisible());
    EXPECT_TRUE(target.hasFocus());
    manager.answer();
    EXPECT_TRUE(eventually([&] { return windowproperties::focusWindow(*connection) == panel.winId(); }));
    client.chord({KEY_A});
    EXPECT_TRUE(eventually([&] { return panel.typed == u"a"; }));
}

TEST_F(FencedPanelTest, APanelThatIsGoneBeforeTheAnswerTakesNothing) {
    fenced.present(&panel, frame);
    manager.takeQuestion();
    fenced.dismiss(&panel);
    manager.answer();
    client.chord({KEY_B});
    EXPECT_EQ(keysOfTarget(2), 2U);
    EXPECT_TRUE(target.hasFocus());
}

TEST_F(FencedPanelTest, AnAnswerToAnEarlierQuestionDoesNotCount) {
    fenced.present(&panel, frame);
    manager.takeQuestion();
    fenced.dismiss(&panel);
    fenced.present(&panel, frame);
    manager.answer();
    client.chord({KEY_B});
    EXPECT_EQ(keysOfTarget(2), 2U);
    EXPECT_TRUE(target.hasFocus());
    manager.takeQuestion();
    manager.answer();
    EXPECT_TRUE(eventually([&] { return windowproperties::focusWindow(*connection) == panel.winId(); }));
}

TEST_F(FencedPanelTest, AWindowOfTheManagersOwnIsNotGivenTheKeyboard) {
    const auto own = XCreateWindow(client.display(), DefaultRootWindow(client.display()), -9, -9, 1, 1, 0, 0, InputOnly,
                                   nullptr, 0, nullptr);
    XSetWindowAttributes attributes{};
    attributes.override_redirect = True;
    XChangeWindowAttributes(client.display(), own, CWOverrideRedirect, &attributes);
    XMapWindow(client.display(), own);
    XSetInputFocus(client.display(), own, RevertToNone, CurrentTime);
    XSync(client.display(), False);
    fenced.present(&panel, frame);
    manager.takeQuestion();
    manager.answer();
    ASSERT_TRUE(eventually([&] { return windowproperties::focusWindow(*connection) == panel.winId(); }));
    fenced.dismiss(&panel);
    EXPECT_FALSE(panel.isVisible());
    EXPECT_NE(windowproperties::focusWindow(*connection), own);
}

TEST_F(X11PanelSurfaceTest, AWindowManagerThatDoesNotAnswerIsNotWaitedForLong) {
    const FakeManager manager("VELLUMRY_TEST_SILENT");
    X11PanelSurface fenced(connection, focus,
                           std::make_unique<WindowManagerFence>(connection, "VELLUMRY_TEST_SILENT", 10ms));
    fenced.adopt(&panel);
    fenced.present(&panel, frame);
    EXPECT_TRUE(eventually([&] { return windowproperties::focusWindow(*connection) == panel.winId(); }));
    fenced.dismiss(&panel);
}

TEST_F(X11PanelSurfaceTest, AnAnswerThatComesTooLateFindsTheWindowThatAskedStill) {
    FakeManager manager("VELLUMRY_TEST_LATE");
    X11PanelSurface fenced(connection, focus,
                           std::make_unique<WindowManagerFence>(connection, "VELLUMRY_TEST_LATE", 10ms));
    fenced.adopt(&panel);
    fenced.present(&panel, frame);
    manager.takeQuestion();
    EXPECT_TRUE(eventually([&] { return windowproperties::focusWindow(*connection) == panel.winId(); }));
    fenced.dismiss(&panel);
    connection->flush();
    manager.answer();
}

TEST_F(X11PanelSurfaceTest, TheEndWaitsForAnAnswerThatIsOwed) {
    FakeManager manager("VELLUMRY_TEST_LATE");
    auto fence = std::make_unique<WindowManagerFence>(connection, "VELLUMRY_TEST_LATE", 1h);
    fence->await([] {});
    manager.takeQuestion();
    std::atomic<bool> isAnswered = false;
    auto answering = std::async(std::launch::async, [&] {
        isAnswered = true;
        manager.answer();
    });
    fence.reset();
    EXPECT_TRUE(isAnswered);
    answering.get();
}

TEST_F(X11PanelSurfaceTest, WithoutAWindowManagerThePanelWaitsForNoAnswer) {
    X11PanelSurface fenced(connection, focus,
                           std::make_unique<WindowManagerFence>(connection, "VELLUMRY_TEST_NONE", 1h));
    fenced.adopt(&panel);
    fenced.present(&panel, frame);
    EXPECT_TRUE(eventually([&] { return windowproperties::focusWindow(*connection) == panel.winId(); }));
    fenced.dismiss(&panel);
}

TEST_F(X11PanelSurfaceTest, TheKeyboardGoesBackToTheExactWindow) {
    for (int round = 0; round < 3; ++round) {
        show();
        surface.dismiss(&panel);
        EXPECT_FALSE(panel.isVisible());
        EXPECT_TRUE(target.hasFocus());
        EXPECT_EQ(focus->standing(), X11Focus::Standing::returned);
    }
    client.chord({KEY_B});
    EXPECT_EQ(keysOfTarget(2), 2U);
    EXPECT_TRUE(panel.typed.isEmpty());
    EXPECT_TRUE(lost.empty());
}

TEST_F(X11PanelSurfaceTest, WhoTakesTheKeyboardKeepsIt) {
    XClient other;
    ASSERT_TRUE(other.open("other", "Other"));
    target.focus();
    ASSERT_TRUE(eventually([&] { return target.hasFocus(); }));
    show();
    other.focus();
    EXPECT_TRUE(eventually([&] { return !lost.empty(); }));
    EXPECT_EQ(lost.front(), &panel);
    surface.dismiss(&panel);
    EXPECT_TRUE(other.hasFocus());
    EXPECT_EQ(focus->standing(), X11Focus::Standing::away);
}

TEST_F(X11PanelSurfaceTest, AHotKeyUnderThePanelDoesNotCloseIt) {
    X11HotKeys keys(connection);
    std::vector<quint32> pressed;
    keys.onPressed = [&](quint32 id) { pressed.push_back(id); };
    ASSERT_TRUE(keys.grab(1, KeyCode::v, Modifier::control | Modifier::command));
    show();
    client.chord({KEY_LEFTCTRL, KEY_LEFTMETA, KEY_V});
    EXPECT_TRUE(eventually([&] { return pressed.size() == 1; }));
    client.chord({KEY_A});
    EXPECT_TRUE(eventually([&] { return panel.typed.endsWith(u'a'); }));
    EXPECT_TRUE(lost.empty());
}

TEST_F(X11PanelSurfaceTest, AForeignKeyboardGrabDoesNotCloseIt) {
    show();
    ASSERT_TRUE(client.grabKeyboard());
    client.ungrabKeyboard();
    client.chord({KEY_A});
    EXPECT_TRUE(eventually([&] { return panel.typed == u"a"; }));
    EXPECT_TRUE(lost.empty());
}

TEST_F(X11PanelSurfaceTest, AClickBesideThePanelIsToldAndOneOnItIsNot) {
    show();
    client.movePointer(frame.center().x(), frame.center().y());
    client.click(1);
    EXPECT_TRUE(eventually([&] { return panel.clicks == 1; }));
    client.movePointer(50, 50);
    client.click(5);
    client.chord({KEY_A});
    EXPECT_TRUE(eventually([&] { return panel.typed == u"a"; }));
    EXPECT_TRUE(lost.empty());
    client.movePointer(1000, 700);
    client.click(1);
    EXPECT_TRUE(eventually([&] { return !lost.empty(); }));
}

TEST_F(X11PanelSurfaceTest, APressOnItIsNoClickBesideItHoweverSoonThePointerLeaves) {
    client.movePointer(frame.center().x(), frame.center().y());
    show();
    client.click(1);
    client.movePointer(1000, 700);
    client.chord({KEY_A});
    EXPECT_TRUE(eventually([&] { return panel.typed == u"a" && panel.clicks == 1; }));
    EXPECT_TRUE(lost.empty());

    // Nor is a press beside it one on it, however soon the pointer comes.
    client.click(1);
    client.movePointer(frame.center().x(), frame.center().y());
    EXPECT_TRUE(eventually([&] { return !lost.empty(); }));
}

TEST_F(X11PanelSurfaceTest, AClickInTheMarginReachesWhatLiesBelow) {
    surface.setInputArea(&panel, QRect(40, 40, 320, 120));
    show();
    client.movePointer(frame.left() + 60, frame.center().y());
    EXPECT_TRUE(eventually([&] { return client.windowUnderPointer() == panel.winId(); }));
    client.click(1);
    EXPECT_TRUE(eventually([&] { return panel.clicks == 1; }));
    EXPECT_TRUE(lost.empty());

    // The window below may come to the top by this.
    client.movePointer(frame.left() + 20, frame.center().y());
    EXPECT_TRUE(eventually([&] { return client.windowUnderPointer() != panel.winId(); }));
    client.click(1);
    EXPECT_TRUE(eventually([&] { return !lost.empty(); }));
    EXPECT_EQ(panel.clicks, 1);
}

TEST_F(X11PanelSurfaceTest, AClickOnAnotherWindowGivesThatWindowTheKeyboard) {
    XClient other;
    ASSERT_TRUE(other.open("other", "Other"));
    other.moveTo(800, 450);
    surface.onFocusLost = [this](QWindow* window) { surface.dismiss(window); };
    // The window manager hears of the click as well; whichever of us is quicker, the clicked window has the keyboard.
    for (int round = 0; round < 10; ++round) {
        target.focus();
        ASSERT_TRUE(eventually([this] { return target.hasFocus(); }));
        show();
        client.movePointer(900, 520);
        client.click(1);
        ASSERT_TRUE(eventually([this] { return !panel.isVisible(); }));
        EXPECT_TRUE(eventually([&] { return other.hasFocus(); })) << "round " << round;
    }
}

TEST_F(X11PanelSurfaceTest, ATargetThatIsGoneIsSurvived) {
    XClient other;
    ASSERT_TRUE(other.open("other", "Other"));
    show();
    other.close();
    surface.dismiss(&panel);
    EXPECT_FALSE(panel.isVisible());
    EXPECT_EQ(focus->standing(), X11Focus::Standing::gone);
}

TEST_F(X11PanelSurfaceTest, AToastTakesNeitherKeysNorClicks) {
    TypedWindow toast;
    surface.adopt(&toast);
    surface.presentPassive(&toast, QRect(600, 500, 200, 100), true);
    client.movePointer(650, 550);
    client.chord({KEY_C});
    EXPECT_EQ(keysOfTarget(2), 2U);
    EXPECT_TRUE(toast.isVisible());
    EXPECT_TRUE(target.hasFocus());
    EXPECT_NE(client.windowUnderPointer(), toast.winId());

    surface.presentPassive(&toast, QRect(600, 500, 200, 100), false);
    EXPECT_TRUE(eventually([&] { return client.windowUnderPointer() == toast.winId(); }));
    EXPECT_TRUE(target.hasFocus());
}

TEST_F(X11PanelSurfaceTest, TranslucencyFollowsTheCompositor) {
    EXPECT_FALSE(surface.canBlend());
    client.own("_NET_WM_CM_S0");
    EXPECT_TRUE(eventually([&] { return surface.canBlend(); }));
    EXPECT_TRUE(X11PanelSurface(connection, focus).canBlend());
    client.disown("_NET_WM_CM_S0");
    EXPECT_TRUE(eventually([&] { return !surface.canBlend(); }));
}

TEST_F(X11PanelSurfaceTest, ThePanelIsInNoTaskBar) {
    const auto states = windowproperties::numbers(*connection, panel.winId(), "_NET_WM_STATE");
    EXPECT_NE(std::find(states.begin(), states.end(), connection->atom("_NET_WM_STATE_SKIP_TASKBAR")), states.end());
    show();
    const auto managed = windowproperties::numbers(*connection, connection->root(), "_NET_CLIENT_LIST");
    EXPECT_EQ(std::find(managed.begin(), managed.end(), panel.winId()), managed.end());
}

} // namespace vellumry
