// SPDX-License-Identifier: GPL-3.0-or-later
#include "foundation/PropertyList.h"

#include <cstdlib>

using vellumry::PropertyList;

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size);

int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size) {
    const QByteArray bytes(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
    const std::optional<PropertyList> list = PropertyList::fromBytes(bytes);
    if (!list)
        return 0;
    // What was read can be written, and writing is a fixed point. (Compared as bytes: a real may be no number.)
    const QByteArray written = list->toBinary();
    const std::optional<PropertyList> again = PropertyList::fromBytes(written);
    if (!again || again->toBinary() != written)
        std::abort();
    return 0;
}
