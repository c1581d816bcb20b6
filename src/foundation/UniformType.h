// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringList>
#include <optional>

/// The uniform type identifiers that name a representation everywhere in the program and in the history file, and the
/// one table between them and the MIME types and X atoms of the desktop. Pure; any thread.
namespace vellumry::uniformtype {

inline const QString utf8PlainText = QStringLiteral("public.utf8-plain-text"); ///< the pasteboard's string type
inline const QString utf16PlainText = QStringLiteral("public.utf16-external-plain-text");
inline const QString rtf = QStringLiteral("public.rtf");
inline const QString rtfd = QStringLiteral("com.apple.flat-rtfd");
inline const QString html = QStringLiteral("public.html");
inline const QString url = QStringLiteral("public.url");
inline const QString urlName = QStringLiteral("public.url-name");
inline const QString fileUrl = QStringLiteral("public.file-url");
inline const QString png = QStringLiteral("public.png");
inline const QString tiff = QStringLiteral("public.tiff");
inline const QString jpeg = QStringLiteral("public.jpeg");
inline const QString heic = QStringLiteral("public.heic");
inline const QString pdf = QStringLiteral("com.adobe.pdf");
inline const QString icns = QStringLiteral("com.apple.icns");
inline const QString color = QStringLiteral("com.apple.cocoa.pasteboard.color");
inline const QString sourceUrl = QStringLiteral("org.chromium.source-url");
inline const QString webArchive = QStringLiteral("com.apple.webarchive");
inline const QString ownMarker = QStringLiteral("com.vellumry.marker");
inline const QString concealed = QStringLiteral("org.nspasteboard.ConcealedType");

/// The uniform type that a MIME type or X atom name stands for; the name itself where the table has no entry. MIME
/// names are compared without regard to case. Nothing for housekeeping targets (TARGETS, MULTIPLE, TIMESTAMP,
/// SAVE_TARGETS, DELETE, INSERT_*), for process-local ones (GTK_TEXT_BUFFER_CONTENTS, chromium/x-internal-*,
/// LibreOffice's internal ids and links, the portal's file keys) and for atoms without '/' and '.' that no table knows,
/// such as the junk of xterm.
///
/// Lists of files (text/uri-list, x-special/gnome-copied-files, x-special/mate-copied-files,
/// application/x-kde-cutselection) keep their MIME names: one list is many items, which only the pasteboard can part.
[[nodiscard]] std::optional<QString> fromTarget(const QString& target);

/// True for a type by which its owner asks that the copy be not kept (nspasteboard.org, and the same promise in the
/// dialect of particular programs). Compared as an exact string.
[[nodiscard]] bool isRefusalMark(const QString& type);

/// True for a target whose bytes mean something inside the offering program only, or only as long as that runs: the
/// pointers and ids of toolkits, and the keys of the documents portal, which open nothing once their session has ended.
[[nodiscard]] bool isProcessLocal(const QString& target);

/// True for a target that decides what becomes of a copy: one the table has an entry for, a list of files, or a
/// refusal mark. However many others an owner offers, these are looked at.
[[nodiscard]] bool isKnownTarget(const QString& target);

/// The names under which a representation is offered to other programs, best first: `public.utf8-plain-text` gives
/// UTF8_STRING, text/plain;charset=utf-8, text/plain, STRING, TEXT; an unknown type its own name alone.
[[nodiscard]] QStringList targetsFor(const QString& uniformType);

/// Of the offered targets that all stand for `uniformType`, the one to ask for, as it is offered. Nothing when none
/// does. Of the two that carry a page's address, text/x-moz-url-priv (UTF-16LE) comes behind chromium/x-source-url
/// (UTF-8).
[[nodiscard]] std::optional<QString> preferredTarget(const QString& uniformType, const QStringList& offered);

/// True when a file name extension (without dot, any case) names a kind of picture.
[[nodiscard]] bool isImageExtension(const QString& extension);

/// The pasteboard type of an image file by its extension: PNG, JPEG, HEIC or TIFF; nothing for any other.
[[nodiscard]] std::optional<QString> imageTypeOfExtension(const QString& extension);

} // namespace vellumry::uniformtype
