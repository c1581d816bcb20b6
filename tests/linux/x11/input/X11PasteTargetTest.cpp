// SPDX-License-Identifier: GPL-3.0-or-later
#include "linux/x11/keys/X11PasteTarget.h"

#include "linux/x11/input/XClient.h"
#include "linux/x11/input/XSession.h"
#include "linux/x11/windows/X11PanelSurface.h"
#include "support/Awaited.h"

#include <QWindow>
#include <gtest/gtest.h>
#include <linux/input-event-codes.h>

namespace vellumry {

namespace {

constexpr unsigned long symbolV = 0x76;
constexpr unsigned long symbolK = 0x6b;
constexpr unsigned long symbolEm = 0x6cd; // of Cyrillic
constexpr unsigned long symbolInsert = 0xff63;
constexpr unsigned int shift = 1;
constexpr unsigned int control = 4;
constexpr unsigned int modifiers = 0xff & ~2U;

QCoro::Task<bool> answering(bool answer) {
    co_return answer;
}

class X11PasteTargetTest : public ::testing::Test {
protected:
    void SetUp() override {
        ASSERT_NE(connection, nullptr);
        ASSERT_TRUE(XSession::setLayout(QStringLiteral("us -variant basic")));
        client.chord({KEY_LEFTSHIFT});
    }
    void TearDown() override { EXPECT_TRUE(XSession::setLayout(QStringLiteral("us -variant basic"))); }

    /// The presses of keys other than modifiers that the window got.
    std::vector<std::pair<unsigned long, unsigned int>> pasted(XClient& window) {
        std::vector<std::pair<unsigned long, unsigned int>> chords;
        EXPECT_TRUE(eventually([&] {
            for (const XClient::Key& key : window.takeKeys()) {
                if (key.isPress && (key.symbol < 0xffe0 || key.symbol > 0xffef))
                    chords.emplace_back(key.symbol, key.state & modifiers);
            }
            return !chords.empty();
        }));
        return chords;
    }
    using Chords = std::vector<std::pair<unsigned long, unsigned int>>;

    /// What an editor gets under that layout.
    Chords pastedUnder(const QString& layout) {
        XClient editor;
        EXPECT_TRUE(editor.open("edit", "Editor"));
        EXPECT_TRUE(XSession::setLayout(layout));
        target.pressPaste();
        return pasted(editor);
    }

    std::optional<bool> regained() {
        std::optional<bool> result;
        auto task = target.regainFocus();
        task.then([&result](bool value) { result = value; });
        EXPECT_TRUE(eventually([&] { return result.has_value(); }));
        return result;
    }

    std::chrono::steady_clock::time_point now = std::chrono::steady_clock::now();
    bool primaryWorks = true;
    int primaryOffers = 0;
    QStringList userTerminals;
    std::shared_ptr<XlibConnection> connection = XlibConnection::create().value();
    std::shared_ptr<X11Focus> focus = std::make_shared<X11Focus>(connection, [this] { return now; });
    X11PasteTarget target{connection,
                          focus,
                          {[this] {
                               ++primaryOffers;
                               return primaryWorks;
                           },
                           [this] { return userTerminals; }, std::chrono::milliseconds(200)}};
    X11PanelSurface surface{connection, focus};
    XClient client;
};

} // namespace

TEST_F(X11PasteTargetTest, AnEditorGetsCtrlV) {
    XClient editor;
    ASSERT_TRUE(editor.open("edit", "Editor"));
    EXPECT_TRUE(target.isTrusted());
    target.pressPaste();
    EXPECT_EQ(pasted(editor), (Chords{{symbolV, control}}));
    EXPECT_EQ(primaryOffers, 0);
}

namespace {

/// Keys that reach all windows of a session, once that is allowed.
class PermittedKeys final : public KeyInjector {
public:
    [[nodiscard]] bool isReady() const override { return isAllowed; }
    void requestPermission() override { ++requests; }
    [[nodiscard]] QCoro::Task<bool> prepare() override { return answering(isAllowed && isThere); }
    void press(const std::vector<Modifier>& held, quint32 evdevCode) override {
        for (const Modifier& modifier : held)
            pressed.push_back(modifier.evdevCode);
        pressed.push_back(evdevCode);
    }

