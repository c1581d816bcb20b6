// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "history/clips/Clip.h"

#include <QString>

/// How a clip looks in a row: pure functions of the clip.
namespace vellumry::row {

/// What stands for the clip. A sensitive clip never shows its text: "Card •••• " with the last four digits, or
/// "Hidden". Any other shows its title in one line.
[[nodiscard]] QString titleOf(const Clip& clip);
/// The name of one of the program's symbols.
[[nodiscard]] QString symbolOf(const Clip& clip);
/// A colour clip's colour in the form "#AARRGGBB" or "#RRGGBB"; empty for any other and for what cannot be read.
[[nodiscard]] QString swatchOf(const Clip& clip);
/// Where QML finds its small picture; empty without one, and for a sensitive clip.
[[nodiscard]] QString thumbnailOf(const Clip& clip);
/// The application it came from, "Unknown app" without one.
[[nodiscard]] QString sourceOf(const Clip& clip);
/// The application with that identifier is a terminal or a code editor.
[[nodiscard]] bool isCodeApp(const QString& identifier);

} // namespace vellumry::row
