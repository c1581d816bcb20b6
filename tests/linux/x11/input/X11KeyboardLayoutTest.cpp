// SPDX-License-Identifier: GPL-3.0-or-later
#include "linux/x11/keys/X11KeyboardLayout.h"

#include "linux/x11/input/XSession.h"

#include <gtest/gtest.h>
#include <linux/input-event-codes.h>

namespace vellumry {

namespace {

class X11KeyboardLayoutTest : public ::testing::Test {
protected:
    void SetUp() override { ASSERT_NE(connection, nullptr); }
    void TearDown() override { EXPECT_TRUE(XSession::setLayout(QStringLiteral("us -variant basic"))); }

    std::shared_ptr<XlibConnection> connection = XlibConnection::create().value();
    X11KeyboardLayout layout{connection};
};

} // namespace

TEST_F(X11KeyboardLayoutTest, AUSKeyboardTypesWhatItSays) {
    ASSERT_TRUE(XSession::setLayout(QStringLiteral("us")));
    EXPECT_EQ(layout.keyCodeFor(u'v'), KeyCode::v);
    EXPECT_EQ(layout.keyCodeFor(u'V'), KeyCode::v);
    EXPECT_EQ(layout.charactersFor(KeyCode::v), QStringLiteral("v"));
    EXPECT_EQ(layout.charactersFor(KeyCode::digit1), QStringLiteral("1"));
    EXPECT_EQ(layout.charactersFor(KeyCode(43)), QStringLiteral(","));
}

TEST_F(X11KeyboardLayoutTest, KeysThatTypeNothingVisibleHaveNoCharacters) {
    EXPECT_EQ(layout.charactersFor(KeyCode::enter), std::nullopt);
    EXPECT_EQ(layout.charactersFor(KeyCode::left), std::nullopt);
    EXPECT_EQ(layout.charactersFor(KeyCode::command), std::nullopt);
    EXPECT_EQ(layout.charactersFor(KeyCode(200)), std::nullopt);
    EXPECT_EQ(layout.keyCodeFor(u'ß'), std::nullopt);
}

TEST_F(X11KeyboardLayoutTest, LettersKeepTheirCodesWhereverTheirKeysAre) {
    ASSERT_TRUE(XSession::setLayout(QStringLiteral("us -variant dvorak")));
    EXPECT_EQ(layout.keyCodeFor(u'v'), KeyCode::v);
    EXPECT_EQ(layout.charactersFor(KeyCode::v), QStringLiteral("v"));
    EXPECT_EQ(layout.keyCodeOfScanCode(KEY_DOT + 8), KeyCode::v);
    EXPECT_EQ(layout.keyCodeOfScanCode(KEY_V + 8), KeyCode::k);
}

TEST_F(X11KeyboardLayoutTest, DigitsKeepTheirPlaces) {
    ASSERT_TRUE(XSession::setLayout(QStringLiteral("fr")));
    EXPECT_EQ(layout.charactersFor(KeyCode::digit1), QStringLiteral("&"));
    EXPECT_EQ(layout.keyCodeFor(u'a'), KeyCode::a);
    EXPECT_EQ(layout.keyCodeOfScanCode(KEY_Q + 8), KeyCode::a);
}

TEST_F(X11KeyboardLayoutTest, ASecondLatinLayoutCountsWhereTheFirstHasNoLatinLetters) {
    ASSERT_TRUE(XSession::setLayout(QStringLiteral("ru,us -variant ,")));
    EXPECT_EQ(layout.keyCodeFor(u'v'), KeyCode::v);
    EXPECT_EQ(layout.charactersFor(KeyCode::v), QStringLiteral("v"));
    ASSERT_TRUE(XSession::setLayout(QStringLiteral("ru")));
    EXPECT_EQ(layout.keyCodeFor(u'v'), std::nullopt);
    EXPECT_EQ(layout.charactersFor(KeyCode::v), QString(QChar(0x043c)));
}

} // namespace vellumry
