// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace vellumry {

/// Keeps what the user copied out of core dumps and out of the reach of other processes' debuggers. First thing in
/// `main`, before a second thread. A build for inspection (option VELLUMRY_INSPECTABLE, and each sanitizer build) only
/// gives up its core dumps: such a build must be able to look at itself.
void hardenProcess();

} // namespace vellumry
