// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "linux/keys/KeyInjector.h"
#include "linux/wayland/keys/WaylandKeymap.h"

#include <memory>

namespace vellumry {

/// Presses keys by the protocol that the compositor offers: KWin's fake input, to programs whose desktop file asks for
/// it, else a virtual keyboard. Null without either.
[[nodiscard]] std::unique_ptr<KeyInjector> makeCompositorKeys(const std::shared_ptr<WaylandConnection>& connection,
                                                              const std::shared_ptr<WaylandKeymap>& keymap);

} // namespace vellumry
