// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace vellumry {

/// The AppImage that this process runs from; empty when it runs from none. A program that an AppImage starts inherits
/// the names of that one in its environment and is not it.
[[nodiscard]] QString runningAppImage();

} // namespace vellumry
