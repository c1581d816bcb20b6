// SPDX-License-Identifier: GPL-3.0-or-later
#include "foundation/PropertyList.h"

#include <gtest/gtest.h>
#include <limits>

namespace vellumry {

namespace {

struct ValueRow {
    const char* name;
    PropertyList value;
};

class PropertyListValue : public testing::TestWithParam<ValueRow> {};

PropertyList text(const char16_t* value) {
    return PropertyList(value);
}

PropertyList numbers(qint64 count) {
    PropertyList::Array array;
    for (qint64 i = 0; i < count; ++i)
        array.emplace_back(i);
    return array;
}

} // namespace

TEST_P(PropertyListValue, SurvivesItsBinaryCoding) {
    const QByteArray bytes = GetParam().value.toBinary();
    EXPECT_TRUE(bytes.startsWith("bplist00"));
    EXPECT_EQ(PropertyList::fromBytes(bytes), GetParam().value);
}

INSTANTIATE_TEST_SUITE_P(
    Values, PropertyListValue,
    testing::Values(ValueRow{"EmptyDictionary", PropertyList()}, ValueRow{"True", true}, ValueRow{"False", false},
                    ValueRow{"Zero", qint64(0)}, ValueRow{"Byte", qint64(255)}, ValueRow{"Word", qint64(65535)},
                    ValueRow{"Long", qint64(0xFFFF'FFFF)}, ValueRow{"Greatest", std::numeric_limits<qint64>::max()},
                    ValueRow{"MinusOne", qint64(-1)}, ValueRow{"Least", std::numeric_limits<qint64>::min()},
                    ValueRow{"Real", 0.1}, ValueRow{"Infinity", std::numeric_limits<double>::infinity()},
                    ValueRow{"EmptyText", text(u"")}, ValueRow{"Ascii", text(u"title")},
                    ValueRow{"FifteenLetters", text(u"123456789012345")}, ValueRow{"Umlauts", text(u"größe")},
                    ValueRow{"Emoji", text(u"👍🏽")}, ValueRow{"LongText", QString(100'000, u'x')},
                    ValueRow{"LongWideText", QString(70'000, u'東')}, ValueRow{"Data", QByteArray("\0\xFF", 2)},
                    ValueRow{"NoData", QByteArray()}, ValueRow{"LargeData", QByteArray(300'000, 'd')},
                    ValueRow{"Date", PropertyList::DateValue{12345.5}}, ValueRow{"Uid", PropertyList::Uid{70'000}},
                    ValueRow{"EmptyArray", PropertyList::Array()},
                    ValueRow{"Array", PropertyList::Array{true, text(u"a"), text(u"a"), PropertyList::Array{0.5}}},
                    ValueRow{"ManyObjects", numbers(70'000)},
                    ValueRow{"Dictionary",
                             PropertyList::Dictionary{{QStringLiteral("title"), text(u"title")},
                                                      {QStringLiteral("größe"), QByteArray("x")},
                                                      {QStringLiteral("list"), PropertyList::Array{false}}}}),
    [](const auto& row) { return row.param.name; });

TEST(PropertyList, BinaryCodingIsTheDocumentedOne) {
    const PropertyList list = PropertyList::Dictionary{{QStringLiteral("a"), true}};
    const QByteArray expected = QByteArray("bplist00") + QByteArray::fromHex("d10102" // one entry: object 1, object 2
                                                                             "5161"   // the text "a"
                                                                             "09"     // true
                                                                             "080b0d" // their offsets
                                                                             "000000000000"
                                                                             "01"
                                                                             "01"
                                                                             "0000000000000003"
                                                                             "0000000000000000"
                                                                             "000000000000000e");
    EXPECT_EQ(list.toBinary().toHex(), expected.toHex());
    EXPECT_EQ(PropertyList::fromBytes(expected), list);
}

TEST(PropertyList, EqualTextsAndDataAreWrittenOnce) {
    const QString longText(1000, u'x');
    const PropertyList::Array array(50, PropertyList(longText));
    EXPECT_LT(PropertyList(array).toBinary().size(), 1300);
    EXPECT_EQ(PropertyList::fromBytes(PropertyList(array).toBinary()), PropertyList(array));
    const PropertyList::Array data(50, PropertyList(QByteArray(1000, 'x')));
    EXPECT_LT(PropertyList(data).toBinary().size(), 1300);
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
        PropertyList::Dictionary{{QStringLiteral("name"), text(u"a & ü")},
                                 {QStringLiteral("on"), true},
                                 {QStringLiteral("n"), qint64(-7)},
                                 {QStringLiteral("x"), qint64(16)},
                                 {QStringLiteral("r"), 0.5},
                                 {QStringLiteral("d"), QByteArray("hello")},
                                 {QStringLiteral("when"), PropertyList::DateValue{10}},
                                 {QStringLiteral("list"), PropertyList::Array{text(u""), false}}};
    EXPECT_EQ(PropertyList::fromBytes(xml), expected);
}

} // namespace vellumry
