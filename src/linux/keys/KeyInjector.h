// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "linux/wayland/keys/WaylandKeymap.h"

#include <memory>
#include <vector>

namespace vellumry {

/// Presses keys for the user in whatever window has the keyboard. Main thread.
class KeyInjector {
public:
    virtual ~KeyInjector() = default;

    struct Modifier {
        quint32 evdevCode = 0;
        const char* name = nullptr; ///< of the real modifier that it sets
    };
    /// False while keys cannot be pressed; that may change.
    [[nodiscard]] virtual bool isReady() const { return true; }
    /// Presses the modifiers, then the key, and lets go of them in the other direction.
    virtual void press(const std::vector<Modifier>& modifiers, quint32 evdevCode) = 0;

    /// By the protocol that is offered: KWin's fake input, to programs whose desktop file asks for it, else a virtual
    /// keyboard. Null without either.
    [[nodiscard]] static std::unique_ptr<KeyInjector> create(const std::shared_ptr<WaylandConnection>& connection,
                                                             const std::shared_ptr<WaylandKeymap>& keymap);
};

} // namespace vellumry
