// SPDX-License-Identifier: GPL-3.0-or-later
#include "linux/x11/windows/XSettings.h"

#include <gtest/gtest.h>

namespace vellumry {

namespace {

using xsettings::integerIn;

/// A number, a text, a colour and another number, lowest byte first.
QByteArray property() {
    return QByteArray("\0\0\0\0" // byte order
                      "\7\0\0\0" // serial
                      "\4\0\0\0" // how many
                      "\0\0\7\0Xft/DPI\0\1\0\0\0\0\x80\1\0"
                      "\1\0\15\0Net/ThemeName\0\0\0\2\0\0\0\5\0\0\0Night\0\0\0"
                      "\2\0\4\0Tint\3\0\0\0\1\0\2\0\3\0\4\0"
                      "\0\0\24\0Gtk/EnableAnimations\4\0\0\0\0\0\0\0",
                      12 + 20 + 36 + 20 + 32);
}

} // namespace

TEST(XSettings, FindsANumberBehindValuesOfAllKinds) {
    EXPECT_EQ(integerIn(property(), "Xft/DPI"), 0x18000);
    EXPECT_EQ(integerIn(property(), "Gtk/EnableAnimations"), 0);
}

TEST(XSettings, HasNothingForUnknownNamesAndOtherKinds) {
    EXPECT_EQ(integerIn(property(), "Gtk/Enable"), std::nullopt);
    EXPECT_EQ(integerIn(property(), "Net/ThemeName"), std::nullopt);
    EXPECT_EQ(integerIn(property(), "Tint"), std::nullopt);
    EXPECT_EQ(integerIn(QByteArrayView(), "Xft/DPI"), std::nullopt);
}

TEST(XSettings, ReadsTheHighestByteFirst) {
    const QByteArray big("\1\0\0\0\0\0\0\7\0\0\0\1\0\0\0\7Xft/DPI\0\0\0\0\1\0\1\x80\0", 32);
    EXPECT_EQ(integerIn(big, "Xft/DPI"), 0x18000);
}

TEST(XSettings, ATornPropertyEndsTheSearchAtItsEnd) {
    const QByteArray whole = property();
    for (qsizetype length = 0; length < whole.size(); ++length)
        EXPECT_EQ(integerIn(QByteArrayView(whole).first(length), "Gtk/EnableAnimations"), std::nullopt) << length;
}

TEST(XSettings, ALyingLengthIsNotFollowed) {
    QByteArray lying = property();
    lying[12 + 20 + 24] = '\xFF'; // the text's length
    lying[12 + 20 + 27] = '\xFF';
    EXPECT_EQ(integerIn(lying, "Gtk/EnableAnimations"), std::nullopt);
    QByteArray many = property();
    many[11] = '\x7F';
    EXPECT_EQ(integerIn(many, "Unknown"), std::nullopt);
}

} // namespace vellumry
