// SPDX-License-Identifier: GPL-3.0-or-later
#include "linux/keys/KeyCodes.h"
#include "linux/keys/KeyPositions.h"

#include <gtest/gtest.h>
#include <linux/input-event-codes.h>
#include <map>
#include <set>
#include <string>

namespace vellumry {

namespace {

/// A layout as the three letter rows of a keyboard, from the key at the left of each.
struct Layout {
    std::u16string top;
    std::u16string home;
    std::u16string bottom;

    [[nodiscard]] std::optional<char16_t> typed(quint32 code) const {
        for (const auto& [first, row] :
             {std::pair(quint32(KEY_Q), &top), {quint32(KEY_A), &home}, {quint32(KEY_Z), &bottom}}) {
            if (code >= first && code < first + row->size())
                return (*row)[code - first];
        }
        return std::nullopt;
    }
    [[nodiscard]] KeyPositions positions() const {
        return KeyPositions([this](quint32 code) { return typed(code); });
    }
};

const Layout us{u"qwertyuiop[]", u"asdfghjkl;'", u"zxcvbnm,./"};
const Layout dvorak{u"',.pyfgcrl/=", u"aoeuidhtns-", u";qjkxbmwvz"};
const Layout french{u"azertyuiop^$", u"qsdfghjklmù", u"wxcvbn,;:!"};
const Layout russian{u"йцукенгшщзхъ", u"фывапролджэ", u"ячсмитьбю."};

} // namespace

TEST(KeyCodes, ShortcutsOfTheProgramAreWhereTheyAreOnAKeyboard) {
    EXPECT_EQ(keycodes::evdevCode(KeyCode::v), quint32(KEY_V));
    EXPECT_EQ(keycodes::evdevCode(KeyCode::s), quint32(KEY_S));
    const std::map<quint32, quint32> digits = {{18, KEY_1}, {19, KEY_2}, {20, KEY_3}, {21, KEY_4}, {23, KEY_5},
                                               {22, KEY_6}, {26, KEY_7}, {28, KEY_8}, {25, KEY_9}};
    for (const auto& [number, code] : digits)
        EXPECT_EQ(keycodes::evdevCode(KeyCode(number)), code);
}

TEST(KeyCodes, NamedKeysAreThoseOfTheKeyNames) {
    const std::map<quint32, quint32> named = {
        {36, KEY_ENTER},   {48, KEY_TAB},     {49, KEY_SPACE}, {51, KEY_BACKSPACE}, {53, KEY_ESC}, {115, KEY_HOME},
        {116, KEY_PAGEUP}, {117, KEY_DELETE}, {119, KEY_END},  {121, KEY_PAGEDOWN}, {122, KEY_F1}, {111, KEY_F12},
        {123, KEY_LEFT},   {124, KEY_RIGHT},  {125, KEY_DOWN}, {126, KEY_UP}};
    for (const auto& [number, code] : named)
        EXPECT_EQ(keycodes::evdevCode(KeyCode(number)), code) << number;
}

TEST(KeyCodes, ModifiersStandWhereTheProgramHasThem) {
    EXPECT_EQ(keycodes::evdevCode(KeyCode::command), quint32(KEY_LEFTCTRL));
    EXPECT_EQ(keycodes::evdevCode(KeyCode::control), quint32(KEY_LEFTMETA));
    EXPECT_EQ(keycodes::evdevCode(KeyCode::option), quint32(KEY_LEFTALT));
    EXPECT_EQ(keycodes::evdevCode(KeyCode::shift), quint32(KEY_LEFTSHIFT));
}

TEST(KeyCodes, BothDirectionsAgreeForEveryKey) {
    std::set<quint32> seen;
    for (const KeyCode key : keycodes::all()) {
        const auto code = keycodes::evdevCode(key);
        if (!code.has_value())
            continue;
        EXPECT_TRUE(seen.insert(*code).second) << std::to_underlying(key);
        EXPECT_EQ(keycodes::keyCode(*code), key);
    }
    EXPECT_GE(seen.size(), 110U);
}

TEST(KeyCodes, WhatIsNoKeyHasNoCode) {
    EXPECT_EQ(keycodes::evdevCode(KeyCode(52)), std::nullopt);
    EXPECT_EQ(keycodes::evdevCode(KeyCode(200)), std::nullopt);
    EXPECT_EQ(keycodes::keyCode(0), std::nullopt);
    EXPECT_EQ(keycodes::keyCode(700), std::nullopt);
}

TEST(KeyCodes, LettersAreThoseOfAUSKeyboard) {
    std::set<char16_t> letters;
    for (const KeyCode key : keycodes::all()) {
        if (const auto letter = keycodes::letter(key)) {
            letters.insert(*letter);
            EXPECT_EQ(us.typed(*keycodes::evdevCode(key)), letter);
        }
    }
    EXPECT_EQ(letters.size(), 26U);
}

TEST(KeyPositions, OnAUSKeyboardEveryKeyIsInItsPlace) {
    for (const KeyCode key : keycodes::all())
        EXPECT_EQ(us.positions().evdevCode(key), keycodes::evdevCode(key));
}

TEST(KeyPositions, ALetterIsTheKeyThatTypesIt) {
    EXPECT_EQ(dvorak.positions().evdevCode(KeyCode::v), quint32(KEY_DOT));
    EXPECT_EQ(dvorak.positions().keyCode(KEY_DOT), KeyCode::v);
    EXPECT_EQ(french.positions().evdevCode(KeyCode::a), quint32(KEY_Q));
    EXPECT_EQ(french.positions().evdevCode(KeyCode::m), quint32(KEY_SEMICOLON));
    EXPECT_EQ(french.positions().evdevCode(KeyCode::v), quint32(KEY_V));
}

TEST(KeyPositions, WithoutLatinLettersKeysKeepTheirPlaces) {
    for (const KeyCode key : keycodes::all())
        EXPECT_EQ(russian.positions().evdevCode(key), keycodes::evdevCode(key));
}

TEST(KeyPositions, EveryKeyHasExactlyOneCodeOnEachLayout) {
    for (const Layout& layout : {us, dvorak, french, russian}) {
        const KeyPositions positions = layout.positions();
        std::set<quint32> codes;
        for (const KeyCode key : keycodes::all()) {
            const auto code = positions.evdevCode(key);
            ASSERT_EQ(code.has_value(), keycodes::evdevCode(key).has_value()) << std::to_underlying(key);
            if (!code.has_value())
                continue;
            EXPECT_TRUE(codes.insert(*code).second) << std::to_underlying(key);
            EXPECT_EQ(positions.keyCode(*code), key);
        }
    }
}

} // namespace vellumry
