// SPDX-License-Identifier: GPL-3.0-or-later
#include "settings/ShortcutRecorder.h"

#include "support/FakeKeyboardLayout.h"

#include <gtest/gtest.h>

namespace vellumry {
namespace {

constexpr quint32 scanOfA = 38;
constexpr quint32 scanOfV = 55;
constexpr int none = Qt::NoModifier;
constexpr int controlKey = Qt::ControlModifier;

class ShortcutRecorderTest : public ::testing::Test {
protected:
    ShortcutRecorderTest() { layout.scanCodes = {{scanOfA, KeyCode::a}, {scanOfV, KeyCode::v}}; }
    [[nodiscard]] ShortcutRecorder::Hooks hooks() {
        return {
            [this](const Shortcut& shortcut) { events.append(QStringLiteral("change ") + shortcut.display(layout)); },
            [this](bool isRecording) { events.append(isRecording ? QStringLiteral("on") : QStringLiteral("off")); },
            [this] { events.append(QStringLiteral("beep")); }};
    }
    FakeKeyboardLayout layout;
    QStringList events;
    ShortcutRecorder recorder{Shortcut::openPanelDefault(), layout, hooks()};
};

TEST_F(ShortcutRecorderTest, TakesTheKeysThatArePressedAndThenRests) {
    recorder.toggle();
    EXPECT_EQ(recorder.title(), QStringLiteral("Press new shortcut…"));
    EXPECT_TRUE(recorder.press(Qt::Key_Control, controlKey, 37)) << "the modifier alone is used up without a beep";
    EXPECT_TRUE(recorder.press(Qt::Key_A, controlKey, scanOfA));
    EXPECT_EQ(events, QStringList({QStringLiteral("on"), QStringLiteral("off"), QStringLiteral("change ⌘A")}));
    EXPECT_EQ(recorder.title(), QStringLiteral("⌘A"));
    EXPECT_FALSE(recorder.press(Qt::Key_A, controlKey, scanOfA)) << "no recording, so the key is the window's";
}

TEST_F(ShortcutRecorderTest, TheLettersAreThoseOfTheLayout) {
    layout.characters[KeyCode::a] = QStringLiteral("q");
    recorder.toggle();
    recorder.press(Qt::Key_Q, controlKey, scanOfA);
    EXPECT_EQ(recorder.title(), QStringLiteral("⌘Q"));
    EXPECT_EQ(recorder.shortcut().keyCode, KeyCode::a);
}

TEST_F(ShortcutRecorderTest, EscapeLeavesItAsItWasAndGivesTheKeysBack) {
    recorder.toggle();
    recorder.press(Qt::Key_Escape, none, 9);
    EXPECT_EQ(events, QStringList({QStringLiteral("on"), QStringLiteral("off")}));
    EXPECT_EQ(recorder.shortcut(), Shortcut::openPanelDefault());
}

TEST_F(ShortcutRecorderTest, BackspaceAndDeleteBringTheOriginalBack) {
    for (const int key : {int(Qt::Key_Backspace), int(Qt::Key_Delete)}) {
        recorder.setShortcut({KeyCode::a, Modifier::command});
        events.clear();
        recorder.toggle();
        recorder.press(key, none, 22);
        EXPECT_EQ(recorder.shortcut(), Shortcut::openPanelDefault());
        EXPECT_EQ(events.last(), QStringLiteral("change ⌃⌘V"));
    }
}

TEST_F(ShortcutRecorderTest, AKeyWithShiftAloneBeepsAndIsWaitedOn) {
    recorder.toggle();
    recorder.press(Qt::Key_A, Qt::ShiftModifier, scanOfA);
    EXPECT_EQ(events, QStringList({QStringLiteral("on"), QStringLiteral("beep")}));
    EXPECT_TRUE(recorder.isRecording());
    EXPECT_TRUE(recorder.wasRefused());
    recorder.press(Qt::Key_V, Qt::AltModifier, scanOfV);
    EXPECT_EQ(events.last(), QStringLiteral("change ⌥V"));
    EXPECT_FALSE(recorder.wasRefused());
}

TEST_F(ShortcutRecorderTest, AKeyWithoutAPlaceBeeps) {
    recorder.toggle();
    recorder.press(Qt::Key_VolumeUp, controlKey, 123);
    EXPECT_EQ(events.last(), QStringLiteral("beep"));
    EXPECT_TRUE(recorder.isRecording());
}

TEST_F(ShortcutRecorderTest, TheSecondPressOfTheButtonEndsIt) {
    recorder.toggle();
    recorder.toggle();
    recorder.stop();
    EXPECT_EQ(events, QStringList({QStringLiteral("on"), QStringLiteral("off")}));
}

} // namespace
} // namespace vellumry
