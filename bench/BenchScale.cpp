// SPDX-License-Identifier: GPL-3.0-or-later

// What a long history costs: `bench_scale [--large]`. With --large also a million clips, which takes some minutes, 4 GB
// of memory and as much of the temporary folder.

#include "Corpus.h"
#include "Measure.h"
#include "history/clips/ClipStore.h"
#include "history/file/ClipDatabase.h"
#include "history/file/ClipRows.h"
#include "history/file/HistoryFile.h"
#include "history/file/MemoryKeyStore.h"

#include <QCoreApplication>
#include <QCoroTask>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <algorithm>
#include <cstdio>
#include <cstring>
#include <malloc.h>
#include <memory>
#include <unistd.h>

namespace vellumry::bench {

namespace {

constexpr int runs = 5;
constexpr std::size_t clipsPerBatch = 10'000;
constexpr qsizetype longestQuery = 12;
/// Nothing is to go.
constexpr RetentionPolicy unlimited{std::nullopt, qint64{1} << 40, qint64{1} << 60};

std::size_t residentBytes() {
    QFile file(QStringLiteral("/proc/self/statm"));
    if (!file.open(QIODevice::ReadOnly))
        return 0;
    return file.readAll().split(' ').at(1).toULongLong() * static_cast<std::size_t>(sysconf(_SC_PAGESIZE));
}

/// Everything of a clip that has to be in memory: its text once, and its thumbnail.
std::size_t contentBytes(const Clip& clip) {
    qsizetype bytes = clip.searchText.utf8().size();
    if (clip.searchText.isEmpty())
        bytes += clip.title.utf8().size();
    if (clip.imageText)
        bytes += clip.imageText->utf8().size();
    if (clip.thumbnail)
        bytes += clip.thumbnail->size();
    return static_cast<std::size_t>(bytes);
}

void fill(const QString& folder, KeyStore& keyStore, Corpus& corpus, std::size_t count) {
    const auto crypto = ClipDatabase::openHistory(folder, keyStore).value().database->crypto();
    SQLiteDatabase file(folder + u'/' + historyfile::fileName, SQLiteDatabase::Access::readWrite);
    for (std::size_t written = 0; written < count; written += clipsPerBatch) {
        file.execute("BEGIN");
        for (const ClipRef& clip : corpus.clips(std::min(clipsPerBatch, count - written))) {
            // Without the pictures themselves: no figure here reads them, and they would fill the disk.
            const bool isPicture = clip->kind == ClipKind::image;
            cliprows::write(file, crypto, *clip, isPicture ? ClipPayload() : Corpus::payloadOf(*clip));
        }
        file.execute("COMMIT");
    }
    file.execute("PRAGMA wal_checkpoint(TRUNCATE);");
}

/// A store over a history file of its own.
class LongHistory {
public:
    explicit LongHistory(std::size_t count)
        : m_count(count) {
        fill(m_folder.path(), m_keyStore, m_corpus, count);
        malloc_trim(0);
    }

    void launch() {
        const std::size_t before = residentBytes();
        OpenedHistory history;
        const double check =
            milliseconds([&] { history = ClipDatabase::openHistory(m_folder.path(), m_keyStore).value(); });
        const double load =
            milliseconds([&] { m_store = QCoro::waitFor(ClipStore::open(history.database, unlimited, false)); });
        std::size_t content = 0;
        const std::size_t after = residentBytes();
        for (const ClipRef& clip : m_store->clips())
            content += contentBytes(*clip);
        const auto fileSize = static_cast<double>(QFileInfo(m_folder.filePath(historyfile::fileName)).size());
        std::printf("%zu clips, %.0f bytes of text and thumbnail each\n", m_store->clips().size(), perClip(content));
        std::printf("  file: %.1f MB, %.0f bytes a clip\n", fileSize / 1e6, fileSize / static_cast<double>(m_count));
        std::printf("  launch: %.1f ms, and %.1f ms to check the file\n", load, check);
        printMemory("memory at rest", after - before, content);
        m_content = content;
        m_before = before;
    }

