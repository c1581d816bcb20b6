// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArrayView>
#include <QString>

/// What the bytes of a picture file tell without opening it. Foreign bytes: every function reads within bounds, in time
/// linear in the input. Any thread.
namespace vellumry::imagecompleteness {

/// True when a file of this uniform type is written to its end: a PNG has its "IEND" chunk within its last 12 bytes, a
/// JPEG ends in FF D9, the boxes of a HEIC fill the file, the first directory of a TIFF and what it points to lie
/// within it. Decoders accept truncated files, hence these tests. False for other types.
[[nodiscard]] bool isComplete(QByteArrayView file, const QString& type);

/// False when no mark of a screenshot can be in the file, whatever its format: the word does not occur in it. Saves
/// opening each photograph that lands beside the screenshots.
[[nodiscard]] bool mayHoldScreenshotMark(QByteArrayView file);

} // namespace vellumry::imagecompleteness
