// SPDX-License-Identifier: GPL-3.0-or-later

// From a copy to its clip on the disk, against SQLite's part of it alone: `bench_add`. Medians of five runs, each the
// medians of its copies; beside the ratio the least and the most of the five.

#include "Corpus.h"
#include "Measure.h"
#include "history/clips/ClipStore.h"
#include "history/file/ClipDatabase.h"
#include "history/file/HistoryFile.h"
#include "history/file/MemoryKeyStore.h"
#include "history/file/RowIdentity.h"

#include <QCoreApplication>
#include <QCoroTask>
#include <QTemporaryDir>
#include <QUuid>
#include <algorithm>
#include <array>
#include <cstdio>
#include <cstdlib>
#include <memory>

namespace vellumry::bench {

namespace {

constexpr int runs = 5;
constexpr int copies = 300;
// As capture cuts them.
constexpr qsizetype longestTitle = 300;
constexpr qsizetype longestSearchText = 200'000;

/// A file with the same table and settings, whose rows are made beforehand.
class PlainInserter {
public:
    explicit PlainInserter(const QString& folder) {
        MemoryKeyStore keyStore;
        // The constructor of the product's own database sets the file up; only then does this connection open it.
        (void)ClipDatabase::openHistory(folder, keyStore).value();
        m_file =
            std::make_unique<SQLiteDatabase>(folder + u'/' + historyfile::fileName, SQLiteDatabase::Access::readWrite);
    }

    using Row = std::array<SQLValue, 10>;

    /// A row with `meta` and `payload` as large as a clip's with that much text has them.
    [[nodiscard]] Row rowOf(qsizetype textLength) {
        const qsizetype metaSize =
            std::min(textLength, longestSearchText) + std::min<qsizetype>(textLength, longestTitle) + 250;
        return {rowidentity::textOf(QUuid::createUuid()),
                qint64{0},
                1.8e9,
                1.8e9,
                qint64{0},
                std::monostate(),
                QString::number(++m_count).rightJustified(64, u'0'),
                qint64{textLength},
                QByteArray(metaSize, 'm'),
                QByteArray(textLength + 200, 'p')};
    }

    void insert(const Row& row) {
        auto statement = m_file->prepare("INSERT OR REPLACE INTO clips (id, kind, created, used, pinned, expires, "
                                         "fingerprint, size, meta, payload)\n"
                                         "VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?, ?);");
        statement.bind(row);
        statement.step();
    }

private:
    std::unique_ptr<SQLiteDatabase> m_file;
    int m_count = 0;
};

ClipDraft draftOf(qsizetype length, int number) {
    Clip clip;
    clip.searchText = StoredText::fromUtf8(QByteArray::number(number).leftJustified(length, 'x', true));
    ClipDraft draft;
    draft.searchText = clip.searchText.toString().left(longestSearchText);
    draft.title = draft.searchText.left(longestTitle);
    draft.payload = Corpus::payloadOf(clip);
    return draft;
}

struct Medians {
    double insert = 0;
    double add = 0;
    [[nodiscard]] double ratio() const { return add / insert; }
};

/// Both in turns, each on a file of its own that begins empty.
Medians runOnce(qsizetype length) {
    QTemporaryDir plainFolder;
    QTemporaryDir folder;
    PlainInserter plain(plainFolder.path());
    MemoryKeyStore keyStore;
    const auto store = QCoro::waitFor(
        ClipStore::open(ClipDatabase::openHistory(folder.path(), keyStore).value().database, RetentionPolicy(), false));
    std::vector<double> inserts;
    std::vector<double> adds;
    for (int copy = 0; copy < copies; ++copy) {
        const PlainInserter::Row row = plain.rowOf(length);
        inserts.push_back(milliseconds([&] { plain.insert(row); }));
        const ClipDraft draft = draftOf(length, copy);
        adds.push_back(milliseconds([&] { keep(QCoro::waitFor(store->add(draft, 1.8e9 + copy))); }));
    }
    return {median(inserts), median(adds)};
}

void benchAdd(qsizetype length) {
    std::vector<double> inserts;
    std::vector<double> adds;
    std::vector<double> ratios;
    for (int run = 0; run < runs; ++run) {
        const Medians medians = runOnce(length);
        inserts.push_back(medians.insert);
        adds.push_back(medians.add);
        ratios.push_back(medians.ratio());
    }
    const auto [least, most] = std::ranges::minmax(ratios);
    std::printf("%10lld | %10.3f | %10.3f %6.2f (%.2f to %.2f)\n", static_cast<long long>(length), median(inserts),
                median(adds), median(ratios), least, most);
}

} // namespace

} // namespace vellumry::bench

int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    double load = 0;
    (void)getloadavg(&load, 1);
    std::printf("load %.1f, medians of %d runs of %d copies\n", load, vellumry::bench::runs, vellumry::bench::copies);
    std::printf("%10s | %10s | %10s %6s\n", "characters", "INSERT ms", "add ms", "ratio");
    for (const qsizetype length : {18, 720, 20'000, 500'000})
        vellumry::bench::benchAdd(length);
    return 0;
}
