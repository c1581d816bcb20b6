// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringList>

/// Which of the types on a pasteboard are kept, and which are read first. Types are compared as
/// exact strings. Pure; any thread.
namespace vellumry::pasteboardtype {

/// True for a type that is kept whatever its size, up to the limit of the whole copy.
[[nodiscard]] bool isEssential(const QString& type);

/// True for an alias that a system makes out of the real types.
[[nodiscard]] bool isLegacyAlias(const QString& type);

/// The types of pictures, the preferred one first.
[[nodiscard]] const QStringList& imageTypes();

/// Types of pictures that few programs take, and some offer alone: virtual machines, Windows programs on this desktop.
/// The preferred one first.
[[nodiscard]] const QStringList& otherImageTypes();

/// True for a type that can make a clip whatever else is offered; `otherImageTypes` make one where none of these is.
[[nodiscard]] bool makesClip(const QString& type);

/// When a representation is read: the plain text, and the address of its page that may make it a secret, must not wait
/// for a table that is rendered as HTML, no text for a picture, nor anything for a private type that may hang.
enum class ReadingTurn : quint8 { plainText, text, picture, unknown };
[[nodiscard]] ReadingTurn readingTurn(const QString& type);

/// True for an application that takes screenshots.
[[nodiscard]] bool isScreenshotSource(const QString& bundleID);

} // namespace vellumry::pasteboardtype
