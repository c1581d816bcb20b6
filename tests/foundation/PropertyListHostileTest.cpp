// SPDX-License-Identifier: GPL-3.0-or-later
#include "foundation/PropertyList.h"

#include "support/ListBytes.h"

#include <gtest/gtest.h>
#include <vector>

namespace vellumry {

namespace {

struct HostileRow {
    const char* name;
    QByteArray bytes;
};

class PropertyListHostile : public testing::TestWithParam<HostileRow> {};

QByteArray doublings(int levels) {
    std::vector<QByteArray> objects;
    for (int i = 0; i < levels; ++i) {
        const auto next = static_cast<quint64>(i + 1);
        objects.push_back(arrayOf({next, next, next, next, next, next, next, next}));
    }
    objects.push_back(hex("09"));
    return assembled(objects);
}

QByteArray nested(int levels) {
    std::vector<QByteArray> objects;
    for (int i = 0; i < levels; ++i)
        objects.push_back(arrayOf({static_cast<quint64>(i + 1)}));
    objects.push_back(hex("09"));
    return assembled(objects);
}

} // namespace

TEST_P(PropertyListHostile, IsRefused) {
    EXPECT_FALSE(PropertyList::fromBytes(GetParam().bytes));
}

INSTANTIATE_TEST_SUITE_P(
    Lists, PropertyListHostile,
    testing::Values(
        HostileRow{"Empty", ""}, HostileRow{"Garbage", "hello"}, HostileRow{"HeaderAlone", "bplist00"},
        HostileRow{"NoObjects", "bplist00" + trailer(0, 0, 8)}, HostileRow{"Cycle", assembled({arrayOf({0})})},
        HostileRow{"LongCycle", assembled({arrayOf({1}), arrayOf({0})})}, HostileRow{"Doublings", doublings(60)},
        HostileRow{"TooDeep", nested(65)}, HostileRow{"ReferenceOutside", assembled({arrayOf({9})})},
        HostileRow{"NoKeys", assembled({hex("d100010001"), hex("09")})},
        HostileRow{"TextBeyondTheEnd", assembled({hex("5f12ffffffff")})},
        HostileRow{"WideTextBeyondTheEnd", assembled({hex("6f137fffffffffffffff")})},
        HostileRow{"DataWithAHugeCount", assembled({hex("4f13ffffffffffffffff")})},
        HostileRow{"ArrayWithAHugeCount", assembled({hex("af138000000000000001")})},
        HostileRow{"DictionaryWithAHugeCount", assembled({hex("df13ffffffffffffffff")})},
        HostileRow{"CountThatIsNoInteger", assembled({hex("5f51")})}, HostileRow{"UnknownKind", assembled({hex("f0")})},
        HostileRow{"Null", assembled({hex("00")})}, HostileRow{"IntegerTooWide", assembled({hex("15")})},
        HostileRow{"HugeUnsigned", assembled({hex("140000000000000000ffffffffffffffff")})},
        HostileRow{"HugeTable", "bplist00" + hex("09") + hex("0008") + trailer(1ull << 62, 0, 9)},
        HostileRow{"TableOutside", "bplist00" + hex("09") + hex("0008") + trailer(1, 0, 1ull << 60)},
        HostileRow{"TopOutside", "bplist00" + hex("09") + hex("0008") + trailer(1, 1, 9)},
        HostileRow{"OffsetIntoTheTable", "bplist00" + hex("09") + hex("0009") + trailer(1, 0, 9)},
        HostileRow{"OffsetIntoTheHeader", "bplist00" + hex("09") + hex("0003") + trailer(1, 0, 9)},
        HostileRow{"NoOffsetSize", "bplist00" + hex("09") + hex("0008") + trailer(1, 0, 9, 0)},
        HostileRow{"WideReferences", "bplist00" + hex("09") + hex("0008") + trailer(1, 0, 9, 2, 9)},
        HostileRow{"XmlCutOff", "<plist><dict><key>a</key>"},
        HostileRow{"XmlNoKey", "<plist><dict><true/></dict></plist>"},
        HostileRow{"XmlUnknownElement", "<plist><thing/></plist>"},
        HostileRow{"XmlBadNumber", "<plist><integer>x</integer></plist>"},
        HostileRow{"XmlTooDeep",
                   "<plist>" + QByteArray("<array>").repeated(70) + QByteArray("</array>").repeated(70) + "</plist>"},
        HostileRow{"XmlEntityBomb",
                   "<!DOCTYPE plist [<!ENTITY a \"0123456789\"><!ENTITY b \"&a;&a;&a;&a;&a;&a;&a;&a;&a;&a;\">"
                   "<!ENTITY c \"&b;&b;&b;&b;&b;&b;&b;&b;&b;&b;\"><!ENTITY d \"&c;&c;&c;&c;&c;&c;&c;&c;&c;&c;\">"
                   "<!ENTITY e \"&d;&d;&d;&d;&d;&d;&d;&d;&d;&d;\">]><plist><string>&e;</string></plist>"}),
    [](const auto& row) { return row.param.name; });

TEST(PropertyListHostile, DepthOf64IsStillRead) {
    EXPECT_TRUE(PropertyList::fromBytes(nested(64)));
}

TEST(PropertyListHostile, ShortTextsReferredToByEveryElementAreRead) {
    for (const char* text : {"5761626364656667", "586162636465666768", "5b6162636465666768696a6b"}) {
        const QByteArray references = QByteArray(200, '\1');
        const QByteArray list = "bplist00" + hex("af10c8") + references + hex(text);
        const auto tableOffset = static_cast<quint64>(list.size());
        const auto read = PropertyList::fromBytes(
            list + bigEndian(8, 1) + bigEndian(tableOffset - hex(text).size(), 1) + trailer(2, 0, tableOffset, 1, 1));
        ASSERT_TRUE(read.has_value()) << text;
        EXPECT_EQ(read->array()->size(), 200U);
    }
}

TEST(PropertyListHostile, TwoTextsThatBeginAtOnePlaceKeepTheirLengths) {
    // The second text's marker is the first one's count.
    const QByteArray content = hex("5f105b") + QByteArray(0x5b, 'x');
    const QByteArray list = "bplist00" + hex("a20102") + content;
    const auto read =
        PropertyList::fromBytes(list + hex("080b0d") + trailer(3, 0, static_cast<quint64>(list.size()), 1, 1));
    ASSERT_TRUE(read.has_value());
    EXPECT_EQ(*(*read->array())[0].string(), QString(0x5b, u'x'));
    EXPECT_EQ(*(*read->array())[1].string(), QString(11, u'x'));
}

TEST(PropertyListHostile, ALongTextReferredToOftenIsHeldOnce) {
    const QByteArray longText = hex("5f114e20") + QByteArray(20'000, 'x');
    const std::optional<PropertyList> list = PropertyList::fromBytes(assembled({arrayOf({1, 1, 1, 1}), longText}));
    ASSERT_TRUE(list);
    const PropertyList::Array& array = *list->array();
    EXPECT_EQ(array[0].string()->constData(), array[3].string()->constData());
}

TEST(PropertyListHostile, EveryTruncationAndEveryFlippedByteEndsWell) {
    const PropertyList list = PropertyList::Dictionary{
        {QStringLiteral("title"), PropertyList(u"größe")},
        {QStringLiteral("data"), QByteArray(300, 'd')},
        {QStringLiteral("items"), PropertyList::Array{true, PropertyList(u"some longer text")}}};
    const QByteArray bytes = written(list);
    for (qsizetype length = 0; length < bytes.size(); ++length)
        EXPECT_FALSE(PropertyList::fromBytes(bytes.first(length))) << length;
    for (qsizetype at = 0; at < bytes.size(); ++at) {
        for (const int mask : {0x01, 0x0F, 0x80, 0xFF}) {
            QByteArray changed = bytes;
            changed[at] = static_cast<char>(changed[at] ^ mask);
            const std::optional<PropertyList> read = PropertyList::fromBytes(changed);
            if (read && isWritable(*read)) {
                EXPECT_EQ(PropertyList::fromBytes(written(*read)), read) << "what was read can be written";
            }
        }
    }
}

} // namespace vellumry
