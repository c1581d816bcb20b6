// SPDX-License-Identifier: GPL-3.0-or-later
#include "history/clips/ClipMerger.h"

#include "foundation/FileUrl.h"
#include "foundation/Localisation.h"
#include "foundation/Text.h"
#include "foundation/UniformType.h"

#include <QSet>
#include <algorithm>
#include <tuple>
#include <utility>

namespace vellumry::ClipMerger {

namespace {

constexpr qsizetype longestTitle = 300;
constexpr qsizetype longestSearchText = 200'000;

ClipDraft draftOf(ClipKind kind, bool isSensitive) {
    ClipDraft draft;
    draft.kind = kind;
    draft.sourceBundleID = QStringLiteral("com.vellumry.Vellumry");
    draft.sourceAppName = localised("Merged");
    draft.isSensitive = isSensitive;
    return draft;
}

QString textOf(const Clip& clip, const Payloads& payloads) {
    std::optional<QString> text;
    if (const auto payload = payloads.constFind(clip.id); payload != payloads.constEnd())
        text = plainText(payload->items);
    return text::trimmedOfNewlines(text ? *text : clip.searchText.toString());
}

QString firstLineOf(const QString& text) {
    for (const QString& line : text::lines(text))
        if (const QString trimmed = text::trimmedOfWhitespace(line); !trimmed.isEmpty())
            return text::firstCharacters(trimmed, longestTitle);
    return {};
}

ClipDraft textMerge(const std::vector<ClipRef>& clips, const Payloads& payloads, bool isSensitive) {
    QStringList texts;
    for (const ClipRef& clip : clips)
        texts << textOf(*clip, payloads);
    const QString joined = texts.join(u'\n');

    ClipDraft draft = draftOf(ClipKind::text, isSensitive);
    draft.title = firstLineOf(joined);
    draft.searchText = text::firstCharacters(joined, longestSearchText);
    ClipPayload::Item item;
    item.representations[uniformtype::utf8PlainText] = joined.toUtf8();
    item.order = QStringList{uniformtype::utf8PlainText};
    draft.payload.items.push_back(std::move(item));
    return draft;
}

/// The files of all clips, each path once, with the pasteboard items that stand for them.
class FileCollector {
public:
    /// What the payload holds; an item that is no file is dropped.
    void add(const Clip& clip, const ClipPayload& payload) {
        for (const ClipPayload::Item& item : payload.items) {
            const auto url = item.representations.find(uniformtype::fileUrl);
            const auto path = url == item.representations.end() ? std::nullopt : fileurl::pathOf(url->second);
            if (path && isNew(keyOf(*path, url->second)))
                append(knownFile(clip, *path), item);
        }
    }

    /// What the clip itself remembers, where its payload could not be had.
    void add(const Clip& clip) {
        for (const FileRef& file : clip.files) {
            if (!isNew(file.path))
                continue;
            ClipPayload::Item item;
            item.representations[uniformtype::fileUrl] = fileurl::urlOf(file.path);
            append(file, std::move(item));
        }
    }

    [[nodiscard]] std::vector<FileRef> takeFiles() { return std::exchange(m_files, {}); }
    [[nodiscard]] std::vector<ClipPayload::Item> takeItems() { return std::exchange(m_items, {}); }

private:
    /// What tells files apart: names that are not UTF-8 may share one path.
    static QString keyOf(const QString& path, const QByteArray& url) {
        return path.contains(QChar::ReplacementCharacter) ? QString::fromLatin1(url) : path;
    }

    bool isNew(const QString& key) {
        const qsizetype before = m_seen.size();
        m_seen.insert(key);
        return m_seen.size() != before;
    }

    static FileRef knownFile(const Clip& clip, const QString& path) {
        const auto known =
            std::find_if(clip.files.begin(), clip.files.end(), [&](const FileRef& file) { return file.path == path; });
        return {path, known == clip.files.end() ? fileurl::lastPathComponent(path) : known->name,
                known == clip.files.end() ? std::nullopt : known->bookmark};
    }

    void append(FileRef file, ClipPayload::Item item) {
        m_files.push_back(std::move(file));
        m_items.push_back(std::move(item));
    }

    QSet<QString> m_seen;
    std::vector<FileRef> m_files;
    std::vector<ClipPayload::Item> m_items;
};

std::variant<ClipDraft, Failure> fileMerge(const std::vector<ClipRef>& clips, const Payloads& payloads,
                                           bool isSensitive) {
    FileCollector collector;
    for (const ClipRef& clip : clips) {
        if (const auto payload = payloads.constFind(clip->id); payload != payloads.constEnd())
            collector.add(*clip, *payload);
        else
            collector.add(*clip);
    }

    ClipDraft draft = draftOf(ClipKind::file, isSensitive);
    draft.files = collector.takeFiles();
    if (draft.files.empty())
        return Failure::notEnoughClips;
    draft.title = draft.files.front().name;
    if (draft.files.size() > 1)
        draft.title = localised("%1 and %n more", int(draft.files.size() - 1)).arg(draft.title);
    QStringList lines;
    for (const FileRef& file : draft.files)
        lines << file.name + u' ' + file.path;
    draft.searchText = lines.join(u'\n');
    draft.payload.items = collector.takeItems();
    return draft;
}

} // namespace

std::variant<ClipDraft, Failure> merge(const std::vector<ClipRef>& clips, const Payloads& payloads) {
    if (clips.size() < 2)
        return Failure::notEnoughClips;
    if (std::any_of(clips.begin(), clips.end(), [](const ClipRef& clip) { return clip->kind == ClipKind::image; }))
        return Failure::containsImages;

    std::vector<ClipRef> inOrder = clips;
    std::stable_sort(inOrder.begin(), inOrder.end(), [](const ClipRef& left, const ClipRef& right) {
        return std::tie(left->createdAt, left->lastUsedAt) < std::tie(right->createdAt, right->lastUsedAt);
    });
    const bool isSensitive =
        std::any_of(clips.begin(), clips.end(), [](const ClipRef& clip) { return clip->isSensitive(); });
    if (std::all_of(clips.begin(), clips.end(), [](const ClipRef& clip) { return clip->kind == ClipKind::file; }))
        return fileMerge(inOrder, payloads, isSensitive);
    return textMerge(inOrder, payloads, isSensitive);
}

} // namespace vellumry::ClipMerger
