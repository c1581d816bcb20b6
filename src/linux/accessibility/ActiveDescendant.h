// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

class QAccessibleInterface;

namespace vellumry {

/// Says on the desktop's accessibility bus that the keys work on `child` of its container, while the focus may be
/// elsewhere: `org.a11y.atspi.Event.Object.ActiveDescendantChanged`, which Qt's bridge does not know. Says nothing
/// where Qt speaks to no such bus. Main thread.
void tellActiveDescendant(QAccessibleInterface& child);

} // namespace vellumry
