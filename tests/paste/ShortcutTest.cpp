// SPDX-License-Identifier: GPL-3.0-or-later
#include "paste/Shortcut.h"

#include "support/FakeKeyboardLayout.h"

#include <gtest/gtest.h>

namespace vellumry {

namespace {

struct KeyName {
    quint32 number;
    const char* name;
};

} // namespace

TEST(Shortcut, RecordingNeedsMoreThanShift) {
    EXPECT_EQ(Shortcut::create(KeyCode::a, {}), std::nullopt);
    EXPECT_EQ(Shortcut::create(KeyCode::a, Modifier::shift), std::nullopt);
    EXPECT_EQ(Shortcut::create(KeyCode::a, Modifier::option), (Shortcut{KeyCode::a, Modifier::option}));
    EXPECT_EQ(Shortcut::create(KeyCode::a, Modifier::control), (Shortcut{KeyCode::a, Modifier::control}));
    EXPECT_EQ(Shortcut::create(KeyCode::a, Modifier::command), (Shortcut{KeyCode::a, Modifier::command}));
}

TEST(Shortcut, RecordingRefusesModifierKeys) {
    for (const quint32 number : {55, 54, 56, 60, 58, 61, 59, 62, 57, 63})
        EXPECT_EQ(Shortcut::create(KeyCode(number), Modifier::control), std::nullopt) << number;
}

TEST(Shortcut, RecordingKeepsEachModifier) {
    const Modifiers all = Modifier::shift | Modifier::control | Modifier::option | Modifier::command;
    EXPECT_EQ(Shortcut::create(KeyCode::v, all), (Shortcut{KeyCode::v, all}));
}

TEST(Shortcut, DefaultsAreTheDocumentedKeys) {
    EXPECT_EQ(Shortcut::openPanelDefault(), (Shortcut{KeyCode::v, Modifier::control | Modifier::command}));
    EXPECT_EQ(Shortcut::pasteStackDefault(), (Shortcut{KeyCode::s, Modifier::control | Modifier::command}));
    const quint32 digits[] = {18, 19, 20, 21, 23, 22, 26, 28, 25};
    for (int number = 1; number <= 9; ++number) {
        EXPECT_EQ(Shortcut::pinned(number),
                  (Shortcut{KeyCode(digits[number - 1]), Modifier::control | Modifier::option}));
        EXPECT_EQ(digitOfKeyCode(keyCodeOfDigit(number)), number);
    }
    EXPECT_EQ(digitOfKeyCode(KeyCode::digit0), std::nullopt);
}

TEST(Shortcut, SurvivesItsJson) {
    const Shortcut shortcut{KeyCode(200), Modifier::control | Modifier::option | Modifier::shift | Modifier::command};
    EXPECT_EQ(Shortcut::fromStored(shortcut.toJson()), shortcut);
    EXPECT_EQ(Shortcut::fromStored(QByteArray(R"({"modifiers":4352,"keyCode":9})")), Shortcut::openPanelDefault());
    EXPECT_EQ(Shortcut::fromStored(QStringLiteral(R"({"modifiers":4352,"keyCode":9})")), Shortcut::openPanelDefault())
        << "as a hand writes it";
    EXPECT_EQ(Shortcut::fromStored(QStringLiteral("ctrl+v")), std::nullopt);
    EXPECT_EQ(Shortcut::fromStored(Shortcut{KeyCode(0xFFFFFFFF), {}}.toJson()), (Shortcut{KeyCode(0xFFFFFFFF), {}}));
}

TEST(Shortcut, FilesHaveEachModifierAsItsBit) {
    using enum Modifier;
    const std::pair<Modifiers, int> stored[] = {
        {command, 0x100}, {shift, 0x200}, {option, 0x800}, {control, 0x1000}, {control | command, 0x1100}};
    for (const auto& [modifiers, bits] : stored) {
        const QByteArray json = QByteArray(R"({"keyCode":46,"modifiers":)") + QByteArray::number(bits) + '}';
        EXPECT_EQ((Shortcut{KeyCode::m, modifiers}.toJson()), json);
        EXPECT_EQ(Shortcut::fromStored(json), (Shortcut{KeyCode::m, modifiers}));
    }
}

TEST(Shortcut, BitsOfAFileThatAreNoModifierStayInIt) {
    const QByteArray json(R"({"keyCode":9,"modifiers":5376})"); // 0x1500
    const auto shortcut = Shortcut::fromStored(json);
    ASSERT_TRUE(shortcut);
    EXPECT_EQ(shortcut->toJson(), json);
    EXPECT_EQ(shortcut->display(FakeKeyboardLayout()), QStringLiteral("⌃⌘V"));
}

TEST(Shortcut, ReadsAsAbsentWhenThePreferenceIsNoShortcut) {
    EXPECT_EQ(Shortcut::fromStored({}), std::nullopt);
    for (const auto* bytes : {"", "{}", "[9,4352]", R"({"keyCode":9})", R"({"keyCode":-1,"modifiers":0})",
                              R"({"keyCode":"9","modifiers":0})", R"({"keyCode":4294967296,"modifiers":0})",
                              R"({"keyCode":1.5,"modifiers":0})", "\xff\x00"})
        EXPECT_EQ(Shortcut::fromStored(QByteArray(bytes)), std::nullopt) << bytes;
}

TEST(Shortcut, ShowsModifiersInAFixedOrderBeforeTheKey) {
    const FakeKeyboardLayout layout;
    EXPECT_EQ((Shortcut{KeyCode::v, Modifier::control | Modifier::option | Modifier::shift | Modifier::command}.display(
                  layout)),
              QStringLiteral("⌃⌥⇧⌘V"));
    EXPECT_EQ((Shortcut{KeyCode::space, Modifier::control | Modifier::command}.display(layout)),
              QStringLiteral("⌃⌘Space"));
    EXPECT_EQ((Shortcut{KeyCode::digit3, Modifier::control | Modifier::option}.display(layout)), QStringLiteral("⌃⌥3"));
}

TEST(Shortcut, NamesTheKeysThatTypeNothing) {
    const FakeKeyboardLayout layout;
    const KeyName names[] = {{36, "↩"},   {48, "⇥"},   {51, "⌫"},    {53, "⎋"},    {96, "F5"},
                             {97, "F6"},  {115, "↖"},  {117, "⌦"},   {98, "F7"},   {99, "F3"},
                             {100, "F8"}, {101, "F9"}, {103, "F11"}, {109, "F10"}, {111, "F12"},
                             {116, "⇞"},  {118, "F4"}, {119, "↘"},   {120, "F2"},  {121, "⇟"},
                             {122, "F1"}, {123, "←"},  {124, "→"},   {125, "↓"},   {126, "↑"}};
    for (const auto& [number, name] : names)
        EXPECT_EQ((Shortcut{KeyCode(number), {}}.display(layout)), QString::fromUtf8(name));
}

TEST(Shortcut, ShowsTheCodeOfAKeyThatTheLayoutDoesNotKnow) {
    FakeKeyboardLayout layout;
    EXPECT_EQ((Shortcut{KeyCode(200), Modifier::command}.display(layout)), QStringLiteral("⌘#200"));
    layout.characters[KeyCode::g] = QStringLiteral(" \n");
    EXPECT_EQ((Shortcut{KeyCode::g, Modifier::command}.display(layout)), QStringLiteral("⌘#5"));
    layout.characters[KeyCode::z] = QStringLiteral("ß");
    EXPECT_EQ((Shortcut{KeyCode::z, Modifier::command}.display(layout)), QStringLiteral("⌘SS"));
}

} // namespace vellumry
