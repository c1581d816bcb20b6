// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/display/PasteboardItem.h"
#include "platform/files/PeerHistories.h"

#include <QByteArray>
#include <utility>
#include <vector>

/// What entries of foreign histories are on a pasteboard. Pure; any thread.
namespace vellumry::peeritems {

/// Most bytes of one form of an entry that are read.
constexpr qint64 mostBytes = qint64{100} << 20;

[[nodiscard]] std::vector<PasteboardItem> text(const QByteArray& utf8);
[[nodiscard]] std::vector<PasteboardItem> picture(const QByteArray& png);
/// One item a file of a `text/uri-list` or of lines with paths; the addresses as text where none is a file.
[[nodiscard]] std::vector<PasteboardItem> files(const QByteArray& list);

using Formats = std::vector<std::pair<QString, QByteArray>>;
/// An entry from the forms that its program kept, by their MIME types: locked where one of them marks a secret.
[[nodiscard]] PeerClip ofFormats(const Formats& formats);

/// The entry is a picture and nothing else.
[[nodiscard]] bool isPicture(const PeerClip& clip);

/// How many bytes a PNG file has that begins here; nothing when it does not end within `bytes`.
[[nodiscard]] std::optional<qint64> pngLength(QByteArrayView bytes);

} // namespace vellumry::peeritems
