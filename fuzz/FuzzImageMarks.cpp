// SPDX-License-Identifier: GPL-3.0-or-later
#include "reader/ImageMarks.h"

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size) {
    const QByteArrayView file(data, static_cast<qsizetype>(size));
    (void)vellumry::imagemarks::isScreenshot(file);
    return 0;
}
