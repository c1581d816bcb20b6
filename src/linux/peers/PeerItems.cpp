// SPDX-License-Identifier: GPL-3.0-or-later
#include "linux/peers/PeerItems.h"

#include "foundation/FileUrl.h"
#include "foundation/UniformType.h"
#include "linux/pasteboard/FileList.h"
#include "linux/pasteboard/TargetCoding.h"

#include <QtEndian>
#include <algorithm>

namespace vellumry::peeritems {

namespace {

PasteboardItem itemOf(const QString& type, const QByteArray& bytes) {
    return {{{type, bytes}}, QStringList{type}};
}

/// Paths become addresses.
QByteArray addressOf(const QByteArray& line) {
    return line.startsWith('/') ? fileurl::urlOf(QString::fromUtf8(line)) : line;
}

} // namespace

std::vector<PasteboardItem> text(const QByteArray& utf8) {
    return {itemOf(uniformtype::utf8PlainText, utf8)};
}

std::vector<PasteboardItem> picture(const QByteArray& png) {
    return {itemOf(uniformtype::png, png)};
}

std::vector<PasteboardItem> files(const QByteArray& list) {
    QByteArrayList lines;
    for (const QByteArray& line : list.split('\n'))
        lines.append(addressOf(line.trimmed()));
    const filelist::Entries entries = filelist::parse(lines.join('\n'));
    std::vector<PasteboardItem> items;
    for (const QByteArray& file : entries.files)
        items.push_back(itemOf(uniformtype::fileUrl, file));
    if (!items.empty())
        return items;
    if (const auto addresses = entries.urls())
        return text(*addresses);
    return list.trimmed().isEmpty() ? items : text(list);
}

PeerClip ofFormats(const Formats& formats) {
    PeerClip clip;
    PasteboardItem item{{}, QStringList()};
    QByteArray list;
    for (const auto& [mime, bytes] : formats) {
        if (mime == filelist::uriList)
            list = bytes;
        if (filelist::isFileList(mime))
            continue;
        const auto type = uniformtype::fromTarget(mime);
        clip.isLocked = clip.isLocked || (type && uniformtype::isRefusalMark(*type));
        const auto decoded = type ? targetcoding::decode(*type, mime, mime, bytes) : std::nullopt;
        if (!decoded || decoded->isEmpty() || item.representations.contains(*type))
            continue;
        item.representations.emplace(*type, *decoded);
        item.order->append(*type);
    }
    if (clip.isLocked)
        return clip;
    if (!list.isEmpty())
        clip.items = files(list);
    const bool hasFiles = !clip.items.empty() && clip.items.front().representations.contains(uniformtype::fileUrl);
    if (!item.representations.empty() && !hasFiles)
        clip.items = {std::move(item)};
    return clip;
}

bool isPicture(const PeerClip& clip) {
    return clip.items.size() == 1 && std::ranges::all_of(clip.items.front().representations, [](const auto& entry) {
               return uniformtype::targetsFor(entry.first).value(0).startsWith(u"image/");
           });
}

std::optional<qint64> pngLength(QByteArrayView bytes) {
    constexpr qint64 signature = 8;
    constexpr qint64 chunkFrame = 12; // length, name, check sum
    qint64 position = signature;
    if (!bytes.startsWith(QByteArrayView("\x89PNG\r\n\x1a\n", signature)))
        return std::nullopt;
    while (bytes.size() - position >= chunkFrame) {
        const qint64 length = qFromBigEndian<quint32>(bytes.data() + position);
        const bool isEnd = bytes.sliced(position + 4, 4) == QByteArrayView("IEND");
        position += chunkFrame + length;
        if (position > bytes.size())
            return std::nullopt;
        if (isEnd)
            return position;
    }
    return std::nullopt;
}

} // namespace vellumry::peeritems
