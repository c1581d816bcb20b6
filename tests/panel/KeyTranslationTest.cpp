// SPDX-License-Identifier: GPL-3.0-or-later
#include "panel/KeyTranslation.h"
#include "paste/Shortcut.h"

#include <gtest/gtest.h>

using namespace vellumry;
using Command = PanelModel::Command;

namespace {

struct Row {
    const char* name;
    int key;
    Qt::KeyboardModifiers modifiers;
    bool isFieldEmpty;
    KeyMeaning meaning;
};

class KeyTranslation : public ::testing::TestWithParam<Row> {};

KeyMeaning command(Command which) {
    return {which, std::nullopt};
}
KeyMeaning chord(KeyCode keyCode, Modifiers modifiers = Modifier::command) {
    return {std::nullopt, KeyMeaning::Chord{keyCode, modifiers}};
}

const Row rows[] = {
    {"Up", Qt::Key_Up, Qt::NoModifier, false, command(Command::up)},
    {"KeypadDown", Qt::Key_Down, Qt::KeypadModifier, false, command(Command::down)},
    {"ShiftUpExtends", Qt::Key_Up, Qt::ShiftModifier, false, command(Command::extendUp)},
    {"ShiftDownExtends", Qt::Key_Down, Qt::ShiftModifier, false, command(Command::extendDown)},
    {"PageUp", Qt::Key_PageUp, Qt::NoModifier, false, command(Command::pageUp)},
    {"PageDown", Qt::Key_PageDown, Qt::NoModifier, false, command(Command::pageDown)},
    {"Return", Qt::Key_Return, Qt::NoModifier, false, command(Command::enter)},
    {"KeypadEnter", Qt::Key_Enter, Qt::KeypadModifier, false, command(Command::enter)},
    {"ShiftReturnIsPlain", Qt::Key_Return, Qt::ShiftModifier, false, command(Command::enterPlain)},
    {"Escape", Qt::Key_Escape, Qt::NoModifier, true, command(Command::escape)},
    {"Tab", Qt::Key_Tab, Qt::NoModifier, false, command(Command::nextFilter)},
    {"Backtab", Qt::Key_Backtab, Qt::ShiftModifier, false, command(Command::previousFilter)},
    {"LeftInAnEmptyField", Qt::Key_Left, Qt::NoModifier, true, command(Command::previousFilter)},
    {"LeftWithTextMovesTheCaret", Qt::Key_Left, Qt::NoModifier, false, {}},
    {"RightInAnEmptyField", Qt::Key_Right, Qt::NoModifier, true, command(Command::nextFilter)},
    {"HomeWithText", Qt::Key_Home, Qt::NoModifier, false, command(Command::home)},
    {"EndWithText", Qt::Key_End, Qt::NoModifier, false, command(Command::end)},
    {"ShiftHomeSelectsText", Qt::Key_Home, Qt::ShiftModifier, false, {}},
    {"AltReturnIsPlain", Qt::Key_Return, Qt::AltModifier, false, command(Command::enterPlain)},
    {"HomeInAnEmptyField", Qt::Key_Home, Qt::NoModifier, true, command(Command::home)},
    {"CtrlEnd", Qt::Key_End, Qt::ControlModifier, false, command(Command::end)},
    {"CtrlDigit", Qt::Key_3, Qt::ControlModifier, false, chord(KeyCode::digit3)},
    {"CtrlP", Qt::Key_P, Qt::ControlModifier, false, chord(KeyCode::p)},
    {"CtrlC", Qt::Key_C, Qt::ControlModifier, false, chord(KeyCode::c)},
    {"CtrlBackspaceInAnEmptyField", Qt::Key_Backspace, Qt::ControlModifier, true, chord(KeyCode::backspace)},
    {"CtrlBackspaceWithTextRubsOutAWord", Qt::Key_Backspace, Qt::ControlModifier, false, {}},
    {"CtrlDelete", Qt::Key_Delete, Qt::ControlModifier, false, chord(KeyCode::forwardDelete)},
    {"DeleteInAnEmptyField", Qt::Key_Delete, Qt::NoModifier, true, chord(KeyCode::forwardDelete)},
    {"DeleteWithTextBelongsToTheText", Qt::Key_Delete, Qt::NoModifier, false, {}},
    {"CtrlZ", Qt::Key_Z, Qt::ControlModifier, false, chord(KeyCode::z)},
    {"CtrlShiftZKeepsItsFlags", Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier, false,
     chord(KeyCode::z, Modifier::command | Modifier::shift)},
    {"CtrlShiftPKeepsItsFlags", Qt::Key_P, Qt::ControlModifier | Qt::ShiftModifier, false,
     chord(KeyCode::p, Modifier::command | Modifier::shift)},
    {"CtrlVBelongsToTheText", Qt::Key_V, Qt::ControlModifier, false, {}},
    {"ALetterBelongsToTheText", Qt::Key_P, Qt::NoModifier, false, {}},
    {"ReturnWhileTheShortcutIsHeld", Qt::Key_Return, Qt::ControlModifier | Qt::MetaModifier, false,
     command(Command::enter)},
    {"DownWhileTheShortcutIsHeld", Qt::Key_Down, Qt::ControlModifier | Qt::MetaModifier, false, command(Command::down)},
    {"AltUpIsNothing", Qt::Key_Up, Qt::AltModifier, false, {}},
};

} // namespace

