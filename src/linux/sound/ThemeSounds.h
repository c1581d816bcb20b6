// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/desktop/SoundPlayer.h"

#include <QByteArray>
#include <memory>

namespace vellumry {

/// Plays sounds of the desktop's sound theme (freedesktop Sound Theme and Sound Naming Specifications 0.8), by way of
/// libcanberra. The library is loaded with the first sound, on a thread that alone waits for the sound server: most
/// users want no sounds, and a server may hang. Without the library, a server or the theme it stays silent.
class ThemeSounds : public SoundPlayer {
public:
    explicit ThemeSounds(QByteArray library = "libcanberra.so.0");

    /// True when `library` is installed. Looks at the disk; any thread.
    [[nodiscard]] static bool hasLibrary(const char* library = "libcanberra.so.0");

    /// What is asked for while the server has not yet taken the sound before is left out.
    void play(Sound sound) override;

private:
    struct Output;
    std::shared_ptr<Output> m_output;
};

} // namespace vellumry
