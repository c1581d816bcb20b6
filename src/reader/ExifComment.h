// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArrayView>
#include <QString>

namespace vellumry {

/// The user comment of an EXIF block, which is laid out as a TIFF file (TIFF 6.0; EXIF 2.32, 4.6.5, tag 0x9286). Empty
/// when there is none or the block is damaged. Foreign bytes: bounded and linear. Any thread.
[[nodiscard]] QString exifUserComment(QByteArrayView tiff);

/// The user comment of an XMP packet (`exif:UserComment`, as attribute, element or language alternative); empty without
/// one.
[[nodiscard]] QString xmpUserComment(QByteArrayView packet);

} // namespace vellumry
