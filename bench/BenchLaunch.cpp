// SPDX-License-Identifier: GPL-3.0-or-later

// From the history file to its latest clips in a store, and to a complete store whose file was checked beside, against
// reading the same rows and opening them with AES-GCM: `bench_launch [--large]`.

#include "Corpus.h"
#include "Measure.h"
#include "foundation/SerialExecutor.h"
#include "history/clips/ClipStore.h"
#include "history/file/ClipDatabase.h"
#include "history/file/ClipRows.h"
#include "history/file/HistoryFile.h"
#include "history/file/MemoryKeyStore.h"
#include "history/file/SealedBlob.h"

#include <QCoreApplication>
#include <QCoroTask>
#include <QElapsedTimer>
#include <QTemporaryDir>
#include <cstdio>
#include <cstring>
#include <memory>
#include <openssl/evp.h>

namespace vellumry::bench {

namespace {

constexpr int runs = 7;
/// Nothing is to go.
constexpr RetentionPolicy unlimited{std::nullopt, qint64{1} << 40, qint64{1} << 60};

void fill(const QString& folder, KeyStore& keyStore, const std::vector<ClipRef>& clips) {
    const auto crypto = ClipDatabase::openHistory(folder, keyStore).value().database->crypto();
    SQLiteDatabase file(folder + u'/' + historyfile::fileName, SQLiteDatabase::Access::readWrite);
    file.execute("BEGIN");
    for (const ClipRef& clip : clips)
        cliprows::write(file, crypto, *clip, Corpus::payloadOf(*clip));
    file.execute("COMMIT");
    file.execute("PRAGMA wal_checkpoint(TRUNCATE);");
}

/// Opens sealed bytes with one context that is set up once; as little as it can be.
class Opener {
public:
    explicit Opener(const SymmetricKey& key)
        : m_context(EVP_CIPHER_CTX_new(), EVP_CIPHER_CTX_free) {
        EVP_DecryptInit_ex(m_context.get(), EVP_aes_256_gcm(), nullptr, key.bytes().data(), nullptr);
    }
    bool open(QByteArrayView sealed) {
        const auto* const nonce = reinterpret_cast<const unsigned char*>(sealed.data());
        const auto length = static_cast<int>(sealed.size() - sealedblob::overhead);
        m_plain.resize(length + 16);
        int written = 0;
        QByteArray tag = sealed.last(sealedblob::tagSize).toByteArray();
        EVP_DecryptInit_ex(m_context.get(), nullptr, nullptr, nullptr, nonce);
        EVP_DecryptUpdate(m_context.get(), reinterpret_cast<unsigned char*>(m_plain.data()), &written,
                          nonce + sealedblob::nonceSize, length);
        EVP_CIPHER_CTX_ctrl(m_context.get(), EVP_CTRL_AEAD_SET_TAG, sealedblob::tagSize, tag.data());
        return EVP_DecryptFinal_ex(m_context.get(), reinterpret_cast<unsigned char*>(m_plain.data()) + written,
                                   &written) == 1;
    }

private:
    std::unique_ptr<EVP_CIPHER_CTX, decltype(&EVP_CIPHER_CTX_free)> m_context;
    QByteArray m_plain;
};

/// What no program that has these rows can do without.
std::size_t readAndOpen(const QString& folder, const SymmetricKey& key) {
    SQLiteDatabase file(folder + u'/' + historyfile::fileName, SQLiteDatabase::Access::readOnly);
    Opener opener(key);
    auto rows = file.prepare("SELECT id, kind, created, used, pinned, expires, fingerprint, size, meta FROM clips "
                             "ORDER BY used DESC;");
    std::size_t opened = 0;
    while (rows.step())
        opened += opener.open(rows.blob(8)) ? 1 : 0;
    return opened;
}

QCoro::Task<bool> checkOf(SerialExecutor* executor, QString path) {
    auto check = [path] { return historyfile::passesCheck(path); };
    auto checking = executor->run(std::move(check));
    co_return co_await checking;
}

/// As the program starts; `latest` is how long it took until something could be seen.
std::unique_ptr<ClipStore> launched(const QString& folder, KeyStore& keyStore, double& latest) {
    QElapsedTimer timer;
    timer.start();
    SerialExecutor opening("Opening");
    const auto history =
        ClipDatabase::openHistory(folder, keyStore, KeyStore::Asking::allowed, FileCheck::beside).value();
    auto store = std::make_unique<ClipStore>(unlimited);
    QObject::connect(store.get(), &ClipStore::storageChanged, store.get(),
                     [&] { latest = latest > 0 ? latest : static_cast<double>(timer.nsecsElapsed()) / 1e6; });
    const QString path = folder + u'/' + historyfile::fileName;
    keep(QCoro::waitFor(store->attach(history.database, false, [&opening, path] { return checkOf(&opening, path); })));
    store->disconnect();
    return store;
}

void benchLaunch(std::size_t count) {
    QTemporaryDir folder;
    MemoryKeyStore keyStore;
    fill(folder.path(), keyStore, Corpus(42).clips(count));
    std::vector<double> floors;
    std::vector<double> latest;
    std::vector<double> complete;
    std::size_t loaded = 0;
    for (int run = 0; run < runs; ++run) {
        floors.push_back(milliseconds([&] { keep(readAndOpen(folder.path(), *keyStore.key())); }));
        std::unique_ptr<ClipStore> store;
        double first = 0;
        complete.push_back(milliseconds([&] { store = launched(folder.path(), keyStore, first); }));
        latest.push_back(first);
        loaded = store->clips().size();
    }
    std::printf("%9zu %9zu | %10.1f | %10.1f | %10.1f %6.2f\n", count, loaded, median(floors), median(latest),
                median(complete), median(complete) / median(floors));
}

} // namespace

} // namespace vellumry::bench

int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    const bool isLarge = argc > 1 && std::strcmp(argv[1], "--large") == 0;
    std::printf("%9s %9s | %10s | %10s | %10s %6s\n", "rows", "clips", "floor ms", "latest ms", "all ms", "ratio");
    vellumry::bench::benchLaunch(10'000);
    vellumry::bench::benchLaunch(100'000);
    if (isLarge)
        vellumry::bench::benchLaunch(1'000'000);
    return 0;
}
