// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace vellumry {

/// Has every block of more than half a megabyte go back to the system when it is freed, whatever was freed before it.
/// Left to itself the C library keeps blocks of up to 32 MB for later, in each thread's heap, once one of that size was
/// freed: a large picture copied in the morning would be paid for all day. Threads share one heap beside the main one.
/// Once, before there are threads.
void returnLargeBlocks();

/// Gives the pages of code and constants back that the process was ever led to, its own and its libraries'. What is
/// still needed comes back from the system's file cache at the next use, a few microseconds for each 64 KB; what only
/// the start or a window needed stays away. Nothing that was written to is touched. Any thread.
void returnCode();

} // namespace vellumry
