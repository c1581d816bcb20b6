// SPDX-License-Identifier: GPL-3.0-or-later
#include "paste/Shortcut.h"

#include "support/FakeKeyboardLayout.h"

#include <gtest/gtest.h>

namespace vellumry {

namespace {

struct KeyName {
    quint32 keyCode;
    const char* name;
};

} // namespace

TEST(Shortcut, RecordingNeedsMoreThanShift) {
    EXPECT_EQ(Shortcut::create(0, 0), std::nullopt);
    EXPECT_EQ(Shortcut::create(0, eventflag::shift), std::nullopt);
    EXPECT_EQ(Shortcut::create(0, eventflag::option), (Shortcut{0, 0x800}));
    EXPECT_EQ(Shortcut::create(0, eventflag::control), (Shortcut{0, 0x1000}));
    EXPECT_EQ(Shortcut::create(0, eventflag::command), (Shortcut{0, 0x100}));
}

TEST(Shortcut, RecordingRefusesModifierKeys) {
    for (const quint16 keyCode : {55, 54, 56, 60, 58, 61, 59, 62, 57, 63})
        EXPECT_EQ(Shortcut::create(keyCode, eventflag::control), std::nullopt) << keyCode;
}

TEST(Shortcut, RecordingKeepsEachModifierAndDropsTheRest) {
    constexpr quint32 all = eventflag::shift | eventflag::control | eventflag::option | eventflag::command;
    EXPECT_EQ(Shortcut::create(9, all | 0x10000 | 0x108), (Shortcut{9, 0x1B00}));
}

TEST(Shortcut, DefaultsAreTheDocumentedKeys) {
    EXPECT_EQ(Shortcut::openPanelDefault(), (Shortcut{9, 0x1100}));
    EXPECT_EQ(Shortcut::pasteStackDefault(), (Shortcut{1, 0x1100}));
    const quint32 digits[] = {18, 19, 20, 21, 23, 22, 26, 28, 25};
    for (int number = 1; number <= 9; ++number) {
        EXPECT_EQ(Shortcut::pinned(number), (Shortcut{digits[number - 1], 0x1800}));
        EXPECT_EQ(digitOfKeyCode(keyCodeOfDigit(number)), number);
    }
    EXPECT_EQ(digitOfKeyCode(29), std::nullopt);
}

TEST(Shortcut, SurvivesItsJson) {
    const Shortcut shortcut{200, 0x1B00};
    EXPECT_EQ(Shortcut::fromStored(shortcut.toJson()), shortcut);
    EXPECT_EQ(Shortcut::fromStored(QByteArray(R"({"modifiers":4352,"keyCode":9})")), Shortcut::openPanelDefault());
    EXPECT_EQ(Shortcut::fromStored(QStringLiteral(R"({"modifiers":4352,"keyCode":9})")), Shortcut::openPanelDefault())
        << "as a hand writes it";
    EXPECT_EQ(Shortcut::fromStored(QStringLiteral("ctrl+v")), std::nullopt);
    EXPECT_EQ(Shortcut::fromStored(Shortcut{0xFFFFFFFF, 0}.toJson()), (Shortcut{0xFFFFFFFF, 0}));
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
    EXPECT_EQ((Shortcut{9, 0x1B00}.display(layout)), QStringLiteral("⌃⌥⇧⌘V"));
    EXPECT_EQ((Shortcut{49, 0x1100}.display(layout)), QStringLiteral("⌃⌘Space"));
    EXPECT_EQ((Shortcut{20, 0x1800}.display(layout)), QStringLiteral("⌃⌥3"));
}

TEST(Shortcut, NamesTheKeysThatTypeNothing) {
    const FakeKeyboardLayout layout;
    const KeyName names[] = {{36, "↩"},   {48, "⇥"},   {51, "⌫"},    {53, "⎋"},    {96, "F5"},
                             {97, "F6"},  {115, "↖"},  {117, "⌦"},   {98, "F7"},   {99, "F3"},
                             {100, "F8"}, {101, "F9"}, {103, "F11"}, {109, "F10"}, {111, "F12"},
                             {116, "⇞"},  {118, "F4"}, {119, "↘"},   {120, "F2"},  {121, "⇟"},
                             {122, "F1"}, {123, "←"},  {124, "→"},   {125, "↓"},   {126, "↑"}};
    for (const auto& [keyCode, name] : names)
        EXPECT_EQ((Shortcut{keyCode, 0}.display(layout)), QString::fromUtf8(name));
}

TEST(Shortcut, ShowsTheCodeOfAKeyThatTheLayoutDoesNotKnow) {
    FakeKeyboardLayout layout;
    EXPECT_EQ((Shortcut{200, 0x100}.display(layout)), QStringLiteral("⌘#200"));
    layout.characters[5] = QStringLiteral(" \n");
    EXPECT_EQ((Shortcut{5, 0x100}.display(layout)), QStringLiteral("⌘#5"));
    layout.characters[6] = QStringLiteral("ß");
    EXPECT_EQ((Shortcut{6, 0x100}.display(layout)), QStringLiteral("⌘SS"));
}

} // namespace vellumry
