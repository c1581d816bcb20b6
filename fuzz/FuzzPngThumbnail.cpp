// SPDX-License-Identifier: GPL-3.0-or-later
#include "reader/PngThumbnail.h"

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size) {
    const QByteArrayView file(data, static_cast<qsizetype>(size));
    // Odd numbers, so that bands and columns are of unequal size.
    for (const QSize thumbnail : {QSize(1, 1), QSize(7, 3)}) {
        if (vellumry::pngthumbnail::isFor(file, thumbnail))
            (void)vellumry::pngthumbnail::shrunk(file, thumbnail);
    }
    return 0;
}
