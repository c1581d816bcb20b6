// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace vellumry {

/// Keeps out of the log what Qt and Plasma's theme say about the renderer at the start: that there is no GL, which is
/// our own choice. Call it once, behind `logging::start`.
void leaveOutRendererNotices();

} // namespace vellumry
