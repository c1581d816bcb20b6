// SPDX-License-Identifier: GPL-3.0-or-later
#include "linux/desktop/MemoryReturn.h"

#include <malloc.h>

namespace vellumry {

void returnLargeBlocks() {
#ifdef __GLIBC__
    constexpr int largeBlock = 512 * 1024;
    mallopt(M_MMAP_THRESHOLD, largeBlock);
    mallopt(M_TRIM_THRESHOLD, largeBlock);
#endif
}

} // namespace vellumry
