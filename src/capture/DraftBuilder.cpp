// SPDX-License-Identifier: GPL-3.0-or-later
#include "capture/DraftBuilder.h"

#include "capture/DraftTitles.h"
#include "capture/PasteboardTypes.h"
#include "capture/TextClassification.h"
#include "foundation/FileUrl.h"
#include "foundation/Localisation.h"
#include "foundation/RunDetached.h"
#include "foundation/Text.h"
#include "foundation/UniformType.h"

#include <QElapsedTimer>
#include <algorithm>

namespace vellumry {

namespace {

constexpr int thumbnailPixels = 160;
/// The longer side of a picture that is made a PNG.
constexpr int largestConverted = 8192;
constexpr qsizetype longestSearchText = 200'000;
constexpr std::chrono::milliseconds longestBookmarking{2000};
/// When the making of bookmarks stops by itself, so that those made so far count.
constexpr qint64 bookmarkingMilliseconds = 1500;

/// Bytes of a payload whose text is looked at on the main thread.
constexpr qint64 largestTextHere = 128 * 1024;
constexpr std::chrono::milliseconds longestClassifying{60'000};

using Bookmarks = std::vector<std::optional<QByteArray>>;

std::vector<FileRef> filesOf(const ClipPayload& payload) {
    std::vector<FileRef> files;
    for (const PasteboardItem& item : payload.items) {
        const auto url = item.representations.find(uniformtype::fileUrl);
        const auto path = url == item.representations.end() ? std::nullopt : fileurl::pathOf(url->second);
        if (path)
            files.push_back({*path, fileurl::lastPathComponent(*path), std::nullopt});
    }
    return files;
}

/// The first picture of the payload, by item and then by the order of `types`.
std::optional<QByteArray> firstImage(const ClipPayload& payload, const QStringList& types) {
    for (const PasteboardItem& item : payload.items) {
        for (const QString& type : types) {
            if (const auto found = item.representations.find(type); found != item.representations.end())
                return found->second;
        }
    }
    return std::nullopt;
}

Bookmarks makeBookmarks(const FileBookmarks& bookmarks, const std::vector<QString>& paths) {
    QElapsedTimer timer;
    timer.start();
    Bookmarks made;
    made.reserve(paths.size());
    for (const QString& path : paths) {
        if (timer.elapsed() > bookmarkingMilliseconds)
            break;
        made.push_back(bookmarks.make(path));
    }
    return made;
}

QCoro::Task<std::vector<FileRef>> withBookmarks(const FileBookmarks* bookmarks, std::vector<FileRef> files) {
    std::vector<QString> paths;
    paths.reserve(files.size());
    for (const FileRef& file : files)
        paths.push_back(file.path);
    std::function<Bookmarks()> job = [bookmarks, paths] { return makeBookmarks(*bookmarks, paths); };
    auto making = runDetached(std::move(job), longestBookmarking);
    const std::optional<Bookmarks> made = co_await making;
    for (std::size_t i = 0; made && i < made->size() && i < files.size(); ++i)
        files[i].bookmark = (*made)[i];
    co_return files;
}

/// One line a file, its name and its path; whole lines only, and no more than search keeps of any clip.
QString searchTextOf(const std::vector<FileRef>& files) {
    QString lines;
    for (const FileRef& file : files) {
        if (!lines.isEmpty() && lines.size() + file.name.size() + file.path.size() + 2 > longestSearchText)
            break;
        if (!lines.isEmpty())
            lines += u'\n';
        lines += file.name + u' ' + file.path;
    }
    return lines;
}

std::optional<ClipDraft> classifiedNow(ClipDraft draft) {
    if (!classifyText(draft))
        return std::nullopt;
    return draft;
}

/// Decoding and looking through a text of many megabytes takes long enough to be felt under the fingers.
QCoro::Task<std::optional<ClipDraft>> classified(ClipDraft draft) {
    std::optional<ClipDraft> result;
    if (draft.payload.byteCount() <= largestTextHere) {
        result = classifiedNow(std::move(draft));
        co_return result;
    }
    std::function<std::optional<ClipDraft>()> job = [draft = std::move(draft)]() mutable {
        return classifiedNow(std::move(draft));
    };
    auto classifying = runDetached(std::move(job), longestClassifying);
    auto outcome = co_await classifying;
    result = std::move(outcome).value_or(std::nullopt);
    co_return result;
}

void describeImage(ClipDraft& draft, const ImageSummary& summary, Date now) {
    draft.kind = ClipKind::image;
    draft.thumbnail = summary.thumbnail;
    const QString plainTitle = imageTitle(summary.pixelSize);
    draft.title = plainTitle;
    draft.searchText = plainTitle;
    const bool isFromTool = draft.sourceBundleID && pasteboardtype::isScreenshotSource(*draft.sourceBundleID);
    if (!isFromTool && !summary.isScreenshot)
        return;
    draft.isScreenshot = true;
    draft.title = screenshotTitle(now);
    draft.searchText = draft.title + u'\n' + plainTitle;
    draft.sourceAppName = localised("Screenshot");
}

/// A picture in a format that few programs take: a PNG of it, for those, is put beside it. Nothing when it cannot be
/// opened.
QCoro::Task<std::optional<ClipDraft>> convertedImage(ImageCodec* images, ClipDraft draft, Date now) {
    const QStringList& types = pasteboardtype::otherImageTypes();
    const std::optional<QByteArray> image = firstImage(draft.payload, types);
    std::optional<ClipDraft> result;
    if (!image)
        co_return result;
    auto converting = images->summarise(*image, largestConverted);
    ImageSummary summary = co_await converting;
    if (!summary.thumbnail)
        co_return result;
    const QByteArray whole = *summary.thumbnail;
    auto shrinking = images->summarise(whole, thumbnailPixels);
    const ImageSummary small = co_await shrinking;
    summary.thumbnail = small.thumbnail;
    const auto item = std::ranges::find_if(draft.payload.items, [&types](const PasteboardItem& candidate) {
        return std::ranges::any_of(
            types, [&candidate](const QString& type) { return candidate.representations.contains(type); });
    });
    item->representations.emplace(uniformtype::png, whole);
    if (item->order)
        item->order->prepend(uniformtype::png);
    describeImage(draft, summary, now);
    result = std::move(draft);
    co_return result;
}

} // namespace

QCoro::Task<std::optional<ClipDraft>> DraftBuilder::build(ClipPayload payload, SourceApp source, Date now) const {
    // The builder itself may be gone after a suspension; its seams are not.
    const FileBookmarks* const bookmarks = m_bookmarks;
    ImageCodec* const images = m_images;
    ClipDraft draft;
    draft.sourceBundleID = source.bundleID;
    draft.sourceAppName = source.name;
    draft.payload = std::move(payload);

    if (std::vector<FileRef> files = filesOf(draft.payload); !files.empty()) {
        draft.kind = ClipKind::file;
        draft.title = filesTitle(files);
        draft.searchText = searchTextOf(files);
        auto remembering = withBookmarks(bookmarks, std::move(files));
        draft.files = co_await remembering;
        const QStringList pictures = pasteboardtype::imageTypes() + QStringList{uniformtype::icns};
        if (const auto image = firstImage(draft.payload, pictures)) {
            auto summarising = images->summarise(*image, thumbnailPixels);
            const ImageSummary summary = co_await summarising;
            draft.thumbnail = summary.thumbnail;
        }
        co_return draft;
    }

    if (const auto image = firstImage(draft.payload, pasteboardtype::imageTypes())) {
        auto summarising = images->summarise(*image, thumbnailPixels);
        const ImageSummary summary = co_await summarising;
        describeImage(draft, summary, now);
        co_return draft;
    }

    ClipDraft rest = draft; // its bytes are shared
    auto classifying = classified(std::move(draft));
    std::optional<ClipDraft> result = co_await classifying;
    if (!result) {
        auto converting = convertedImage(images, std::move(rest), now);
        result = co_await converting;
    }
    co_return result;
}

} // namespace vellumry
