// SPDX-License-Identifier: GPL-3.0-or-later
#include "foundation/Date.h"

#include <chrono>

namespace vellumry {

Date currentDate() {
    return std::chrono::duration<double>(std::chrono::system_clock::now().time_since_epoch()).count();
}

} // namespace vellumry
