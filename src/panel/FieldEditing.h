// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace vellumry {

/// Where the word before `cursor` begins, the blanks before it included: what rubbing out a word takes away. Blanks
/// right before the cursor belong to it too. Pure.
[[nodiscard]] qsizetype startOfWordToRubOut(const QString& text, qsizetype cursor);

} // namespace vellumry
