// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "foundation/Date.h"
#include "foundation/StoredText.h"
#include "history/clips/Fingerprint.h"
#include "history/clips/Sparse.h"
#include "platform/display/PasteboardItem.h"

#include <QByteArray>
#include <QString>
#include <QUuid>
#include <memory>
#include <optional>
#include <vector>

namespace vellumry {

/// What a clip is. The numbers are the history file's.
enum class ClipKind : quint8 { text = 0, richText = 1, link = 2, image = 3, file = 4, color = 5 };

/// Exactly what the pasteboard held, one entry for each pasteboard item, in pasteboard order.
struct ClipPayload {
    using Item = PasteboardItem;
    std::vector<Item> items;

    /// Sum of the lengths of all representations.
    [[nodiscard]] qint64 byteCount() const;
    /// A serialisation that does not depend on the order of types; for fingerprints only.
    [[nodiscard]] QByteArray canonicalData() const;

    bool operator==(const ClipPayload&) const = default;
};

/// The text that stands for a whole payload: its file names, one a line, else the text of its first item.
[[nodiscard]] std::optional<QString> plainText(const std::vector<PasteboardItem>& items);
/// The text that stands for one item: its string, else the text of its RTF, else its URL.
[[nodiscard]] std::optional<QString> plainText(const PasteboardItem& item);
/// The types of an item as they go back out: those of `order` that have data, then the rest by rank.
[[nodiscard]] QStringList orderedTypes(const PasteboardItem& item);

/// A remembered file.
struct FileRef {
    QString path;
    QString name;
    std::optional<QByteArray> bookmark;

    bool operator==(const FileRef&) const = default;
};

/// A candidate clip, before the store has decided what becomes of it.
struct ClipDraft {
    ClipKind kind = ClipKind::text;
    QString title;
    QString searchText;
    std::optional<QString> sourceBundleID;
    std::optional<QString> sourceAppName;
    std::vector<FileRef> files;
    std::optional<QByteArray> thumbnail;
    ClipPayload payload;
    bool isSensitive = false;
    bool isScreenshot = false;

    bool operator==(const ClipDraft&) const = default;
};

/// One remembered copy. The payload is not part of it: it stays sealed on disk and comes from the store on demand.
struct Clip {
    QUuid id;
    // Small fields together: thousands of clips are in memory, and each gap is there as often.
    ClipKind kind = ClipKind::text;
    bool isPinned = false;
    bool imageTextIsAccurate = false;
    bool isScreenshot = false;
    StoredText title;
    StoredText searchText;
    Sparse<QString> sourceBundleID;
    Sparse<QString> sourceAppName;
    Date createdAt = 0;
    Date lastUsedAt = 0;
    Sparse<Date> expiresAt;
    Fingerprint fingerprint;
    qint64 byteSize = 0;
    std::vector<FileRef> files;
    Sparse<QByteArray> thumbnail;
    qint64 pinOrder = 0; ///< position among the pins, 0 when unpinned
    Sparse<StoredText> imageText;

    /// A sensitive clip deletes itself; this is the only definition of one.
    [[nodiscard]] bool isSensitive() const { return expiresAt.has_value(); }
    /// A file clip all of whose files are pictures by their names.
    [[nodiscard]] bool isImageFile() const;
    [[nodiscard]] bool canBeTransformed() const {
        return (kind == ClipKind::text || kind == ClipKind::richText) && !isSensitive();
    }

    bool operator==(const Clip&) const = default;
};

/// A clip as the store hands it out: never changed, replaced as a whole when something about it changes. Never null
/// inside a list.
using ClipRef = std::shared_ptr<const Clip>;

} // namespace vellumry
