// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArrayView>

/// Marks that tools leave inside picture files. Foreign bytes: every function reads within bounds, in time linear in
/// the input, and answers "no mark" for whatever it does not understand. Any thread.
namespace vellumry::imagemarks {

/// True when the file says of itself that it is a screenshot: the user comment (EXIF 2.32, 0x9286, or XMP
/// `exif:UserComment`) is "Screenshot" without regard to case and to white space around it; or a PNG text `Software`
/// names a screenshot tool. Knows PNG, JPEG, TIFF and WebP, and an
/// EXIF block alone.
[[nodiscard]] bool isScreenshot(QByteArrayView file);

} // namespace vellumry::imagemarks