    void search() {
        std::printf("  first search, which folds everything: %.1f ms\n",
                    milliseconds([&] { keep(m_store->search(QStringLiteral("☃"), ClipFilter::all)); }));
        printMemory("memory once searched", residentBytes() - m_before, m_content);
        const QString word = QString::fromUtf8(m_corpus.piece(longestQuery, true, 20'000));
        std::printf("  keystroke that begins with 1 to %d characters of \"%s\":", static_cast<int>(longestQuery),
                    qPrintable(word));
        for (qsizetype length = 1; length <= longestQuery; ++length)
            std::printf(" %.1f", searchFromNothing(word.first(length)));
        std::printf(" ms\n  the same typed one by one:");
        keep(m_store->search(QStringLiteral("☃"), ClipFilter::all));
        for (qsizetype length = 1; length <= longestQuery; ++length)
            std::printf(" %.1f", milliseconds([&] { keep(m_store->search(word.first(length), ClipFilter::all)); }));
        std::printf(" ms\n  a word that occurs nowhere: %.1f ms\n", searchFromNothing(QStringLiteral("zqxjkvzqxjkv")));
    }

    void change() {
        std::vector<double> adds;
        std::vector<double> searches;
        std::vector<double> uses;
        std::vector<double> removals;
        for (int run = 0; run < 4 * runs; ++run) {
            ClipDraft draft;
            draft.title = draft.searchText = QStringLiteral("a new text %1").arg(run);
            Clip clip;
            clip.searchText = draft.searchText;
            draft.payload = Corpus::payloadOf(clip);
            ClipRef added;
            adds.push_back(milliseconds([&] { added = QCoro::waitFor(m_store->add(draft, 1.9e9 + run)); }));
            searches.push_back(milliseconds([&] { keep(m_store->search(QStringLiteral("text"), ClipFilter::all)); }));
            const QUuid old = m_store->clips()[m_store->clips().size() / 2]->id;
            uses.push_back(milliseconds([&] { QCoro::waitFor(m_store->markUsed(old, 1.95e9 + run)); }));
            removals.push_back(milliseconds([&] { QCoro::waitFor(m_store->remove({added->id}, false)); }));
        }
        std::printf("  add %.2f ms, the keystroke after it %.1f ms, use %.2f ms, delete %.2f ms\n", median(adds),
                    median(searches), median(uses), median(removals));
    }

private:
    [[nodiscard]] double perClip(std::size_t bytes) const {
        return static_cast<double>(bytes) / static_cast<double>(m_count);
    }
    void printMemory(const char* name, std::size_t bytes, std::size_t content) const {
        std::printf("  %s: %.1f MB, %.0f bytes a clip beside %.0f of text and thumbnail\n", name,
                    static_cast<double>(bytes) / 1e6, perClip(bytes) - perClip(content), perClip(content));
    }
    [[nodiscard]] double searchFromNothing(const QString& query) {
        std::vector<double> times;
        for (int run = 0; run < runs; ++run) {
            // Has nothing in common with the query, so that its hits do not help.
            keep(m_store->search(QStringLiteral("☃☃"), ClipFilter::all));
            times.push_back(milliseconds([&] { keep(m_store->search(query, ClipFilter::all)); }));
        }
        return median(times);
    }

    std::size_t m_count;
    QTemporaryDir m_folder;
    MemoryKeyStore m_keyStore;
    Corpus m_corpus{42};
    std::unique_ptr<ClipStore> m_store;
    std::size_t m_content = 0;
    std::size_t m_before = 0;
};

void benchScale(std::size_t count) {
    LongHistory history(count);
    history.launch();
    history.search();
    history.change();
}

} // namespace

} // namespace vellumry::bench

int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    const bool isLarge = argc > 1 && std::strcmp(argv[1], "--large") == 0;
    vellumry::bench::benchScale(10'000);
    vellumry::bench::benchScale(100'000);
    if (isLarge)
        vellumry::bench::benchScale(1'000'000);
    return 0;
}
