// SPDX-License-Identifier: GPL-3.0-or-later
#include "foundation/PropertyList.h"
#include "support/ListBytes.h"

#include <cstdlib>

using namespace vellumry;

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size);

int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size) {
    const QByteArray bytes(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
    const std::optional<PropertyList> list = PropertyList::fromBytes(bytes);
    if (!list)
        return 0;
    // What was read can be written, and reads back the same.
    if (isWritable(*list) && PropertyList::fromBytes(written(*list)) != list)
        std::abort();
    return 0;
}
