// SPDX-License-Identifier: GPL-3.0-or-later
#include "foundation/IniFile.h"

#include "foundation/IniValue.h"

#include <cmath>
#include <gtest/gtest.h>
#include <limits>

namespace vellumry {

namespace {

struct ValueRow {
    const char* name;
    const char* text;
    QVariant value;
};

class IniValueText : public testing::TestWithParam<ValueRow> {};
class IniValueRoundTrip : public testing::TestWithParam<ValueRow> {};

} // namespace

TEST_P(IniValueText, ReadsAsItsValue) {
    const QVariant value = inivalue::parsed(GetParam().text);
    EXPECT_EQ(value.typeId(), GetParam().value.typeId());
    EXPECT_EQ(value, GetParam().value);
}

INSTANTIATE_TEST_SUITE_P(
    Texts, IniValueText,
    testing::Values(ValueRow{"Word", "system", QStringLiteral("system")},
                    ValueRow{"Words", "  two  words ", QStringLiteral("two  words")},
                    ValueRow{"Nothing", "", QString()}, ValueRow{"True", "true", true},
                    ValueRow{"False", "false", false}, ValueRow{"Integer", "-5", qint64(-5)},
                    ValueRow{"Real", "0.25", 0.25}, ValueRow{"QuotedNumber", "\"5\"", QStringLiteral("5")},
                    ValueRow{"Escapes", "\"a\\\"b\\\\c\\n\\x41\"", QStringLiteral("a\"b\\c\nA")},
                    ValueRow{"List", "a, b ,c",
                             QStringList{QStringLiteral("a"), QStringLiteral("b"), QStringLiteral("c")}},
                    ValueRow{"ListWithComma", "\"a,b\", c", QStringList{QStringLiteral("a,b"), QStringLiteral("c")}},
                    ValueRow{"Numbers", "0.5, 1", QVariantList{0.5, qint64(1)}},
                    ValueRow{"ListOfOne", "@List(a)", QStringList{QStringLiteral("a")}},
                    ValueRow{"EmptyList", "@List()", QStringList()},
                    ValueRow{"Data", "\"@ByteArray({\\\"keyCode\\\":9,\\\"modifiers\\\":4352})\"",
                             QByteArray("{\"keyCode\":9,\"modifiers\":4352}")},
                    ValueRow{"DataBytes", "@ByteArray(\\0\\xff)", QByteArray("\0\xFF", 2)},
                    ValueRow{"AtSign", "@@home", QStringLiteral("@home")},
                    ValueRow{"ForeignNotation", "@Rect(0 0 1 1)", QVariant()},
                    ValueRow{"LoneBackslash", "a\\", QStringLiteral("a\\")},
                    ValueRow{"OpenQuote", "\"a, b", QStringLiteral("a, b")}),
    [](const auto& row) { return row.param.name; });

TEST_P(IniValueRoundTrip, KeepsTypeAndContent) {
    const QByteArray text = inivalue::formatted(GetParam().value);
    const QVariant value = inivalue::parsed(text);
    EXPECT_EQ(value.typeId(), GetParam().value.typeId()) << text.constData();
    EXPECT_EQ(value, GetParam().value) << text.constData();
    EXPECT_FALSE(text.contains('\n'));
}

INSTANTIATE_TEST_SUITE_P(
    Values, IniValueRoundTrip,
    testing::Values(
        ValueRow{"Text", "", QStringLiteral("dark")}, ValueRow{"EmptyText", "", QStringLiteral("")},
        ValueRow{"NumberLikeText", "", QStringLiteral("5")}, ValueRow{"TruthLikeText", "", QStringLiteral("true")},
        ValueRow{"SpacedText", "", QStringLiteral("  a b ")}, ValueRow{"Lines", "", QStringLiteral("a\r\nb\tc1")},
        ValueRow{"ControlThenHexDigit", "", QStringLiteral("\u0001f\u0002A")},
        ValueRow{"Umlauts", "", QStringLiteral("größe 東京 👍")},
        ValueRow{"Punctuation", "", QStringLiteral("a=b;c,d#\"e\"\\")},
        ValueRow{"AtText", "", QStringLiteral("@ByteArray(no)")}, ValueRow{"True", "", true},
        ValueRow{"Least", "", std::numeric_limits<qint64>::min()}, ValueRow{"Third", "", 1.0 / 3},
        ValueRow{"WholeReal", "", 2.0}, ValueRow{"HugeReal", "", 1e300}, ValueRow{"Data", "", QByteArray("{\"a\":1}")},
        ValueRow{"NoData", "", QByteArray("")}, ValueRow{"BinaryData", "", QByteArray("\0\n\xFF\x80\"\\,A1", 9)},
        ValueRow{"Texts", "", QStringList{QStringLiteral("a,b"), QString(QStringLiteral("")), QStringLiteral("3")}},
        ValueRow{"OneText", "", QStringList{QStringLiteral("a")}}, ValueRow{"NoTexts", "", QStringList()},
        ValueRow{"Mixed", "", QVariantList{0.5, qint64(1), true, QStringLiteral("x")}},
        ValueRow{"Nested", "",
                 QVariantMap{{QStringLiteral("a"), QVariantMap{{QStringLiteral("b"), QStringLiteral("c")}}}}}),
    [](const auto& row) { return row.param.name; });

TEST(IniFile, AChangeLeavesTheRestOfTheTextAlone) {
    const QByteArray text = "; by hand\n[General]\nkeepAtMost=100\n# why\nodd line\nother = 1\n\n[Foreign]\nx=1\n";
    IniFile file(text);
    EXPECT_EQ(file.toBytes(), text);
    file.set(QStringLiteral("keepAtMost"), 200);
    file.set(QStringLiteral("appearance"), QStringLiteral("dark"));
    EXPECT_EQ(file.toBytes(),
              "; by hand\n[General]\nkeepAtMost=200\n# why\nodd line\nother = 1\nappearance=dark\n\n[Foreign]\nx=1\n");
    file.remove(QStringLiteral("other"));
    EXPECT_EQ(file.toBytes(),
              "; by hand\n[General]\nkeepAtMost=200\n# why\nodd line\nappearance=dark\n\n[Foreign]\nx=1\n");
}

TEST(IniFile, AMapIsAGroupOfItsOwn) {
    IniFile file;
    const QVariantMap positions{{QStringLiteral("DP-1 left"), QVariantList{0.5, 0.25}},
                                {QStringLiteral("[x]=y"), QVariantList{1.0, 0.0}}};
    file.set(QStringLiteral("keepAtMost"), 7);
    file.set(QStringLiteral("panelPositions"), positions);
    const IniFile read(file.toBytes());
    EXPECT_EQ(read.values().value(QStringLiteral("panelPositions")).toMap(), positions) << file.toBytes().constData();
    EXPECT_EQ(read.values().value(QStringLiteral("keepAtMost")), 7);
    file.set(QStringLiteral("panelPositions"), QVariantMap());
    EXPECT_EQ(IniFile(file.toBytes()).values().value(QStringLiteral("panelPositions")), QVariantMap());
    file.remove(QStringLiteral("panelPositions"));
    EXPECT_FALSE(IniFile(file.toBytes()).values().contains(QStringLiteral("panelPositions")));
}

TEST(IniFile, KeysBeforeAnyHeadingAndWindowsLineEndsCount) {
    const IniFile file("a=1\r\n[General]\r\nb=two\r\n");
    EXPECT_EQ(file.values(),
              (QVariantMap{{QStringLiteral("a"), qint64(1)}, {QStringLiteral("b"), QStringLiteral("two")}}));
}

} // namespace vellumry
