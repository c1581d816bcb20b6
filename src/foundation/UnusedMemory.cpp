// SPDX-License-Identifier: GPL-3.0-or-later
#include "foundation/UnusedMemory.h"

#include <cstdlib>

#ifdef __GLIBC__
#include <malloc.h>
#endif

namespace vellumry {

void giveBackUnusedMemory() {
#ifdef __GLIBC__
    malloc_trim(0);
#endif
}

} // namespace vellumry
