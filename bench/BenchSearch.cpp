// SPDX-License-Identifier: GPL-3.0-or-later

// One keystroke of search against one plain scan of the same bytes: `bench_search [--large]`.

#include "Corpus.h"
#include "Measure.h"
#include "foundation/Text.h"
#include "history/search/ByteSearch.h"
#include "history/search/ClipSearch.h"
#include "history/search/LookAlike.h"

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <string>
#include <vector>

namespace vellumry::bench {

namespace {

constexpr int runs = 7;
/// The clips do not change while they are searched, and a store says so.
constexpr qint64 revision = 1;

/// The folded texts of all clips in one buffer: what a plain scan would go over.
/// What stands between two clips, and in none.
constexpr char clipEnd = '\xFF';

std::string foldedBuffer(const std::vector<ClipRef>& clips) {
    std::string buffer;
    for (const ClipRef& clip : clips) {
        const QString text = clip->title.toString() + u'\n' + clip->searchText.toString() + u'\n' +
                             clip->sourceAppName.value_or(QString()) + u'\n' +
                             clip->imageText.value_or(StoredText()).toString();
        buffer += text::foldedBytes(QStringView(text)).toStdString() + clipEnd;
    }
    return buffer;
}

/// The C library's search for the clips that have it: behind a clip's first hit the next clip is looked at, as our own
/// search does it.
std::size_t scanWithMemmem(const std::string& buffer, const QByteArray& needle) {
    const char* at = buffer.data();
    const char* const end = at + buffer.size();
    const auto length = static_cast<std::size_t>(needle.size());
    const auto left = [&at, end] { return static_cast<std::size_t>(end - at); };
    std::size_t hits = 0;
    while ((at = static_cast<const char*>(memmem(at, left(), needle.data(), length)))) {
        ++hits;
        at = static_cast<const char*>(std::memchr(at, clipEnd, left())) + 1;
    }
    return hits;
}

/// Our own search from one hit to the next, to the end.
std::size_t scanWithByteSearch(const std::string& buffer, const QByteArray& needle) {
    const ByteSearch search(needle);
    const char* at = buffer.data();
    std::size_t hits = 0;
    while ((at = search.find(at, buffer.data() + buffer.size())) != nullptr) {
        ++hits;
        at += needle.size();
    }
    return hits;
}

/// Leaves none of what is measured in the processor's caches: a user's next keystroke comes after other work.
void forgetCaches() {
    static std::vector<std::uint64_t> other(std::size_t{32} << 20);
    std::uint64_t sum = 0;
    for (std::uint64_t& value : other)
        sum += ++value;
    keep(sum);
}

struct Figures {
    double search = 0;
    double memmemScan = 0;
    double ownScan = 0;
    std::size_t found = 0;
};

Figures measure(ClipSearch& search, const std::vector<ClipRef>& clips, const std::string& buffer,
                const QByteArray& needle) {
    const QString query = QString::fromUtf8(needle);
    std::vector<double> searches;
    std::vector<double> memmemScans;
    std::vector<double> ownScans;
    Figures figures;
    for (int run = 0; run < runs; ++run) {
        // A query that has nothing in common with the next one, so that the next one starts from nothing.
        keep(search.search(clips, QStringLiteral("☃☃"), ClipFilter::all, revision));
        forgetCaches();
        searches.push_back(
            milliseconds([&] { figures.found = search.search(clips, query, ClipFilter::all, revision).size(); }));
        forgetCaches();
        memmemScans.push_back(milliseconds([&] { keep(scanWithMemmem(buffer, needle)); }));
        forgetCaches();
        ownScans.push_back(milliseconds([&] { keep(scanWithByteSearch(buffer, needle)); }));
    }
    figures.search = median(searches);
    figures.memmemScan = median(memmemScans);
    figures.ownScan = median(ownScans);
    return figures;
}

void printHeading() {
    std::printf("  %-22s %8s %10s | %10s %6s | %10s %6s\n", "query", "found", "search ms", "memmem ms", "ratio",
                "our scan", "ratio");
}

void print(const QByteArray& needle, const Figures& figures) {
    std::printf("  %-22s %8zu %10.3f | %10.3f %6.2f | %10.3f %6.2f\n", needle.constData(), figures.found,
                figures.search, figures.memmemScan, figures.search / figures.memmemScan, figures.ownScan,
                figures.search / figures.ownScan);
}

void printTyping(ClipSearch& search, const std::vector<ClipRef>& clips, const QString& word) {
    keep(search.search(clips, QStringLiteral("☃☃"), ClipFilter::all, revision));
    std::printf("  typing \"%s\":", qPrintable(word));
    for (qsizetype typed = 1; typed <= word.size(); ++typed)
        std::printf(" %.2f",
                    milliseconds([&] { keep(search.search(clips, word.first(typed), ClipFilter::all, revision)); }));
    std::printf(" ms\n");
}

void printAfterUse(ClipSearch& search, std::vector<ClipRef> clips, const QString& word) {
    std::vector<double> times;
    for (std::size_t run = 0; run < runs; ++run) {
        auto used = std::make_shared<Clip>(*clips[clips.size() / 2 + run]);
        used->lastUsedAt += 1;
        clips.erase(clips.begin() + static_cast<std::ptrdiff_t>(clips.size() / 2 + run));
        clips.insert(clips.begin(), used);
        times.push_back(milliseconds([&] { keep(search.search(clips, word, ClipFilter::all)); }));
    }
    std::printf("  \"%s\" after a clip has moved to the top: %.2f ms\n", qPrintable(word), median(times));
}

/// Prints the idle-time folding of the store, slice by slice, and the first search after it.
void printPrepared(const std::vector<ClipRef>& clips) {
    ClipSearch search;
    std::vector<double> slices;
    bool isDone = false;
    while (!isDone)
        slices.push_back(milliseconds([&] { isDone = search.prepare(clips, revision, std::chrono::milliseconds(3)); }));
    std::printf("  prepared in %zu slices, the longest %.1f ms, the last %.1f ms; the first search then: %.1f ms\n",
                slices.size(), *std::max_element(slices.begin(), slices.end() - 1), slices.back(),
                milliseconds([&] { keep(search.search(clips, QStringLiteral("e"), ClipFilter::all, revision)); }));
}

void benchHistory(std::size_t count) {
    Corpus corpus(42);
    const std::vector<ClipRef> clips = corpus.clips(count);
    const std::string buffer = foldedBuffer(clips);
    std::printf("%zu clips, %.1f MB of folded text (%.0f bytes a clip)\n", count,
                static_cast<double>(buffer.size()) / 1e6,
                static_cast<double>(buffer.size()) / static_cast<double>(count));
    ClipSearch search;
    std::printf("  first search, which folds everything: %.1f ms\n",
                milliseconds([&] { keep(search.search(clips, QStringLiteral("☃"), ClipFilter::all, revision)); }));
    printPrepared(clips);
    printHeading();
    for (const std::size_t length : {1, 2, 3, 8, 16}) {
        for (const bool isCommon : {true, false}) {
            const QByteArray needle = corpus.piece(length, isCommon, 20'000);
            print(needle, measure(search, clips, buffer, needle));
        }
    }
    const QByteArray absent = "zqxjkvzqxjkv";
    print(absent, measure(search, clips, buffer, absent));
    const QString word = QString::fromUtf8(corpus.piece(8, true, 20'000));
    printTyping(search, clips, word);
    printAfterUse(search, clips, word);
}

void benchScreenshots() {
    Corpus corpus(43);
    const std::vector<ClipRef> clips = corpus.screenshots(5000, 1500);
    const std::string buffer = foldedBuffer(clips);
    std::printf(
        "5000 screenshots with 1500 characters each (%.1f MB); the tolerant comparison sees all that have no exact "
        "hit\n",
        static_cast<double>(buffer.size()) / 1e6);
    ClipSearch search;
    std::printf("  first search, which makes the keys: %.1f ms\n",
                milliseconds([&] { keep(search.search(clips, QStringLiteral("☃"), ClipFilter::all, revision)); }));
    printHeading();
    for (const QByteArray needle : {"zqb", "zebqaw", "zqinvoixedgs", "the invoixedg of tqu"}) {
        print(needle, measure(search, clips, buffer, needle));
        std::printf("    %d characters, %d may differ\n", static_cast<int>(needle.size()),
                    allowedMismatches(static_cast<std::size_t>(needle.size())));
    }
}

} // namespace

} // namespace vellumry::bench

int main(int argc, char** argv) {
    const bool isLarge = argc > 1 && std::strcmp(argv[1], "--large") == 0;
    vellumry::bench::benchHistory(10'000);
    vellumry::bench::benchHistory(100'000);
    if (isLarge)
        vellumry::bench::benchHistory(1'000'000);
    vellumry::bench::benchScreenshots();
    return 0;
}
