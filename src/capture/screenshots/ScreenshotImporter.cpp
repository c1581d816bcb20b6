// SPDX-License-Identifier: GPL-3.0-or-later
#include "capture/screenshots/ScreenshotImporter.h"

#include "capture/DraftTitles.h"
#include "foundation/FileUrl.h"
#include "foundation/Localisation.h"
#include "foundation/RunDetached.h"

#include <QPointer>
#include <QTimer>
#include <algorithm>
#include <utility>

namespace vellumry {

namespace {

constexpr int thumbnailPixels = 160;
constexpr int mostRetries = 5;
constexpr std::chrono::milliseconds retryDelay{1000};
constexpr std::chrono::milliseconds longestListing{10'000};
constexpr std::chrono::milliseconds longestReading{30'000};

ClipDraft draftOf(ScreenshotFile file, const QString& path, const ImageSummary& summary, Date now) {
    ClipDraft draft;
    draft.kind = ClipKind::image;
    draft.isScreenshot = true;
    draft.title = screenshotTitle(file.createdAt.value_or(now));
    draft.sourceBundleID = QStringLiteral("com.apple.screencaptureui");
    draft.sourceAppName = localised("Screenshot");
    draft.thumbnail = summary.thumbnail;
    QStringList words{draft.title, fileurl::lastPathComponent(path)};
    if (summary.pixelSize)
        words.append(imageTitle(summary.pixelSize));
    draft.searchText = words.join(u'\n');
    PasteboardItem item;
    item.order = QStringList(file.type);
    item.representations.emplace(file.type, std::move(file.bytes));
    draft.payload.items.push_back(std::move(item));
    return draft;
}

/// Some tools write under a hidden name and rename the file at the end.
QStringList visiblePaths(const QStringList& folders, const std::vector<std::optional<QStringList>>& listed) {
    QStringList paths;
    for (std::size_t i = 0; i < listed.size(); ++i) {
        for (const QString& name : listed[i].value_or(QStringList())) {
            if (!name.startsWith(u'.'))
                paths.append(folders[static_cast<qsizetype>(i)] + u'/' + name);
        }
    }
    return paths;
}

} // namespace

ScreenshotImporter::ScreenshotImporter(ClipStore& store, ImageCodec& images, FolderWatching& watching, Hooks hooks)
    : m_store(&store)
    , m_images(&images)
    , m_watching(&watching)
    , m_hooks(std::move(hooks)) {}

ScreenshotImporter::~ScreenshotImporter() = default;

void ScreenshotImporter::afterAWhile(std::chrono::milliseconds delay, std::function<void()> function) {
    QTimer::singleShot(delay, Qt::PreciseTimer, qApp, std::move(function));
}

QCoro::Task<std::optional<ScreenshotImporter::Listings>> ScreenshotImporter::listings(Hooks hooks,
                                                                                      QStringList folders) {
    std::function<Listings()> job = [list = hooks.list, folders] {
        Listings result;
        for (const QString& folder : folders)
            result.push_back(list(folder));
        return result;
    };
    auto listing = runDetached(std::move(job), longestListing);
    std::optional<Listings> result = co_await listing;
    co_return result;
}

QCoro::Task<bool> ScreenshotImporter::start() {
    stop();
    const quint64 session = m_session;
    const QPointer<ScreenshotImporter> self(this);
    auto asking = runDetached(m_hooks.folders, longestListing);
    const std::optional<QStringList> folders = co_await asking;
    if (!self || session != m_session || !folders)
        co_return false;

    // Watching comes before listing: what appears between the two is known, not lost to a later event alone.
    std::unique_ptr<FolderWatch> watch = m_watching->watch(*folders, [self] {
        if (self)
            self->folderChanged();
    });
    auto listing = listings(m_hooks, *folders);
    const std::optional<Listings> listed = co_await listing;
    if (!self || session != m_session || !watch || !listed)
        co_return false;

    QStringList readable;
    QSet<QString> known;
    for (qsizetype i = 0; i < folders->size(); ++i) {
        const std::optional<QStringList>& names = (*listed)[static_cast<std::size_t>(i)];
        if (!names)
            continue;
        readable.append(folders->at(i));
        for (const QString& name : *names)
            known.insert(folders->at(i) + u'/' + name);
    }
    if (readable.isEmpty())
        co_return false;
    m_folders = std::move(readable);
    m_known = std::move(known);
    m_watch = std::move(watch);
    // What appeared in one folder while another was still being listed.
    if (std::exchange(m_scanAgain, false))
        scan(false);
    co_return true;
}

void ScreenshotImporter::stop() {
    ++m_session;
    m_watch.reset();
    m_folders.clear();
    m_known.clear();
    m_retries.clear();
    m_scanAgain = false;
}

void ScreenshotImporter::folderChanged() {
    if (isWatching())
        scan(false);
    else
        m_scanAgain = true;
}

QCoro::Task<void> ScreenshotImporter::scan(bool isRetry) {
    if (m_folders.isEmpty())
        co_return;
    if (m_isScanning) {
        m_scanAgain = true;
        co_return;
    }
    m_isScanning = true;
    const quint64 session = m_session;
    const QStringList folders = m_folders;
    const QPointer<ScreenshotImporter> self(this);
    auto listing = listings(m_hooks, folders);
    const std::optional<Listings> listed = co_await listing;
    if (!self)
        co_return;
    QSet<QString> looked;
    for (const QString& path : listed ? visiblePaths(folders, *listed) : QStringList()) {
        if (session != m_session || m_known.contains(path))
            continue;
        m_known.insert(path);
        looked.insert(path);
        auto importing = importFile(path, isRetry, session);
        co_await importing;
        if (!self)
            co_return;
    }
    // What has gone is not waited for.
    m_retries.removeIf([&looked](const auto& attempts) { return !looked.contains(attempts.key()); });
    m_isScanning = false;
    if (!m_retries.isEmpty())
        retryLater();
    if (std::exchange(m_scanAgain, false))
        scan(false);
}

QCoro::Task<void> ScreenshotImporter::importFile(QString path, bool isRetry, quint64 session) {
    if (!isAllowed() || !hasRoomForImages()) {
        m_retries.remove(path);
        co_return;
    }
    const QPointer<ScreenshotImporter> self(this);
    auto reading = read(path);
    ReadResult result = co_await reading;
    if (!self)
        co_return;
    if (std::holds_alternative<NotYetComplete>(result)) {
        if (session == m_session)
            noteIncomplete(path, isRetry);
        co_return;
    }
    m_retries.remove(path);
    auto* const draft = std::get_if<ClipDraft>(&result);
    if (!draft)
        co_return;
    const auto imported = onImported;
    auto adding = m_store->add(std::move(*draft), m_hooks.now());
    const ClipRef clip = co_await adding;
    if (clip && imported)
        imported(clip);
}

/// Only the first look and those of the timer count: a folder in which much happens must not use up the patience with a
/// file that is still being written.
void ScreenshotImporter::noteIncomplete(const QString& path, bool isRetry) {
    m_known.remove(path);
    const bool counts = isRetry || !m_retries.contains(path);
    if (!counts || ++m_retries[path] <= mostRetries)
        return;
    m_known.insert(path);
    m_retries.remove(path);
}

void ScreenshotImporter::retryLater() {
    if (std::exchange(m_isRetryDue, true))
        return;
    m_hooks.after(retryDelay, [self = QPointer<ScreenshotImporter>(this)] {
        if (!self)
            return;
        self->m_isRetryDue = false;
        self->scan(true);
    });
}

QCoro::Task<ScreenshotImporter::ReadResult> ScreenshotImporter::read(QString path) const {
    ImageCodec* const images = m_images;
    const Date now = m_hooks.now();
    std::function<ScreenshotFile()> job = [path] { return ScreenshotFile::load(path); };
    auto loading = runDetached(std::move(job), longestReading);
    std::optional<ScreenshotFile> file = co_await loading;
    ReadResult result = NotAScreenshot();
    if (!file || file->state == ScreenshotFile::State::incomplete) {
        result = NotYetComplete();
        co_return result;
    }
    if (file->state == ScreenshotFile::State::unsuitable)
        co_return result;
    // A photograph is not opened only to learn that it is none.
    if (!file->isMarked && !file->mayHoldMark)
        co_return result;
    auto summarising = images->summarise(file->bytes, thumbnailPixels);
    const ImageSummary summary = co_await summarising;
    if (!summary.pixelSize)
        result = NotYetComplete();
    else if (file->isMarked || summary.isScreenshot)
        result = draftOf(std::move(*file), path, summary, now);
    co_return result;
}

} // namespace vellumry
