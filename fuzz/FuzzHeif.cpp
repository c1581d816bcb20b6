// SPDX-License-Identifier: GPL-3.0-or-later
#include "reader/HeifPicture.h"

/// Our own look at the boxes, and the library's as far as the size and the EXIF block. Pixels are not made: their
/// decoder is slow, not ours, and works behind the reader's sandbox.
extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size) {
    static const std::optional<vellumry::HeifLibrary> library = vellumry::HeifLibrary::open();
    const QByteArrayView file(data, static_cast<qsizetype>(size));
    if (!vellumry::HeifPicture::isOne(file) || !library)
        return 0;
    if (const auto picture = vellumry::HeifPicture::open(*library, file)) {
        (void)picture->size();
        (void)picture->exif();
    }
    return 0;
}
