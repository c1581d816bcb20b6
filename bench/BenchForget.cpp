// SPDX-License-Identifier: GPL-3.0-or-later

// How long the main thread is held while much is forgotten at once, and whether the file gives its space back:
// `bench_forget`. "held" is the longest time between two turns of the event loop; a frame of a panel takes 16 ms.
// "busy" is what of it the main thread worked, which other programs do not disturb.

#include "Corpus.h"
#include "Measure.h"
#include "history/clips/ClipStore.h"
#include "history/file/ClipDatabase.h"
#include "history/file/ClipRows.h"
#include "history/file/HistoryFile.h"
#include "history/file/MemoryKeyStore.h"
#include "support/Awaited.h"

#include <QCoreApplication>
#include <QCoroTask>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QTimer>
#include <algorithm>
#include <cstdio>
#include <cstring>
#include <ctime>
#include <functional>
#include <limits>
#include <memory>

namespace vellumry::bench {

namespace {

constexpr Date now = 1.8e9;

RetentionPolicy unlimited() {
    return {.maxAge = std::nullopt,
            .maxCount = std::numeric_limits<int>::max(),
            .maxMediaBytes = std::numeric_limits<qint64>::max()};
}

struct Measured {
    double held = 0;  ///< milliseconds
    double busy = 0;  ///< milliseconds
    double whole = 0; ///< milliseconds
};

using SteadyClock = std::chrono::steady_clock;

double since(SteadyClock::time_point start) {
    return std::chrono::duration<double, std::milli>(SteadyClock::now() - start).count();
}

/// Milliseconds that this thread has worked.
double worked() {
    timespec time{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) * 1e3 + static_cast<double>(time.tv_nsec) / 1e6;
}

/// Milliseconds that no work takes.
constexpr int longest = 120'000;

/// Runs the event loop until the task is done, and notes how long it was away.
Measured measured(const std::function<QCoro::Task<void>()>& work) {
    Measured result;
    auto last = SteadyClock::now();
    double lastWorked = worked();
    const auto turn = [&] {
        result.held = std::max(result.held, since(last));
        result.busy = std::max(result.busy, worked() - lastWorked);
        last = SteadyClock::now();
        lastWorked = worked();
    };
    QTimer turns;
    QObject::connect(&turns, &QTimer::timeout, &turns, turn);
    turns.start(1);
    const auto start = SteadyClock::now();
    auto task = work();
    turn();
    runUntil([&task] { return task.isReady(); }, longest);
    turn();
    result.whole = since(start);
    return result;
}

/// A history of `count` clips on the disk, each `every`-th of them sensitive.
class Sample {
public:
    Sample(std::size_t count, std::size_t every) {
        (void)ClipDatabase::openHistory(m_folder.path(), m_keyStore).value();
        SQLiteDatabase file(path(), SQLiteDatabase::Access::readWrite);
        const ClipCrypto crypto(*m_keyStore.key());
        file.execute("BEGIN;");
        std::size_t number = 0;
        for (const ClipRef& made : Corpus(1).clips(count)) {
            Clip clip = *made;
            if (every > 0 && number++ % every == 0)
                clip.expiresAt = now;
            cliprows::write(file, crypto, clip, Corpus::payloadOf(clip));
        }
        file.execute("COMMIT;");
    }
    [[nodiscard]] std::unique_ptr<ClipStore> open() {
        auto store = QCoro::waitFor(ClipStore::open(
            ClipDatabase::openHistory(m_folder.path(), m_keyStore).value().database, unlimited(), false));
        // As after a first search: the folded texts are there too.
        keep(store->search(QStringLiteral("ab"), ClipFilter::all));
        // What a start and a first search put off is not what is measured.
        QCoreApplication::processEvents();
        return store;
    }
    [[nodiscard]] double megabytes() const {
        double bytes = 0;
        for (const char* suffix : historyfile::companionSuffixes)
            bytes += static_cast<double>(QFileInfo(path() + QLatin1StringView(suffix)).size());
        return bytes / 1e6;
    }

private:
    [[nodiscard]] QString path() const { return m_folder.filePath(historyfile::fileName); }
    QTemporaryDir m_folder;
    MemoryKeyStore m_keyStore;
};

void print(const char* what, std::size_t clips, const Measured& measured, double before, double after) {
    std::printf("%-22s %8zu | %8.1f | %8.1f | %8.0f | %9.1f %9.1f\n", what, clips, measured.held, measured.busy,
                measured.whole, before, after);
    std::fflush(stdout);
}

void benchClear(std::size_t count) {
    Sample sample(count, 0);
    const auto store = sample.open();
    const double before = sample.megabytes();
    const Measured result = measured([&] { return store->clearHistory(false); });
    print("clear all", count, result, before, sample.megabytes());
}

void benchExpire(std::size_t count, std::size_t sensitive) {
    Sample sample(count, count / sensitive);
    const auto store = sample.open();
    const double before = sample.megabytes();
    const Measured result = measured([&] { return store->enforceRetention(now); });
    print("expiries due at once", count - store->clips().size(), result, before, sample.megabytes());
}

} // namespace

} // namespace vellumry::bench

int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    std::printf("%-22s %8s | %8s | %8s | %8s | %9s %9s\n", "", "clips", "held ms", "busy ms", "whole ms", "MB before",
                "MB after");
    vellumry::bench::benchExpire(10'000, 1'000);
    vellumry::bench::benchClear(10'000);
    if (argc > 1 && std::strcmp(argv[1], "--small") == 0)
        return 0;
    vellumry::bench::benchExpire(100'000, 1'000);
    vellumry::bench::benchClear(100'000);
    return 0;
}
