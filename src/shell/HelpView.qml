// SPDX-License-Identifier: GPL-3.0-or-later
import Vellumry.Panel

// A help text in a window of its own.
HelpBubble {}
