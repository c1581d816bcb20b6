// SPDX-License-Identifier: GPL-3.0-or-later
#include "foundation/RichText.h"

#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size);

int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size) {
    // Most mutations of the first bytes are refused at once; a given beginning lets every input reach the parser.
    const QByteArray body(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
    const std::optional<QString> asGiven = vellumry::textOfRtf(body);
    const std::optional<QString> inside = vellumry::textOfRtf("{\\rtf1 " + body + "}");
    // No construct of RTF makes more than two units of text of one byte.
    if ((asGiven && asGiven->size() > 2 * body.size()) || (inside && inside->size() > 2 * body.size()))
        std::abort();
    return 0;
}
