// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/PasteSound.h"

#include "foundation/UserDefaults.h"
#include "platform/desktop/SoundPlayer.h"

namespace vellumry {

std::function<void()> pasteSound(const UserDefaults& preferences, SoundPlayer& sounds) {
    return [&preferences, &sounds] {
        if (preferences.boolean(QStringLiteral("soundWhenPasting")))
            sounds.play(Sound::pop);
    };
}

} // namespace vellumry
