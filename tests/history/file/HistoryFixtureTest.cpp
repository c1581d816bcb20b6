// SPDX-License-Identifier: GPL-3.0-or-later

// A file that was written once, by a script that shares nothing with this program, and that stays readable.

#include "support/Drafts.h"
#include "support/TemporaryHistory.h"

#include <QFile>
#include <gtest/gtest.h>

namespace vellumry {
namespace {

using namespace Qt::StringLiterals;

constexpr Date latest = 2000.5;

class HistoryFixture : public testing::Test {
protected:
    void SetUp() override {
        QByteArray key;
        for (int i = 0; i < 32; ++i)
            key.append(static_cast<char>(i));
        (void)m_history.keyStore().save(SymmetricKey(key), KeyStore::Asking::forbidden);
        ASSERT_TRUE(QFile::copy(QStringLiteral(VELLUMRY_FIXTURES "/history-v1.sqlite"), m_history.path()));
        ASSERT_TRUE(QFile(m_history.path()).setPermissions(QFile::ReadOwner | QFile::WriteOwner));
        m_store = m_history.openStore();
    }
    [[nodiscard]] Clip clip(int number) const {
        const ClipRef found =
            m_store->find(QUuid(u"00000000-0000-4000-8000-%1"_s.arg(number, 12, 16, QLatin1Char('0'))));
        return found ? *found : Clip();
    }
    [[nodiscard]] ClipPayload payload(int number) const {
        return awaited(m_store->payload(clip(number).id)).value_or(ClipPayload());
    }
    TemporaryHistory m_history;
    std::unique_ptr<ClipStore> m_store;
};

TEST_F(HistoryFixture, IsTakenAsItIs) {
    EXPECT_FALSE(m_store->recoveredFromDamage());
    EXPECT_EQ(m_history.backups(), QStringList());
    QStringList titles;
    for (const ClipRef& found : m_store->clips())
        titles.append(found->title.toString());
    EXPECT_EQ(titles, (QStringList{u""_s, u"before the marks"_s, u"4111 1111 1111 1111"_s, u"#336699"_s, u"notes.txt"_s,
                                   u"Image"_s, u"https://example.org/"_s, u"styled"_s, u"grün \U0001F600"_s}))
        << "a kind of the future, a row of another key and half a row are passed over";
}

TEST_F(HistoryFixture, TextsHaveAllTheirFields) {
    const Clip text = clip(1);
    EXPECT_EQ(text.kind, ClipKind::text);
    EXPECT_EQ(text.searchText.toString(), u"grün \U0001F600"_s);
    EXPECT_EQ(text.sourceBundleID, u"org.example.Editor"_s);
    EXPECT_EQ(text.sourceAppName, u"Éditeur"_s);
    EXPECT_EQ(text.createdAt, 1001.25);
    EXPECT_EQ(text.lastUsedAt, latest + 1);
    EXPECT_EQ(text.byteSize, 10);
    EXPECT_FALSE(text.isPinned);
    EXPECT_FALSE(text.isSensitive());
    EXPECT_EQ(payload(1), drafts::text(u"grün \U0001F600"_s).payload);

    const Clip styled = clip(2);
    EXPECT_EQ(styled.kind, ClipKind::richText);
    EXPECT_TRUE(styled.isPinned);
    EXPECT_EQ(styled.pinOrder, 1'700'000'000'123);
    ASSERT_EQ(payload(2).items.size(), 1U);
    EXPECT_EQ(payload(2).items[0].order, (QStringList{uniformtype::rtf, uniformtype::utf8PlainText}));

    EXPECT_EQ(clip(3).kind, ClipKind::link);
    EXPECT_EQ(clip(6).kind, ClipKind::color);
    EXPECT_EQ(clip(7).expiresAt, 64'092'211'200.5);
    EXPECT_EQ(payload(9), ClipPayload());
}

TEST_F(HistoryFixture, PicturesAndFilesHaveAllTheirFields) {
    const QByteArray png("\x89PNG\r\n\x1a\n");
    const Clip image = clip(4);
    EXPECT_EQ(image.kind, ClipKind::image);
    EXPECT_EQ(image.thumbnail, png);
    EXPECT_EQ(image.imageText, u"read"_s);
    EXPECT_TRUE(image.imageTextIsAccurate);
    EXPECT_TRUE(image.isScreenshot);
    EXPECT_EQ(payload(4), drafts::image(png + "pixels").payload);

    const Clip file = clip(5);
    EXPECT_EQ(file.kind, ClipKind::file);
    EXPECT_EQ(file.files,
              (std::vector<FileRef>{{u"/home/someone/notes.txt"_s, u"notes.txt"_s, QByteArray("\x01\x02")}}));
}

TEST_F(HistoryFixture, ARowOfBeforeTheMarksHasNone) {
    EXPECT_EQ(clip(8).title, u"before the marks"_s);
    EXPECT_FALSE(clip(8).isScreenshot);
    EXPECT_FALSE(clip(8).imageTextIsAccurate);
    EXPECT_TRUE(clip(8).isPinned);
}

TEST_F(HistoryFixture, CopiesOfTodayAreRecognised) {
    const QByteArray png("\x89PNG\r\n\x1a\n");
    EXPECT_EQ(awaited(m_store->add(drafts::text(u"grün \U0001F600"_s), 9000))->id, clip(1).id);
    EXPECT_EQ(awaited(m_store->add(drafts::text(u"styled"_s), 9001))->id, clip(2).id);
    EXPECT_EQ(awaited(m_store->add(drafts::image(png + "pixels"), 9002))->id, clip(4).id);
    EXPECT_EQ(awaited(m_store->add(drafts::files({u"/home/someone/notes.txt"_s}), 9003))->id, clip(5).id);
    EXPECT_EQ(m_store->clips().size(), 9U);
}

} // namespace
} // namespace vellumry
