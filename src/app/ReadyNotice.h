// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace vellumry {

/// Tells the service manager that started us, if one did, that the program watches the clipboard: "READY=1" as a
/// datagram to $NOTIFY_SOCKET (sd_notify(3)). Does nothing without one; failures are ignored.
void sendReadyNotice();

} // namespace vellumry
