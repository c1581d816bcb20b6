// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "linux/x11/selection/XcbConnection.h"

namespace vellumry {

/// Overwrites the buffers of a connection, 16 KB for each direction, which live as long as it does and keep what came
/// and went last, a copied secret for one. Waits for the server, as long as it takes to answer some 130 small requests.
/// No event comes of it. The connection's own thread.
void overwriteBuffers(XcbConnection& connection);

} // namespace vellumry
