// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QString>
#include <optional>

/// File URLs as they lie in payloads (RFC 8089). Paths are kept as text; names that are not UTF-8 survive as percent
/// escapes in the URL and decode with replacement characters in the path. Any thread; the disk is not touched.
namespace vellumry::fileurl {

/// The path of a `file:` URL, with "." and ".." taken out and no slash at the end; nothing for bytes that are no URL,
/// for another scheme, and for a host that is neither empty nor "localhost" nor this machine's name.
[[nodiscard]] std::optional<QString> pathOf(const QByteArray& url);

/// `pathOf` without the last component's folders: the name that a reader knows the file by.
[[nodiscard]] std::optional<QString> nameOf(const QByteArray& url);

/// The `file:///…` bytes of an absolute path.
[[nodiscard]] QByteArray urlOf(const QString& path);

[[nodiscard]] QString standardized(const QString& path);
[[nodiscard]] QString lastPathComponent(const QString& path);
/// The extension without its dot; empty when there is none or the name begins with its only dot.
[[nodiscard]] QString pathExtension(const QString& path);

} // namespace vellumry::fileurl
