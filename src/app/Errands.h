// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

/// What the program does for a command line without becoming the running copy. Each needs no display, makes an
/// application object of its own, and answers the exit status.
namespace vellumry::errands {

/// --status: prints the running copy's report, else what can be found out without it. Always 0.
[[nodiscard]] int printStatus(int& argc, char** argv);

/// --action: hands `action` to the running copy. 1 with a line on standard error when none runs or answers.
[[nodiscard]] int askForAction(int& argc, char** argv, const QString& action);

/// Tells a user whose session has no X11 display why the program does not start: on standard error and, where the
/// desktop shows notifications, on the screen. The exit status of such a start, 1.
[[nodiscard]] int tellOfMissingDisplay(int& argc, char** argv);

} // namespace vellumry::errands
