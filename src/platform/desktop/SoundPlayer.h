// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace vellumry {

/// What the program may be heard with.
enum class Sound {
    pop,    ///< something was pasted
    refusal ///< a key that does not do
};

/// The desktop's sounds. Main thread.
class SoundPlayer {
public:
    virtual ~SoundPlayer() = default;
    /// Begins to play and returns at once. Silent where there is nothing to play it with.
    virtual void play(Sound sound) = 0;
};

} // namespace vellumry
