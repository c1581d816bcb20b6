// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "reader/TextEngine.h"

#include <vector>

/// What several readings of one picture make together. Pure functions; any thread.
namespace vellumry::readlines {

using Lines = std::vector<TextLine>;

/// The mean confidence by the length of the lines; 0 for none.
[[nodiscard]] double confidence(const Lines& lines);

/// At most `count` lines to judge a language by, the longest ones.
[[nodiscard]] Lines samples(const Lines& lines, std::size_t count);

/// Takes over from `others` what they have better: a line in the same place with clearly more confidence, and a line
/// where there was none that is read with confidence.
void improve(Lines& lines, const Lines& others);

/// One text, a line feed behind each line.
[[nodiscard]] QString joined(const Lines& lines);

} // namespace vellumry::readlines
