// SPDX-License-Identifier: GPL-3.0-or-later

// Fills a history file before the program's first start: `bench_fill FOLDER < texts`, the texts separated by zeros, the
// first one oldest. The key goes into the session's keyring.

#include "capture/DraftTitles.h"
#include "foundation/UniformType.h"
#include "history/clips/ClipFingerprint.h"
#include "history/clips/ClipOfDraft.h"
#include "history/file/ClipDatabase.h"
#include "history/file/ClipRows.h"
#include "history/file/HistoryFile.h"
#include "linux/keyring/KeychainKeyStore.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <cstdio>

namespace vellumry::bench {

namespace {

ClipDraft draftOf(const QByteArray& text) {
    ClipDraft draft;
    draft.searchText = QString::fromUtf8(text);
    draft.title = titleOf(draft.searchText);
    ClipPayload::Item item;
    item.representations[uniformtype::utf8PlainText] = text;
    draft.payload.items = {item};
    return draft;
}

int fill(const QString& folder, const QList<QByteArray>& texts) {
    QDir().mkpath(folder);
    KeychainKeyStore keyStore;
    const auto history = ClipDatabase::openHistory(folder, keyStore);
    if (!history) {
        std::fputs("bench_fill: no history can be made there\n", stderr);
        return 1;
    }
    const ClipCrypto crypto = history->database->crypto();
    SQLiteDatabase file(QDir(folder).filePath(historyfile::fileName), SQLiteDatabase::Access::readWrite);
    Date date = currentDate() - static_cast<double>(texts.size());
    file.execute("BEGIN;");
    for (const QByteArray& text : texts) {
        const ClipDraft draft = draftOf(text);
        const Clip clip = clipOfDraft(draft, nullptr, fingerprintOf(draft, crypto), date += 1, 0);
        cliprows::write(file, crypto, clip, draft.payload);
    }
    file.execute("COMMIT;");
    return 0;
}

} // namespace

} // namespace vellumry::bench

int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    if (argc != 2) {
        std::fputs("usage: bench_fill FOLDER < texts\n", stderr);
        return 2;
    }
    QFile input;
    if (!input.open(stdin, QIODevice::ReadOnly))
        return 1;
    return vellumry::bench::fill(QFile::decodeName(argv[1]), input.readAll().split('\0'));
}
