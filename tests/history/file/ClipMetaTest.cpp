// SPDX-License-Identifier: GPL-3.0-or-later
#include "history/file/ClipMeta.h"

#include "foundation/PropertyList.h"
#include "history/clips/StringPool.h"
#include "history/file/ClipMetaReader.h"
#include "support/ListBytes.h"

#include <QRandomGenerator>
#include <gtest/gtest.h>

namespace vellumry {
namespace {

using namespace Qt::StringLiterals;

PropertyList::Dictionary minimalRecord() {
    return {{u"title"_s, u"t"_s}, {u"searchText"_s, u"s"_s}, {u"files"_s, PropertyList::Array()}};
}

std::optional<ClipMeta> decodeRecord(const PropertyList& record) {
    return decodeMeta(written(record));
}

QString randomText(QRandomGenerator& random, int longest) {
    static const QString alphabet = u"abc XYZ 019äßπ語\U0001F600\n"_s;
    QString string;
    const bool isAscii = random.bounded(2) == 0;
    for (int left = random.bounded(longest + 1); left > 0; --left)
        string += isAscii ? QChar(u'a' + random.bounded(26)) : alphabet.at(random.bounded(16));
    return string;
}

ClipMeta randomMeta(QRandomGenerator& random) {
    ClipMeta meta;
    meta.title = randomText(random, 40);
    meta.searchText = randomText(random, 400);
    for (int left = random.bounded(3); left > 0; --left)
        meta.files.push_back({randomText(random, 20), randomText(random, 300),
                              random.bounded(2) ? std::optional(QByteArray(random.bounded(40), '\7')) : std::nullopt});
    if (random.bounded(2))
        meta.sourceBundleID = randomText(random, 20);
    if (random.bounded(2))
        meta.sourceAppName = randomText(random, 20);
    if (random.bounded(2))
        meta.thumbnail = QByteArray(random.bounded(9000), '\xff');
    if (random.bounded(2))
        meta.imageText = randomText(random, 50);
    if (random.bounded(4))
        meta.imageTextIsAccurate = random.bounded(2) == 1;
    if (random.bounded(4))
        meta.isScreenshot = random.bounded(2) == 1;
    return meta;
}

TEST(ClipMeta, HoldsWhatTheRowMustNotShow) {
    Clip clip;
    clip.title = u"title"_s;
    clip.searchText = u"text"_s;
    clip.sourceAppName = u"Editor"_s;
    clip.files = {{u"/a"_s, u"a"_s, QByteArray("bookmark")}};
    clip.imageText = u"read"_s;
    const auto record = PropertyList::fromBytes(ClipMeta::of(clip).encoded());
    const PropertyList::Dictionary expected{
        {u"title"_s, u"title"_s},
        {u"searchText"_s, u"text"_s},
        {u"sourceAppName"_s, u"Editor"_s},
        {u"files"_s, PropertyList::Array{PropertyList::Dictionary{
                         {u"path"_s, u"/a"_s}, {u"name"_s, u"a"_s}, {u"bookmark"_s, QByteArray("bookmark")}}}},
        {u"imageText"_s, u"read"_s},
        {u"imageTextIsAccurate"_s, false},
        {u"isScreenshot"_s, false}};
    EXPECT_EQ(record, PropertyList(expected));
}

TEST(ClipMeta, ReadsBackWhatWasWritten) {
    QRandomGenerator random(1);
    for (int i = 0; i < 500; ++i) {
        const ClipMeta meta = randomMeta(random);
        const QByteArray bytes = meta.encoded();
        ASSERT_EQ(decodeMeta(bytes), meta);
        ASSERT_EQ(readPlainMeta(bytes, nullptr), meta) << "what we write must take the short way";
    }
}

TEST(ClipMeta, ARecordOfBeforeTheLastTwoFieldsStillDecodes) {
    const auto meta = decodeRecord(minimalRecord());
    ASSERT_TRUE(meta.has_value());
    EXPECT_EQ(meta->imageTextIsAccurate, std::nullopt);
    EXPECT_EQ(meta->isScreenshot, std::nullopt);
    EXPECT_EQ(meta->thumbnail, std::nullopt);
    Clip clip;
    clip.imageTextIsAccurate = clip.isScreenshot = true;
    ClipMeta(*meta).applyTo(clip);
    EXPECT_FALSE(clip.imageTextIsAccurate);
    EXPECT_FALSE(clip.isScreenshot);
}

TEST(ClipMeta, ARequiredFieldThatIsMissingSpoilsTheRecord) {
    for (const QString& key : {u"title"_s, u"searchText"_s, u"files"_s}) {
        auto record = minimalRecord();
        record.erase(key);
        EXPECT_EQ(decodeRecord(record), std::nullopt) << key.toStdString();
    }
}

TEST(ClipMeta, AFieldOfAnotherTypeSpoilsTheRecord) {
    for (const QString& key : {u"title"_s, u"searchText"_s, u"files"_s, u"sourceBundleID"_s, u"sourceAppName"_s,
                               u"thumbnail"_s, u"imageText"_s, u"imageTextIsAccurate"_s, u"isScreenshot"_s}) {
        auto record = minimalRecord();
        record[key] = PropertyList::Dictionary();
        EXPECT_EQ(decodeRecord(record), std::nullopt) << key.toStdString();
    }
    auto record = minimalRecord();
    record[u"files"_s] = PropertyList::Array{PropertyList::Dictionary{{u"path"_s, u"/a"_s}}};
    EXPECT_EQ(decodeRecord(record), std::nullopt);
    record[u"files"_s] = PropertyList::Array{u"/a"_s};
    EXPECT_EQ(decodeRecord(record), std::nullopt);
}

TEST(ClipMeta, KeysOfALaterVersionArePassedOver) {
    auto record = minimalRecord();
    record[u"later"_s] = PropertyList::Array{true, QByteArray("x")};
    record[u"später"_s] = u"x"_s;
    EXPECT_TRUE(decodeRecord(record).has_value());
}

/// A key that the short way does not know leaves the whole record to the general reader.
TEST(ClipMeta, TheGeneralReaderGivesEveryFieldAsItWasWritten) {
    QRandomGenerator random(3);
    for (int i = 0; i < 300; ++i) {
        const ClipMeta meta = randomMeta(random);
        const auto list = PropertyList::fromBytes(meta.encoded());
        ASSERT_TRUE(list.has_value());
        PropertyList::Dictionary record = *list->dictionary();
        record[u"later"_s] = PropertyList::Array{true};
        const QByteArray bytes = written(record);
        ASSERT_EQ(readPlainMeta(bytes, nullptr), std::nullopt);
        ASSERT_EQ(decodeMeta(bytes), meta);
    }
}

TEST(ClipMeta, OtherListsAndOtherBytesAreNoRecord) {
    EXPECT_EQ(decodeMeta(written(PropertyList::Array())), std::nullopt);
    EXPECT_EQ(decodeMeta(QByteArrayView()), std::nullopt);
    EXPECT_EQ(decodeMeta("{\"title\":\"t\"}"), std::nullopt);
    EXPECT_EQ(decodeMeta(QByteArray("bplist00") + QByteArray(32, '\xff')), std::nullopt);
}

TEST(ClipMeta, SourceNamesOfManyClipsShareTheirCharacters) {
    StringPool pool;
    for (const QString& name : {u"Editor"_s, u"Éditeur"_s}) {
        ClipMeta meta;
        meta.sourceAppName = name;
        const QByteArray bytes = meta.encoded();
        const auto one = decodeMeta(bytes, &pool);
        const auto two = decodeMeta(bytes, &pool);
        EXPECT_EQ(one->sourceAppName, name);
        EXPECT_EQ(one->sourceAppName->constData(), two->sourceAppName->constData());
    }
}

// The short way answers from foreign bytes too: whatever it answers, the general reader must agree with.
TEST(ClipMeta, TheShortWayNeverContradictsTheGeneralReader) {
    QRandomGenerator random(2);
    int answered = 0;
    for (int i = 0; i < 20'000; ++i) {
        QByteArray bytes = randomMeta(random).encoded();
        for (int left = 1 + random.bounded(3); left > 0; --left)
            bytes[random.bounded(bytes.size())] = static_cast<char>(random.bounded(256));
        if (random.bounded(4) == 0)
            bytes.truncate(random.bounded(bytes.size()));
        const auto quick = readPlainMeta(bytes, nullptr);
        if (!quick)
            continue;
        ++answered;
        const auto list = PropertyList::fromBytes(bytes);
        ASSERT_TRUE(list.has_value());
        ASSERT_EQ(*list->find(u"title"_s)->string(), quick->title);
        ASSERT_EQ(list->find(u"files"_s)->array()->size(), quick->files.size());
    }
    EXPECT_GT(answered, 1000);
}

TEST(ClipMeta, TextWithASurrogateAloneReadsTheSameBothWays) {
    const QString odd = QString(QChar(0xD83D)) + u"x"_s;
    auto record = minimalRecord();
    record[u"title"_s] = odd;
    record[u"searchText"_s] = odd;
    const QByteArray bytes = written(record);
    EXPECT_EQ(readPlainMeta(bytes, nullptr)->searchText, StoredText(odd));
    EXPECT_EQ(readPlainMeta(bytes, nullptr)->title, StoredText(odd));
}

TEST(ClipMeta, ATitleThatIsTheWholeTextIsInMemoryOnce) {
    auto record = minimalRecord();
    record[u"title"_s] = record[u"searchText"_s] = u"a few words"_s;
    const auto meta = readPlainMeta(written(record), nullptr);
    EXPECT_EQ(meta->title, u"a few words"_s);
    EXPECT_EQ(meta->title.utf8().constData(), meta->searchText.utf8().constData());
}

TEST(ClipMeta, AListThatUnfoldsBeyondAllMeasureIsNotUnfolded) {
    ClipMeta meta;
    meta.files.assign(20'000, {QString(20'000, u'x'), u"n"_s, std::nullopt});
    EXPECT_EQ(readPlainMeta(meta.encoded(), nullptr), std::nullopt);
}

} // namespace
} // namespace vellumry
