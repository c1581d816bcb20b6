// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QImage>

/// HEIC files for tests, made by libheif's own encoder.
namespace vellumry::heifbytes {

/// `image` as a HEIC file that says it is to be turned or mirrored like EXIF's `orientation` (1 to 8), with the EXIF
/// block unless it is empty. Empty when the system's libheif cannot encode.
[[nodiscard]] QByteArray encode(const QImage& image, int orientation = 1, const QByteArray& exif = {});

} // namespace vellumry::heifbytes
