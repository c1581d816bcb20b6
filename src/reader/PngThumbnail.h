// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArrayView>
#include <QImage>
#include <QSize>

/// Makes a PNG file (ISO/IEC 15948) much smaller while it is read, row by row: neither the picture nor a part of it is
/// ever in memory as a whole. Runs in the reader process, where a crafted file can do no more than end it. One thread.
namespace vellumry::pngthumbnail {

/// True for a picture that `shrunk` takes: stored from the top to the bottom (not interlaced), and on either side at
/// least four times as large as `size`, so that the mean of whole pixels shows no steps; twice as large where it has
/// more than 100,000,000 pixels, since it could hardly be opened as a whole.
[[nodiscard]] bool isFor(QByteArrayView file, QSize size);

/// The picture at `size`, each pixel the mean of those it stands for, weighed by their opacity; without opacity when
/// the file has none. Null for a file that is cut off or cannot be decoded. Checksums are not looked at: they guard
/// against spoilt media, not against people, and cost a tenth of the time.
[[nodiscard]] QImage shrunk(QByteArrayView file, QSize size);

} // namespace vellumry::pngthumbnail
