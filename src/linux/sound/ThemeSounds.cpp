// SPDX-License-Identifier: GPL-3.0-or-later
#include "linux/sound/ThemeSounds.h"

#include "foundation/Logging.h"

#include <atomic>
#include <cstdint>
#include <dlfcn.h>
#include <thread>

namespace vellumry {

namespace {

/// The sound's name in the theme. There is none for a paste; this one is short and made to be heard often.
constexpr const char* eventOf(Sound sound) {
    switch (sound) {
    case Sound::pop:
        return "audio-volume-change";
    case Sound::refusal:
        return "bell";
    }
    return "";
}

} // namespace

/// The loaded library and its context. Shared with the thread that uses it, which may outlive the player on a server
/// that hangs. Neither is given back: the sound goes on after the call, and threads of the library may still run.
struct ThemeSounds::Output {
    using Context = struct ca_context;
    using Create = int (*)(Context**);
    using ChangeProperties = int (*)(Context*, ...);
    using Play = int (*)(Context*, std::uint32_t, ...);

    explicit Output(QByteArray path)
        : library(std::move(path)) {}

    void open() {
        if (wasOpened)
            return;
        wasOpened = true;
        void* handle = dlopen(library.constData(), RTLD_NOW | RTLD_LOCAL);
        if (handle == nullptr)
            return;
        const auto create = reinterpret_cast<Create>(dlsym(handle, "ca_context_create"));
        const auto change = reinterpret_cast<ChangeProperties>(dlsym(handle, "ca_context_change_props"));
        playEvent = reinterpret_cast<Play>(dlsym(handle, "ca_context_play"));
        if (create == nullptr || change == nullptr || playEvent == nullptr || create(&context) != 0) {
            context = nullptr;
            qCInfo(logging::sound) << "libcanberra cannot be used: pastes are silent";
            return;
        }
        change(context, "application.name", "Vellumry", "application.id", "com.vellumry.Vellumry", nullptr);
    }

    void play(Sound sound) {
        open();
        if (context != nullptr)
            playEvent(context, 0, "event.id", eventOf(sound), "canberra.cache-control", "permanent", nullptr);
    }

    const QByteArray library;
    std::atomic<bool> isBusy = false;
    // Of the thread that set `isBusy`.
    bool wasOpened = false;
    Context* context = nullptr;
    Play playEvent = nullptr;
};

ThemeSounds::ThemeSounds(QByteArray library)
    : m_output(std::make_shared<Output>(std::move(library))) {}

bool ThemeSounds::hasLibrary(const char* library) {
    void* handle = dlopen(library, RTLD_LAZY | RTLD_LOCAL);
    if (handle != nullptr)
        dlclose(handle);
    return handle != nullptr;
}

void ThemeSounds::play(Sound sound) {
    if (m_output->isBusy.exchange(true))
        return;
    std::thread([output = m_output, sound] {
        output->play(sound);
        output->isBusy = false;
    }).detach();
}

} // namespace vellumry
