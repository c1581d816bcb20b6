// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace vellumry {

/// Keeps out of the log what Qt and the desktop's theme for Qt say of things that are our own choice, that there is no
/// GL and that the portals refuse a process that hides its files, and of requests whose refusal costs nothing. Call it
/// once, behind `logging::start`.
void leaveOutQtNotices();

} // namespace vellumry
