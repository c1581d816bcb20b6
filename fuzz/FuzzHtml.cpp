// SPDX-License-Identifier: GPL-3.0-or-later
#include "foundation/RichText.h"

#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size);

int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size) {
    const QByteArray html(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
    const vellumry::StyledText styled = vellumry::styledHtml(html);
    qsizetype place = 0;
    for (const vellumry::StyledRun& run : styled.runs) {
        if (run.start < place || run.length <= 0)
            std::abort();
        place = run.start + run.length;
    }
    if (place > styled.text.size())
        std::abort();
    return 0;
}
