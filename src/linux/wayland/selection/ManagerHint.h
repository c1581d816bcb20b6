// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLatin1String>

namespace vellumry {

/// The MIME type by which a copy asks clipboard managers to leave it alone (KDE).
inline constexpr QLatin1String managerHint{"x-kde-passwordManagerHint"};

} // namespace vellumry
