// SPDX-License-Identifier: GPL-3.0-or-later
#include "panel/FieldEditing.h"

#include <gtest/gtest.h>

using namespace vellumry;

namespace {

struct Row {
    const char* name;
    const char* before; ///< the caret
    const char* left;
};

class FieldEditing : public ::testing::TestWithParam<Row> {};

const Row rows[] = {
    {"TheOnlyWord", "word", ""},
    {"TheLastWordAndItsBlank", "two words", "two"},
    {"AWordBehindSeveralBlanks", "two   words", "two"},
    {"BlanksBehindTheWordGoWithIt", "two words  ", "two"},
    {"APartOfAWord", "two wo", "two"},
    {"BlanksAlone", "   ", ""},
    {"Nothing", "", ""},
    {"OneSideOfAHyphen", "two-part", "two-"},
    {"AWordOfAnotherScript", "два слова", "два"},
};

} // namespace

TEST_P(FieldEditing, RubsOutAWordWithTheBlankBeforeIt) {
    const QString text = QString::fromUtf8(GetParam().before);
    EXPECT_EQ(text.left(startOfWordToRubOut(text, text.size())), QString::fromUtf8(GetParam().left));
}

TEST(FieldEditingCaret, WhatStandsBehindTheCaretStays) {
    EXPECT_EQ(startOfWordToRubOut(QStringLiteral("one two three"), 7), 3);
    EXPECT_EQ(startOfWordToRubOut(QStringLiteral("one"), 0), 0);
    EXPECT_EQ(startOfWordToRubOut(QStringLiteral("one"), 99), 0) << "beyond the end";
}

INSTANTIATE_TEST_SUITE_P(Words, FieldEditing, ::testing::ValuesIn(rows),
                         [](const ::testing::TestParamInfo<Row>& row) { return std::string(row.param.name); });
