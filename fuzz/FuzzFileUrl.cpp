// SPDX-License-Identifier: GPL-3.0-or-later
#include "foundation/FileUrl.h"

#include <cstdlib>

namespace fileurl = vellumry::fileurl;

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size);

int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size) {
    const QByteArray url(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
    const std::optional<QString> path = fileurl::pathOf(url);
    if (path.has_value() != fileurl::nameOf(url).has_value())
        std::abort();
    if (!path)
        return 0;
    // A path is absolute, standard already, and survives a URL of its own.
    if (!path->startsWith(u'/') || fileurl::standardized(*path) != *path)
        std::abort();
    if (fileurl::pathOf(fileurl::urlOf(*path)) != path)
        std::abort();
    return 0;
}