TEST_P(KeyTranslation, GivesItsMeaning) {
    const Row& row = GetParam();
    EXPECT_TRUE(meaningOf(row.key, row.modifiers, row.isFieldEmpty) == row.meaning);
}

TEST(KeyTranslationByPlace, DigitsThatNeedShiftCountByTheirPlace) {
    const auto second = [] { return std::optional(KeyCode::digit2); };
    EXPECT_TRUE(meaningOf(Qt::Key_Eacute, Qt::ControlModifier, false, second) == chord(KeyCode::digit2));
    EXPECT_TRUE(meaningOf(Qt::Key_Eacute, Qt::NoModifier, false, second) == KeyMeaning());
}

TEST(KeyTranslationByPlace, LettersOfOtherScriptsCountByTheirPlace) {
    constexpr int cyrillicZe = 0x0417;
    EXPECT_TRUE(meaningOf(cyrillicZe, Qt::ControlModifier, false, [] { return std::optional(KeyCode::p); }) ==
                chord(KeyCode::p));
}

TEST(KeyTranslationByPlace, ALatinLetterCountsWhereverItIs) {
    const auto placeOfP = [] { return std::optional(KeyCode::p); };
    EXPECT_TRUE(meaningOf(Qt::Key_L, Qt::ControlModifier, false, placeOfP) == KeyMeaning());
    EXPECT_TRUE(meaningOf(Qt::Key_C, Qt::ControlModifier, false, placeOfP) == chord(KeyCode::c));
}

TEST(KeyTranslationByPlace, KeysThatTypeNothingAreNotAskedForTheirPlace) {
    const auto place = []() -> std::optional<KeyCode> {
        ADD_FAILURE();
        return KeyCode::digit1;
    };
    EXPECT_TRUE(meaningOf(Qt::Key_Control, Qt::ControlModifier, false, place) == KeyMeaning());
    EXPECT_TRUE(meaningOf(Qt::Key_3, Qt::ControlModifier, false, place) == chord(KeyCode::digit3));
}

TEST(Modifiers, EachHasItsNameInQt) {
    EXPECT_EQ(modifiersOf(Qt::ControlModifier), Modifiers(Modifier::command));
    EXPECT_EQ(modifiersOf(Qt::MetaModifier), Modifiers(Modifier::control));
    EXPECT_EQ(modifiersOf(Qt::AltModifier), Modifiers(Modifier::option));
    EXPECT_EQ(modifiersOf(Qt::ShiftModifier | Qt::ControlModifier), Modifier::shift | Modifier::command);
    EXPECT_EQ(modifiersOf(Qt::KeypadModifier | Qt::GroupSwitchModifier), Modifiers());
}

INSTANTIATE_TEST_SUITE_P(Keys, KeyTranslation, ::testing::ValuesIn(rows),
                         [](const ::testing::TestParamInfo<Row>& row) { return std::string(row.param.name); });
