// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/desktop/SoundPlayer.h"

#include <vector>

namespace vellumry {

/// Remembers what would have been heard.
class FakeSoundPlayer : public SoundPlayer {
public:
    std::vector<Sound> played;

    void play(Sound sound) override { played.push_back(sound); }
};

} // namespace vellumry
