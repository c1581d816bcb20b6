// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStringList>

class QQuickItem;

namespace vellumry {

/// The texts under `root` that do not fit: shown with an ellipsis, wider or higher than their place, outside of the
/// window, or over another text. A line for each, with the reason. The texts of clips may be cut: what begins as one of
/// `excused`, or is part of one, is not told.
[[nodiscard]] QStringList textsThatDoNotFit(const QQuickItem& root, const QStringList& excused = {});

} // namespace vellumry