    bool isAllowed = false;
    bool isThere = true;
    int requests = 0;
    std::vector<quint32> pressed;
};

} // namespace

TEST_F(X11PasteTargetTest, InASessionOfWaylandKeysNeedAPermissionUnlessAnX11ProgramIsPastedInto) {
    const auto keys = std::make_shared<PermittedKeys>();
    X11PasteTarget::Options options;
    options.everywhere = keys;
    X11PasteTarget mixed(connection, focus, options);
    EXPECT_FALSE(mixed.isTrusted());
    mixed.requestTrust();
    EXPECT_EQ(keys->requests, 1);

    XClient editor;
    ASSERT_TRUE(editor.open("edit", "Editor"));
    focus->remember();
    EXPECT_TRUE(mixed.isTrusted());
    mixed.pressPaste();
    EXPECT_EQ(pasted(editor), (Chords{{symbolV, control}}));
    EXPECT_EQ(keys->pressed, std::vector<quint32>());
    focus->forget();

    keys->isAllowed = true;
    EXPECT_TRUE(mixed.isTrusted());
    EXPECT_TRUE(awaited(mixed.regainFocus()));
    mixed.pressPaste();
    EXPECT_EQ(keys->pressed, (std::vector<quint32>{KEY_LEFTCTRL, KEY_V}));
    keys->isThere = false;
    EXPECT_FALSE(awaited(mixed.regainFocus())) << "no session, no keys";
}

TEST_F(X11PasteTargetTest, ATerminalGetsShiftInsertAndThePrimarySelection) {
    XClient terminal;
    ASSERT_TRUE(terminal.open("xterm", "XTerm"));
    target.pressPaste();
    EXPECT_EQ(pasted(terminal), (Chords{{symbolInsert, shift}}));
    EXPECT_EQ(primaryOffers, 1);
}

TEST_F(X11PasteTargetTest, WithoutThePrimarySelectionATerminalGetsItsClipboardChord) {
    primaryWorks = false;
    XClient terminal;
    ASSERT_TRUE(terminal.open("xterm", "XTerm"));
    target.pressPaste();
    EXPECT_EQ(pasted(terminal), (Chords{{symbolV, control | shift}}));
}

TEST_F(X11PasteTargetTest, TheUsersOwnTerminalsCount) {
    userTerminals = {QStringLiteral("homemade")};
    XClient terminal;
    ASSERT_TRUE(terminal.open("x", "HomeMade"));
    target.pressPaste();
    EXPECT_EQ(pasted(terminal), (Chords{{symbolInsert, shift}}));
}

TEST_F(X11PasteTargetTest, KeysThatAreStillHeldDoNotSpoilTheChord) {
    XClient editor;
    ASSERT_TRUE(editor.open("edit", "Editor"));
    for (const unsigned int code : {KEY_LEFTCTRL, KEY_LEFTMETA, KEY_V})
        client.press(code);
    EXPECT_EQ(pasted(editor).size(), 1U);
    target.pressPaste();
    EXPECT_EQ(pasted(editor), (Chords{{symbolV, control}}));
    for (const unsigned int code : {KEY_V, KEY_LEFTMETA, KEY_LEFTCTRL})
        client.release(code);
    client.chord({KEY_K});
    EXPECT_EQ(pasted(editor), (Chords{{symbolK, 0}}));
}

TEST_F(X11PasteTargetTest, TheChordIsOnTheKeyThatTypesV) {
    EXPECT_EQ(pastedUnder(QStringLiteral("us -variant dvorak")), (Chords{{symbolV, control}}));
}

TEST_F(X11PasteTargetTest, WithoutAVTheChordIsOnItsPlace) {
    EXPECT_EQ(pastedUnder(QStringLiteral("ru")), (Chords{{symbolEm, control}}));
}

TEST_F(X11PasteTargetTest, AForeignKeyboardGrabIsSecureInput) {
    EXPECT_FALSE(awaited(target.isSecureInput()));
    ASSERT_TRUE(client.grabKeyboard());
    EXPECT_TRUE(awaited(target.isSecureInput()));
    client.ungrabKeyboard();
    EXPECT_FALSE(awaited(target.isSecureInput()));
    EXPECT_TRUE(client.grabKeyboard());
}

TEST_F(X11PasteTargetTest, APasswordFieldOfTheProgramInFrontIsSecureInput) {
    XClient editor;
    ASSERT_TRUE(editor.open("edit", "Editor", 4711));
    std::vector<qint64> asked;
    X11PasteTarget::Options options;
    options.isPasswordField = [&asked](qint64 process) {
        asked.push_back(process);
        return answering(asked.size() == 1);
    };
    X11PasteTarget careful{connection, focus, std::move(options)};
    EXPECT_TRUE(awaited(careful.isSecureInput()));
    EXPECT_FALSE(awaited(careful.isSecureInput()));
    EXPECT_EQ(asked, (std::vector<qint64>{4711, 4711}));
    ASSERT_TRUE(client.grabKeyboard());
    EXPECT_TRUE(awaited(careful.isSecureInput()));
    EXPECT_EQ(asked.size(), 2U);
    client.ungrabKeyboard();
}

TEST_F(X11PasteTargetTest, AfterThePanelTheTargetHasTheKeyboardAtOnce) {
    XClient editor;
    ASSERT_TRUE(editor.open("edit", "Editor"));
    QWindow panel;
    surface.adopt(&panel);
    surface.present(&panel, QRect(300, 200, 200, 100));
    surface.dismiss(&panel);
    auto task = target.regainFocus();
    EXPECT_TRUE(task.isReady());
    EXPECT_EQ(regained(), true);
    target.pressPaste();
    EXPECT_EQ(pasted(editor), (Chords{{symbolV, control}}));
}

TEST_F(X11PasteTargetTest, NothingIsTypedWhileThePanelHasTheKeyboard) {
    XClient editor;
    ASSERT_TRUE(editor.open("edit", "Editor"));
    QWindow panel;
    surface.adopt(&panel);
    surface.present(&panel, QRect(300, 200, 200, 100));
    EXPECT_EQ(regained(), false);
    surface.dismiss(&panel);
}

TEST_F(X11PasteTargetTest, ALateReturnIsWaitedFor) {
    XClient editor;
    ASSERT_TRUE(editor.open("edit", "Editor"));
    QWindow panel;
    surface.adopt(&panel);
    surface.present(&panel, QRect(300, 200, 200, 100));
    std::optional<bool> result;
    auto task = target.regainFocus();
    task.then([&result](bool value) { result = value; });
    EXPECT_FALSE(result.has_value());
    surface.dismiss(&panel);
    EXPECT_TRUE(eventually([&] { return result == true; }));
}

TEST_F(X11PasteTargetTest, ATargetThatWasClosedGetsNothing) {
    XClient other;
    ASSERT_TRUE(other.open("other", "Other"));
    XClient editor;
    ASSERT_TRUE(editor.open("edit", "Editor"));
    QWindow panel;
    surface.adopt(&panel);
    surface.present(&panel, QRect(300, 200, 200, 100));
    editor.close();
    surface.dismiss(&panel);
    EXPECT_EQ(regained(), false);
}

TEST_F(X11PasteTargetTest, AnotherWindowIsNoTargetUntilTheUserHasMovedOn) {
    XClient editor;
    ASSERT_TRUE(editor.open("edit", "Editor"));
    XClient other;
    ASSERT_TRUE(other.open("other", "Other"));
    editor.focus();
    ASSERT_TRUE(eventually([&] { return editor.hasFocus(); }));
    QWindow panel;
    surface.adopt(&panel);
    surface.present(&panel, QRect(300, 200, 200, 100));
    surface.dismiss(&panel);
    other.focus();
    ASSERT_TRUE(eventually([&] { return other.hasFocus(); }));
    EXPECT_EQ(regained(), false);
    now += std::chrono::seconds(5);
    EXPECT_EQ(regained(), true);
}

TEST_F(X11PasteTargetTest, WithoutAPanelWhoeverHasTheKeyboardIsTheTarget) {
    XClient editor;
    ASSERT_TRUE(editor.open("edit", "Editor"));
    EXPECT_EQ(regained(), true);
}

} // namespace vellumry
