// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "history/clips/Clip.h"
#include "platform/desktop/ActionMenuItem.h"

#include <vector>

namespace vellumry {

class PanelModel;

/// The menu of a row. With several clips selected and the row among them it acts on the selection, else on `clip`.
/// Handlers hold the model weakly and the clip by its identity: an entry that is chosen after its clip has gone does
/// nothing. Main thread.
[[nodiscard]] std::vector<ActionMenuItem> rowMenu(PanelModel& model, const ClipRef& clip);

} // namespace vellumry
