// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace vellumry {

/// Hands memory that was freed, and that the allocator keeps for later, back to the system. For the end of work that
/// needed much more than what it leaves; takes a millisecond or two. Any thread.
void giveBackUnusedMemory();

} // namespace vellumry
