// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace vellumry {

/// A row's title as styled text with the first hit of `query` in bold. A hit far into the title would be cut off by the
/// row's end, so the title then begins shortly before it, with "…" in front. Everything else is escaped. Pure.
[[nodiscard]] QString markedTitle(const QString& title, const QString& query);

} // namespace vellumry
