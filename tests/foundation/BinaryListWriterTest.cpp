// SPDX-License-Identifier: GPL-3.0-or-later
#include "foundation/BinaryListWriter.h"

#include "foundation/PropertyList.h"

#include <gtest/gtest.h>

namespace vellumry {
namespace {

using namespace Qt::StringLiterals;

TEST(BinaryListWriter, WritesWhatTheGeneralReaderReads) {
    BinaryListWriter writer;
    const auto words = writer.array({writer.text(u"ascii"_s), writer.text(StoredText(u"grün"_s)), writer.text(u"語"_s),
                                     writer.text(QString()), writer.boolean(true), writer.boolean(false)});
    const auto top =
        writer.dictionary({{"data", writer.data("\x01\xFF")}, {"words", words}, {"none", writer.array({})}});
    const PropertyList::Dictionary expected{
        {u"data"_s, QByteArray("\x01\xFF")},
        {u"words"_s, PropertyList::Array{u"ascii"_s, u"grün"_s, u"語"_s, QString(), true, false}},
        {u"none"_s, PropertyList::Array()}};
    EXPECT_EQ(PropertyList::fromBytes(writer.finish(top, {})), PropertyList(expected));
}

TEST(BinaryListWriter, CountsAndReferencesOfEveryWidthAreRead) {
    for (const qsizetype length : {0, 14, 15, 255, 256, 65'535, 65'536, 300'000}) {
        BinaryListWriter writer;
        PropertyList::Array expected{QString(length, u'x'), QString(length, u'π'), QByteArray(length, '\7')};
        std::vector<BinaryListWriter::Reference> elements{writer.text(QString(length, u'x')),
                                                          writer.text(QString(length, u'π')),
                                                          writer.data(QByteArray(length, '\7'))};
        for (qsizetype number = 0; number < length; ++number) {
            expected.emplace_back(QString::number(number));
            elements.push_back(writer.text(QString::number(number)));
        }
        const auto top = writer.array(elements);
        ASSERT_EQ(PropertyList::fromBytes(writer.finish(top, {})), PropertyList(expected)) << length;
    }
}

TEST(BinaryListWriter, EqualContentIsWrittenOnce) {
    const QString text(1000, u'a');
    BinaryListWriter writer;
    EXPECT_EQ(writer.text(text), writer.text(StoredText(text)));
    EXPECT_EQ(writer.text(u"π"_s), writer.text(StoredText(u"π"_s)));
    const auto data = writer.data(text.toLatin1());
    EXPECT_EQ(data, writer.data(QByteArray(1000, 'a')));
    EXPECT_NE(data, writer.text(text)) << "text is no data";
    EXPECT_LT(writer.finish(data, {}).size(), 2 * 1000 + 100);
}

TEST(BinaryListWriter, ContentThatDiffersInTheMiddleOnlyIsTwo) {
    QByteArray other(5000, 'a');
    other[2500] = 'b';
    BinaryListWriter writer;
    EXPECT_NE(writer.data(QByteArray(5000, 'a')), writer.data(other));
}

TEST(BinaryList, OnlyTheBooleansOfTheSimpleKindsAreObjects) {
    for (int marker = 0; marker < 0x10; ++marker) {
        BinaryListWriter writer;
        QByteArray bytes = writer.finish(writer.boolean(true), {});
        bytes[8] = static_cast<char>(marker);
        BinaryList list(bytes);
        ASSERT_TRUE(list.open());
        const auto top = list.top();
        EXPECT_EQ(top.has_value(), marker == 0x08 || marker == 0x09) << marker;
        EXPECT_FALSE(top && (top->is(BinaryList::Marker::utf16) || top->is(BinaryList::Marker::array)));
    }
}

TEST(BinaryListWriter, LeavesRoomAroundTheList) {
    const auto listWith = [](BinaryListWriter::Margins margins) {
        BinaryListWriter writer;
        return writer.finish(writer.text(u"x"_s), margins);
    };
    const QByteArray plain = listWith({});
    const QByteArray roomy = listWith({12, 16});
    EXPECT_EQ(roomy.size(), plain.size() + 28);
    EXPECT_EQ(roomy.sliced(12, plain.size()), plain);
}

TEST(BinaryListWriter, LeavesWhatItWasGivenUntouched) {
    const StoredText text(u"secret"_s);
    const QByteArray data("bytes");
    {
        BinaryListWriter writer;
        const auto top = writer.array({writer.text(text), writer.text(u"grün"_s), writer.data(data)});
        (void)writer.finish(top, {});
    }
    EXPECT_EQ(text.toString(), u"secret"_s);
    EXPECT_EQ(data, "bytes");
}

} // namespace
} // namespace vellumry
