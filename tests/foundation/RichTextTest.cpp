// SPDX-License-Identifier: GPL-3.0-or-later
#include "foundation/RichText.h"

#include <gtest/gtest.h>

namespace vellumry {

namespace {

struct RtfRow {
    const char* name;
    QByteArray rtf;
    std::optional<QString> text;
};

class RichText : public testing::TestWithParam<RtfRow> {};

QString text(const char16_t* value) {
    return QString::fromUtf16(value);
}

} // namespace

TEST_P(RichText, GivesItsPlainText) {
    EXPECT_EQ(textOfRtf(GetParam().rtf), GetParam().text);
}

INSTANTIATE_TEST_SUITE_P(
    Documents, RichText,
    testing::Values(
        RtfRow{"Plain", "{\\rtf1 Hello}", text(u"Hello")}, RtfRow{"Empty", "{\\rtf1}", text(u"")},
        RtfRow{"Formatting", "{\\rtf1\\ansi a {\\b bold} and \\i1 slanted\\i0 .}", text(u"a bold and slanted.")},
        RtfRow{"Paragraphs", "{\\rtf1 a\\par b\\line c\\tab d}", text(u"a\nb\nc\td")},
        RtfRow{"BackslashLineEnd", "{\\rtf1 a\\\nb\\\r\nc}", text(u"a\nb\nc")},
        RtfRow{"SourceLineEndsDoNotCount", "{\\rtf1 a\r\nb\nc}", text(u"abc")},
        RtfRow{"EscapedBraces", "{\\rtf1 \\{x\\}\\\\}", text(u"{x}\\")},
        RtfRow{"Unicode", "{\\rtf1 \\u8364?5 \\u-3913?}", text(u"€5 \uF0B7")},
        RtfRow{"SurrogatePair", "{\\rtf1 \\u-10179?\\u-9198?}", text(u"\U0001F412")},
        RtfRow{"FallbackLength", "{\\rtf1\\uc2 \\u8364\\'80\\'81x{\\uc0 \\u233y}\\u233 abz}", text(u"€xéyéz")},
        RtfRow{"FallbackOfOneEscape", "{\\rtf1 \\u1087\\'3fx}", text(u"пx")},
        RtfRow{"FallbackEndsAtTheBrace", "{\\rtf1 {\\u233}x}", text(u"éx")},
        RtfRow{"WesternBytes", "{\\rtf1\\ansi caf\\'e9 \\'93q\\'94}", text(u"café “q”")},
        RtfRow{"CyrillicCodePage", "{\\rtf1\\ansi\\ansicpg1251 \\'cf\\'f0}", text(u"Пр")},
        RtfRow{"CyrillicFont", "{\\rtf1\\ansi{\\fonttbl{\\f0\\fcharset0 A;}{\\f1\\fcharset204 B;}}\\f1\\'cf\\f0\\'e9}",
               text(u"Пé")},
        RtfRow{"FontEndsWithItsGroup", "{\\rtf1\\ansi{\\fonttbl{\\f1\\fcharset204 B;}}{\\f1\\'cf}\\'e9}", text(u"Пé")},
        RtfRow{"DoubleByteCodePage", "{\\rtf1\\ansi\\ansicpg932 \\'93\\'fa\\'96\\'7b}", text(u"日本")},
        RtfRow{"MacCodePage", "{\\rtf1\\mac \\'8e}", text(u"é")},
        RtfRow{"RawBytes", "{\\rtf1\\ansi caf\xE9}", text(u"café")},
        RtfRow{"UnknownCodePage", "{\\rtf1\\ansi\\ansicpg31337 \\'e9}", text(u"é")},
        RtfRow{"Symbols", "{\\rtf1 \\emdash\\endash\\bullet\\lquote x\\rquote\\ldblquote\\rdblquote\\~\\_}",
               text(u"—–•‘x’“”\u00A0\u2011")},
        RtfRow{"OptionalHyphen", "{\\rtf1 co\\-op}", text(u"coop")},
        RtfRow{"Tables", "{\\rtf1 a\\cell b\\cell\\row}", text(u"a\tb\t\n")},
        RtfRow{"SkippedDestinations",
               "{\\rtf1{\\fonttbl{\\f0 Arial;}}{\\colortbl;\\red0;}{\\stylesheet{\\s0 Normal;}}{\\info{\\title T}}"
               "{\\header H}{\\footer F}{\\pict\\wmetafile8 0102}{\\*\\generator G;}{\\*\\unknown{nested} x}Body}",
               text(u"Body")},
        RtfRow{"FieldsShowTheirResult",
               "{\\rtf1{\\field{\\*\\fldinst HYPERLINK \"https://example.org\"}{\\fldrslt link}}}", text(u"link")},
        RtfRow{"BinaryData", QByteArray("{\\rtf1 a{\\pict\\bin5 }}{{\\x}b}"), text(u"ab")},
        RtfRow{"NegativeBinary", "{\\rtf1 a\\bin-5 b}", text(u"ab")},
        RtfRow{"IgnoredUnicode", "{\\rtf1{\\info \\u233?}a}", text(u"a")},
        RtfRow{"TrailingBytes", QByteArray("{\\rtf1 a}\0\n", 11), text(u"a")},
        RtfRow{"HugeParameter", "{\\rtf1\\fs99999999999999999999 a}", text(u"a")},
        RtfRow{"NotRtf", "Hello", std::nullopt}, RtfRow{"NoBytes", "", std::nullopt},
        RtfRow{"CutInTheBody", "{\\rtf1 a", std::nullopt}, RtfRow{"CutInAGroup", "{\\rtf1 {a}", std::nullopt},
        RtfRow{"CutBehindABackslash", "{\\rtf1 a\\", std::nullopt},
        RtfRow{"BinaryBeyondTheEnd", "{\\rtf1 \\bin999 x}", std::nullopt},
        RtfRow{"TooDeep", "{\\rtf1 " + QByteArray("{").repeated(600) + QByteArray("}").repeated(600) + "}",
               std::nullopt}),
    [](const auto& row) { return row.param.name; });

TEST(RichTextSize, ALongDocumentIsRead) {
    const QByteArray rtf = "{\\rtf1\\ansi " + QByteArray("{\\b word} \\'e9\\par\n").repeated(20'000) + "}";
    const std::optional<QString> plain = textOfRtf(rtf);
    ASSERT_TRUE(plain);
    EXPECT_EQ(plain->size(), 20'000 * 7);
}

} // namespace vellumry
