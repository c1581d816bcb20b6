// SPDX-License-Identifier: GPL-3.0-or-later
#include "foundation/PropertyList.h"

#include "support/ListBytes.h"

#include <gtest/gtest.h>
#include <limits>

namespace vellumry {

namespace {

struct ValueRow {
    const char* name;
    PropertyList value;
};

class PropertyListValue : public testing::TestWithParam<ValueRow> {};

PropertyList string(const char16_t* value) {
    return PropertyList(value);
}

PropertyList texts(int count) {
    PropertyList::Array array;
    for (int i = 0; i < count; ++i)
        array.emplace_back(QString::number(i));
    return array;
}

struct NumberRow {
    const char* name;
    const char* object; ///< in hexadecimal digits
    PropertyList value;
};

class PropertyListNumber : public testing::TestWithParam<NumberRow> {};

} // namespace

TEST_P(PropertyListValue, SurvivesItsBinaryCoding) {
    const QByteArray bytes = written(GetParam().value);
    EXPECT_TRUE(bytes.startsWith("bplist00"));
    EXPECT_EQ(PropertyList::fromBytes(bytes), GetParam().value);
}

INSTANTIATE_TEST_SUITE_P(
    Values, PropertyListValue,
    testing::Values(
        ValueRow{"EmptyDictionary", PropertyList()}, ValueRow{"True", true}, ValueRow{"False", false},
        ValueRow{"EmptyText", string(u"")}, ValueRow{"Ascii", string(u"title")},
        ValueRow{"FifteenLetters", string(u"123456789012345")}, ValueRow{"Umlauts", string(u"größe")},
        ValueRow{"Emoji", string(u"👍🏽")}, ValueRow{"LongText", QString(100'000, u'x')},
        ValueRow{"LongWideText", QString(70'000, u'東')}, ValueRow{"Data", QByteArray("\0\xFF", 2)},
        ValueRow{"NoData", QByteArray()}, ValueRow{"LargeData", QByteArray(300'000, 'd')},
        ValueRow{"EmptyArray", PropertyList::Array()},
        ValueRow{"Array", PropertyList::Array{true, string(u"a"), string(u"a"), PropertyList::Array{false}}},
        ValueRow{"ManyObjects", texts(70'000)},
        ValueRow{"Dictionary", PropertyList::Dictionary{{QStringLiteral("title"), string(u"title")},
                                                        {QStringLiteral("größe"), QByteArray("x")},
                                                        {QStringLiteral("list"), PropertyList::Array{false}}}}),
    [](const auto& row) { return row.param.name; });

TEST_P(PropertyListNumber, IsReadAsTheFormatSays) {
    EXPECT_EQ(PropertyList::fromBytes(assembled({hex(GetParam().object)})), GetParam().value);
}

INSTANTIATE_TEST_SUITE_P(
    Numbers, PropertyListNumber,
    testing::Values(NumberRow{"Zero", "1000", qint64(0)}, NumberRow{"Byte", "10ff", qint64(255)},
                    NumberRow{"Word", "11ffff", qint64(65535)}, NumberRow{"Long", "12ffffffff", qint64(0xFFFF'FFFF)},
                    NumberRow{"Greatest", "137fffffffffffffff", std::numeric_limits<qint64>::max()},
                    NumberRow{"MinusOne", "13ffffffffffffffff", qint64(-1)},
                    NumberRow{"Least", "138000000000000000", std::numeric_limits<qint64>::min()},
                    NumberRow{"SixteenBytes", "1400000000000000000000000000000007", qint64(7)},
                    NumberRow{"SixteenNegativeBytes", "14fffffffffffffffffffffffffffffffe", qint64(-2)},
                    NumberRow{"ShortReal", "223f000000", 0.5}, NumberRow{"Real", "233fe0000000000000", 0.5},
                    NumberRow{"Infinity", "237ff0000000000000", std::numeric_limits<double>::infinity()},
                    NumberRow{"Date", "3340c81cc000000000", PropertyList::DateValue{12345.5}},
                    NumberRow{"Uid", "82011170", PropertyList::Uid{70'000}}),
    [](const auto& row) { return row.param.name; });

TEST(PropertyList, BinaryCodingIsTheDocumentedOne) {
    const PropertyList list = PropertyList::Dictionary{{QStringLiteral("a"), true}};
    const QByteArray expected = QByteArray("bplist00") + QByteArray::fromHex("5161"   // the text "a"
                                                                             "09"     // true
                                                                             "d10001" // one entry: objects 0 and 1
                                                                             "080a0b" // their offsets
                                                                             "000000000000"
                                                                             "01"
                                                                             "01"
                                                                             "0000000000000003"
                                                                             "0000000000000002"
                                                                             "000000000000000e");
    EXPECT_EQ(written(list).toHex(), expected.toHex());
    EXPECT_EQ(PropertyList::fromBytes(expected), list);
}

TEST(PropertyList, EqualTextsAndDataAreWrittenOnce) {
    const QString longText(1000, u'x');
    const PropertyList::Array array(50, PropertyList(longText));
    EXPECT_LT(written(array).size(), 1300);
    EXPECT_EQ(PropertyList::fromBytes(written(array)), PropertyList(array));
    const PropertyList::Array data(50, PropertyList(QByteArray(1000, 'x')));
    EXPECT_LT(written(data).size(), 1300);
}

TEST(PropertyList, FindLooksIntoDictionariesOnly) {
    const PropertyList list = PropertyList::Dictionary{{QStringLiteral("a"), qint64(5)}};
    ASSERT_NE(list.find(QStringLiteral("a")), nullptr);
    EXPECT_EQ(*list.find(QStringLiteral("a"))->integer(), 5);
    EXPECT_EQ(list.find(QStringLiteral("b")), nullptr);
    EXPECT_EQ(PropertyList(true).find(QStringLiteral("a")), nullptr);
}

TEST(PropertyList, EachCaseAnswersToItsOwnNameOnly) {
    const PropertyList list(true);
    EXPECT_NE(list.boolean(), nullptr);
    EXPECT_EQ(list.integer(), nullptr);
    EXPECT_EQ(list.real(), nullptr);
    EXPECT_EQ(list.string(), nullptr);
    EXPECT_EQ(list.data(), nullptr);
    EXPECT_EQ(list.array(), nullptr);
    EXPECT_EQ(list.dictionary(), nullptr);
    EXPECT_NE(PropertyList(true), PropertyList(qint64(1)));
}

TEST(PropertyList, XmlCodingIsReadToo) {
    const QByteArray xml = R"(<?xml version="1.0" encoding="UTF-8"?>
<!DOCTYPE plist PUBLIC "-//Apple//DTD PLIST 1.0//EN" "http://www.apple.com/DTDs/PropertyList-1.0.dtd">
<plist version="1.0"><dict>
  <key>name</key><string>a &amp; ü</string>
  <key>on</key><true/> <key>n</key><integer>-7</integer> <key>x</key><integer>0x10</integer>
  <key>r</key><real>0.5</real> <key>d</key><data> aGVs
  bG8= </data>
  <key>when</key><date>2001-01-01T00:00:10Z</date>
  <key>list</key><array><string/><false/></array>
</dict></plist>)";
    const PropertyList expected =
        PropertyList::Dictionary{{QStringLiteral("name"), string(u"a & ü")},
                                 {QStringLiteral("on"), true},
                                 {QStringLiteral("n"), qint64(-7)},
                                 {QStringLiteral("x"), qint64(16)},
                                 {QStringLiteral("r"), 0.5},
                                 {QStringLiteral("d"), QByteArray("hello")},
                                 {QStringLiteral("when"), PropertyList::DateValue{10}},
                                 {QStringLiteral("list"), PropertyList::Array{string(u""), false}}};
    EXPECT_EQ(PropertyList::fromBytes(xml), expected);
}

} // namespace vellumry
