// SPDX-License-Identifier: GPL-3.0-or-later
#include "transfer/HistoryExport.h"

#include "support/FileSizeLimit.h"
#include "transfer/TransferWorld.h"

#include <QDir>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>
#include <sys/stat.h>

namespace vellumry {
namespace {

class HistoryExportTest : public TransferWorld {
protected:
    /// One of each kind, with what could get lost on the way.
    void fill() {
        images.summary.thumbnail = QByteArray("thumbnail");
        add(drafts::text(QStringLiteral("plain\r\ntext 日本 👋")), now - 600);
        ClipDraft rich = drafts::text(QStringLiteral("rich"));
        rich.kind = ClipKind::richText;
        rich.sourceBundleID = QStringLiteral("org.example.Editor");
        rich.sourceAppName = QStringLiteral("Editor");
        rich.payload.items.front().representations.emplace(uniformtype::html, "<b>rich</b>\xff");
        rich.payload.items.front().representations.emplace(QStringLiteral("application/x-one"),
                                                           QByteArray("\0\1\2", 3));
        rich.payload.items.front().representations.emplace(QStringLiteral("application/x-two"), "second");
        rich.payload.items.front().order = QStringList{uniformtype::html, QStringLiteral("application/x-two"),
                                                       uniformtype::utf8PlainText, QStringLiteral("application/x-one")};
        add(rich, now - 500);
        ClipDraft picture = drafts::image(QByteArray("\x89PNG\r\n\0 bytes", 13));
        picture.isScreenshot = true;
        picture.title = QStringLiteral("Screenshot of a day");
        add(picture, now - 400);
        ClipDraft files = drafts::files({QStringLiteral("/tmp/a b"), QStringLiteral("/tmp/ü")});
        for (PasteboardItem& item : files.payload.items)
            item.order = QStringList{uniformtype::fileUrl};
        add(files, now - 300);
        ClipDraft odd = drafts::files({QStringLiteral("/tmp/c")});
        odd.payload.items.front().representations.emplace(uniformtype::utf8PlainText, "/tmp/c");
        add(odd, now - 200);
        const ClipRef pinned = add(drafts::text(QStringLiteral("pinned")), now - 100);
        awaited(store->setPinned(pinned->id, true, now - 90));
        awaited(store->markUsed(pinned->id, now - 50.125));
        add(drafts::secret(QStringLiteral("secret")), now - 1);
    }
    ClipRef add(ClipDraft draft, Date date) { return awaited(store->add(std::move(draft), date)); }
    [[nodiscard]] static QStringList names(const QString& folder) {
        return QDir(folder).entryList(QDir::AllEntries | QDir::NoDotAndDotDot | QDir::Hidden, QDir::Name);
    }
    [[nodiscard]] static QByteArray read(const QString& path) {
        QFile file(path);
        file.open(QIODevice::ReadOnly);
        return file.readAll();
    }
    [[nodiscard]] static mode_t mode(const QString& path) {
        struct stat state {};
        ::stat(QFile::encodeName(path).constData(), &state);
        return state.st_mode & 07777U;
    }
};

TEST_F(HistoryExportTest, EverythingComesBackByteForByte) {
    fill();
    const ExportOutcome outcome = exportTo(path("out"));
    EXPECT_EQ(outcome, (ExportOutcome{ExportOutcome::Result::done, 6, 1, 0}));
    TemporaryHistory other;
    const auto second = other.openStore();
    second->setClock([] { return now; });
    HistoryImport::Hooks hooks;
    hooks.clock = [] { return now; };
    HistoryImport importing(*second, nullptr, DraftBuilder(bookmarks, images), hooks);
    const ImportOutcome imported = awaited(importing.importFolder(path("out")));
    EXPECT_EQ(imported.added, 6) << imported.text().toStdString();
    std::vector<ClipRef> expected = store->clips();
    std::erase_if(expected, [](const ClipRef& clip) { return clip->isSensitive(); });
    ASSERT_EQ(second->clips().size(), expected.size());
    for (std::size_t i = 0; i < expected.size(); ++i) {
        const Clip& was = *expected[i];
        const Clip& is = *second->clips()[i];
        EXPECT_EQ(is.title, was.title);
        EXPECT_EQ(is.kind, was.kind) << was.title.toString().toStdString();
        EXPECT_EQ(is.createdAt, was.createdAt);
        EXPECT_EQ(is.lastUsedAt, was.lastUsedAt);
        EXPECT_EQ(is.isPinned, was.isPinned);
        EXPECT_EQ(is.pinOrder, was.pinOrder);
        EXPECT_EQ(is.sourceBundleID, was.sourceBundleID);
        EXPECT_EQ(is.sourceAppName, was.sourceAppName);
        EXPECT_EQ(is.isScreenshot, was.isScreenshot);
        EXPECT_EQ(awaited(second->payload(is.id)), awaited(store->payload(was.id)))
            << was.title.toString().toStdString();
    }
    // And once more, into the same files.
    HistoryExport again(*second);
    EXPECT_EQ(awaited(again.run(path("again"))).result, ExportOutcome::Result::done);
    ASSERT_EQ(names(path("again")), names(path("out")));
    for (const QString& name : names(path("out")))
        EXPECT_EQ(read(path("again") + u'/' + name), read(path("out") + u'/' + name)) << name.toStdString();
}

TEST_F(HistoryExportTest, FilesAreWhatTheirNamesSayAndOnlyTheUsersOwn) {
    fill();
    (void)exportTo(path("out"));
    EXPECT_EQ(read(path("out/000001.txt")), "pinned");
    EXPECT_EQ(read(path("out/000003.files.txt")), "file:///tmp/a%20b\nfile:///tmp/%C3%BC\n");
    EXPECT_TRUE(read(path("out/000004.png")).startsWith("\x89PNG"));
    EXPECT_EQ(read(path("out/000005.html")), "<b>rich</b>\xff");
    EXPECT_EQ(mode(path("out")), 0700U);
    for (const QString& name : names(path("out")))
        EXPECT_EQ(mode(path("out") + u'/' + name), 0600U) << name.toStdString();
    const QByteArray index = read(path("out/index.json"));
    EXPECT_TRUE(QJsonDocument::fromJson(index).isObject());
    for (const QString& name : names(path("out")))
        EXPECT_FALSE(read(path("out") + u'/' + name).contains("secret")) << name.toStdString();
}

TEST_F(HistoryExportTest, AFolderWithAnythingInItIsLeftAlone) {
    fill();
    QDir().mkpath(path("full/.hidden"));
    EXPECT_EQ(exportTo(path("full")).result, ExportOutcome::Result::notEmpty);
    EXPECT_EQ(names(path("full")), QStringList{QStringLiteral(".hidden")});
    QDir().mkpath(path("empty"));
    EXPECT_EQ(exportTo(path("empty")).result, ExportOutcome::Result::done);
    EXPECT_EQ(mode(path("empty")), 0700U);
}

TEST_F(HistoryExportTest, APlaceThatCannotBeWrittenToIsSaid) {
    fill();
    EXPECT_EQ(exportTo(path("no/such/place")).result, ExportOutcome::Result::refused);
    QFile file(path("file"));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    EXPECT_EQ(exportTo(path("file")).result, ExportOutcome::Result::refused);
    EXPECT_EQ(exportTo(path("file/below")).result, ExportOutcome::Result::refused);
    EXPECT_EQ(exportTo(QStringLiteral("/proc/vellumry")).result, ExportOutcome::Result::refused);
}

TEST_F(HistoryExportTest, AFullDiskLeavesNothingBehind) {
    fill();
    add(drafts::text(QString(20'000, u'x')), now - 700);
    const FileSizeLimit limit(4096);
    EXPECT_EQ(exportTo(path("out")).result, ExportOutcome::Result::noRoom);
    EXPECT_FALSE(QFileInfo::exists(path("out")));
    QDir().mkpath(path("kept"));
    EXPECT_EQ(exportTo(path("kept")).result, ExportOutcome::Result::noRoom);
    EXPECT_TRUE(names(path("kept")).isEmpty()) << "a folder of the user's stays";
}

TEST_F(HistoryExportTest, TheUserMayStopIt) {
    fill();
    exporting.onProgress = [this](const ExportOutcome&) { exporting.stop(); };
    EXPECT_EQ(exportTo(path("out")).result, ExportOutcome::Result::stopped);
    EXPECT_FALSE(QFileInfo::exists(path("out")));
}

TEST_F(HistoryExportTest, WhatWasBrokenOffIsNoExport) {
    fill();
    (void)exportTo(path("out"));
    // As it is when the program is killed before the end.
    ASSERT_TRUE(QFile::rename(path("out/index.json"), path("out/index.json.part")));
    EXPECT_TRUE(importFolder(path("out")).isMissing);
    EXPECT_TRUE(importFolder(path("nowhere")).isMissing);
}

TEST_F(HistoryExportTest, AFolderThatSomebodyChangedGivesWhatIsLeft) {
    fill();
    (void)exportTo(path("out"));
    awaited(store->clearHistory(false));
    ASSERT_TRUE(QFile::remove(path("out/000001.txt")));
    QByteArray index = read(path("out/index.json"));
    index.replace("000004.png", "../../outside");
    QFile file(path("out/index.json"));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(index);
    file.close();
    const ImportOutcome outcome = importFolder(path("out"));
    EXPECT_EQ(outcome.added, 4);
    EXPECT_EQ(outcome.unusable, 2);
    EXPECT_TRUE(outcome.isDamaged);
    for (const QByteArray& bytes :
         {QByteArray("{"), QByteArray("[]"), QByteArray("{\"vellumryExport\": 2, \"clips\": []}"),
          QByteArray("{\"vellumryExport\": 1, \"clips\": 3}")}) {
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
        file.close();
        EXPECT_TRUE(importFolder(path("out")).isMissing) << bytes.toStdString();
    }
}

TEST_F(HistoryExportTest, ClipsOfExcludedAppsAreLeftOutWhenTheyComeBack) {
    ClipDraft draft = drafts::text(QStringLiteral("from there"));
    draft.sourceBundleID = QStringLiteral("org.example.Ignored");
    add(draft, now - 10);
    (void)exportTo(path("out"));
    awaited(store->clearHistory(false));
    const ImportOutcome outcome = importFolder(path("out"));
    EXPECT_EQ(outcome.excluded, 1);
    EXPECT_EQ(outcome.added, 0);
}

TEST_F(HistoryExportTest, AnEmptyHistoryIsAnExportToo) {
    EXPECT_EQ(exportTo(path("out")), (ExportOutcome{ExportOutcome::Result::done, 0, 0, 0}));
    const ImportOutcome outcome = importFolder(path("out"));
    EXPECT_FALSE(outcome.isMissing || outcome.isDamaged);
}

TEST_F(HistoryExportTest, ItTellsWhatBecameOfIt) {
    const QString folder = QStringLiteral("/somewhere");
    EXPECT_EQ((ExportOutcome{ExportOutcome::Result::done, 5, 2, 0}).text(folder),
              QStringLiteral("5 clips are in /somewhere now, and not encrypted there. 2 clips that delete themselves "
                             "were left out."));
    EXPECT_EQ((ExportOutcome{ExportOutcome::Result::noRoom}).text(folder),
              QStringLiteral("The disk is full. Nothing was left in /somewhere."));
}

} // namespace
} // namespace vellumry
