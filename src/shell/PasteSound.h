// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>

namespace vellumry {

class SoundPlayer;
class UserDefaults;

/// What the paste engine calls after it pressed the keys: it is heard when the user wants a sound ("soundWhenPasting",
/// read each time). Both must outlive the result.
[[nodiscard]] std::function<void()> pasteSound(const UserDefaults& preferences, SoundPlayer& sounds);

} // namespace vellumry
