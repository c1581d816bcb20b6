// SPDX-License-Identifier: GPL-3.0-or-later
import Vellumry.Views

// A tooltip in a window of its own.
Tooltip {}
