// SPDX-License-Identifier: GPL-3.0-or-later
#include "capture/ImageCompleteness.h"
#include "foundation/UniformType.h"

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size) {
    using namespace vellumry;
    const QByteArrayView file(data, static_cast<qsizetype>(size));
    for (const QString& type : {uniformtype::png, uniformtype::jpeg, uniformtype::heic, uniformtype::tiff})
        (void)imagecompleteness::isComplete(file, type);
    (void)imagecompleteness::mayHoldScreenshotMark(file);
    return 0;
}
