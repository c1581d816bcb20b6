// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

namespace vellumry::readersandbox {

/// Whether the user waits for what the reader does.
enum class Urgency { awaited, background };

/// Gives up what the reader process does not need, for good: in the background all priority, memory beyond 2 GiB,
/// descriptors besides the standard ones, new privileges, core dumps. Before anything else in `main`.
void enter(Urgency urgency);

/// Gives up the rest once all decoders are loaded: being looked at by other processes of the user, the file system
/// (Landlock, Linux 5.13), the network, other processes, new programs and changes to files by their path (seccomp).
/// What lies in `readableFolder` can still be read; empty: nothing can. What the kernel does not know is left out.
void seal(const std::string& readableFolder = {});

/// Allows `seconds` of processor time from now; a decoder that uses them up ends the process.
void allowProcessorSeconds(unsigned seconds);

} // namespace vellumry::readersandbox
