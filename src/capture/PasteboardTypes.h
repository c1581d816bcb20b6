// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringList>

/// Which of the types on a pasteboard are kept, which refuse a copy, and which are read first. Types are compared as
/// exact strings. Pure; any thread.
namespace vellumry::pasteboardtype {

/// True for a type by which its owner asks that the copy be not kept (nspasteboard.org, and the same promise in the
/// dialect of particular programs).
[[nodiscard]] bool isRefused(const QString& type);

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

/// When a representation is read: text must not wait for a picture, nor anything for a private type that may hang.
enum class ReadingTurn : quint8 { text, picture, unknown };
[[nodiscard]] ReadingTurn readingTurn(const QString& type);

/// True for an application that takes screenshots.
[[nodiscard]] bool isScreenshotSource(const QString& bundleID);

} // namespace vellumry::pasteboardtype
