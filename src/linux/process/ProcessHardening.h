// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace vellumry {

/// Keeps what the user copied out of core dumps and out of the reach of other processes' debuggers. First thing in
/// `main`, before a second thread. A build for inspection (option VELLUMRY_INSPECTABLE, and each sanitizer build) only
/// gives up its core dumps: such a build must be able to look at itself.
void hardenProcess();

/// As long as it lives, other processes of the user may see which program this is, as they may of an ordinary process.
/// For a moment, if it can be before there are secrets in memory: a compositor that grants rights by desktop file looks
/// up the program of a new connection in /proc, as portals do. Any thread; the last of several hides the process.
class VisibleProcess {
public:
    VisibleProcess();
    ~VisibleProcess();
    VisibleProcess(const VisibleProcess&) = delete;
    VisibleProcess& operator=(const VisibleProcess&) = delete;
};

} // namespace vellumry
