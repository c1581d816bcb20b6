// SPDX-License-Identifier: GPL-3.0-or-later
#include "history/clips/Clip.h"

#include "foundation/FileUrl.h"
#include "foundation/RichText.h"
#include "foundation/Text.h"
#include "foundation/UniformType.h"

#include <QtEndian>
#include <algorithm>
#include <utility>

namespace vellumry {

namespace {

const QByteArray* representation(const PasteboardItem& item, const QString& type) {
    const auto found = item.representations.find(type);
    return found == item.representations.end() ? nullptr : &found->second;
}

/// Place of a standard format behind the file URL and the formats that the program knows nothing of.
int rank(const QString& type) {
    static const QStringList standardFormats{uniformtype::rtfd,
                                             uniformtype::rtf,
                                             uniformtype::html,
                                             uniformtype::pdf,
                                             uniformtype::png,
                                             uniformtype::tiff,
                                             uniformtype::jpeg,
                                             uniformtype::heic,
                                             uniformtype::icns,
                                             uniformtype::url,
                                             uniformtype::urlName,
                                             uniformtype::utf8PlainText,
                                             uniformtype::utf16PlainText,
                                             uniformtype::color};
    if (type == uniformtype::fileUrl)
        return 0;
    const qsizetype place = standardFormats.indexOf(type);
    // What no table knows goes before every standard format: a source's own format says most about the copy.
    return place < 0 ? 1 : static_cast<int>(place) + 2;
}

} // namespace

qint64 ClipPayload::byteCount() const {
    qint64 sum = 0;
    for (const Item& item : items) {
        for (const auto& [type, bytes] : item.representations)
            sum += bytes.size();
    }
    return sum;
}

QByteArray ClipPayload::canonicalData() const {
    QByteArray data;
    for (const Item& item : items) {
        // By code points: what a map of UTF-16 strings iterates in differs from that beyond the basic plane.
        std::vector<std::pair<QByteArray, const QByteArray*>> entries;
        for (const auto& [type, bytes] : item.representations)
            entries.emplace_back(type.toUtf8(), &bytes);
        std::ranges::sort(entries, {}, &std::pair<QByteArray, const QByteArray*>::first);
        for (const auto& [key, bytes] : entries) {
            const quint64 length = qToBigEndian(static_cast<quint64>(bytes->size()));
            data.append(key).append('\0');
            data.append(reinterpret_cast<const char*>(&length), sizeof length).append(*bytes);
        }
        data.append('\xff');
    }
    return data;
}

std::optional<QString> plainText(const std::vector<PasteboardItem>& items) {
    QStringList names;
    for (const PasteboardItem& item : items) {
        const QByteArray* url = representation(item, uniformtype::fileUrl);
        if (!url)
            continue;
        if (const auto name = fileurl::nameOf(*url))
            names.append(*name);
    }
    if (!names.isEmpty())
        return names.join(u'\n');
    return items.empty() ? std::nullopt : plainText(items.front());
}

std::optional<QString> plainText(const PasteboardItem& item) {
    if (const QByteArray* bytes = representation(item, uniformtype::utf8PlainText)) {
        if (auto string = text::fromUtf8(*bytes))
            return string;
    }
    if (const QByteArray* bytes = representation(item, uniformtype::rtf)) {
        if (auto string = textOfRtf(*bytes))
            return string;
    }
    if (const QByteArray* bytes = representation(item, uniformtype::url))
        return text::fromUtf8(*bytes);
    return std::nullopt;
}

QStringList orderedTypes(const PasteboardItem& item) {
    QStringList ordered;
    for (const QString& type : item.order.value_or(QStringList())) {
        if (item.representations.contains(type))
            ordered.append(type);
    }
    QStringList rest;
    for (const auto& [type, bytes] : item.representations) {
        if (!ordered.contains(type))
            rest.append(type);
    }
    // The map hands its keys out ascending, which a stable sort keeps among equals.
    std::ranges::stable_sort(rest, {}, rank);
    return ordered + rest;
}

bool Clip::isImageFile() const {
    return kind == ClipKind::file && !files.empty() && std::ranges::all_of(files, [](const FileRef& file) {
               const QString extension = fileurl::pathExtension(file.path);
               return !extension.isEmpty() && uniformtype::isImageExtension(extension);
           });
}

} // namespace vellumry
