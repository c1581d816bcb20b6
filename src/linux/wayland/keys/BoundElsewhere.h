// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/display/HotKeyRegistrar.h"

#include <utility>

namespace vellumry {

/// For compositors that let no program hold keys: the user binds a key to `vellumry --action …` in their settings.
class BoundElsewhere final : public HotKeyRegistrar {
public:
    explicit BoundElsewhere(OwnBindings bindings)
        : m_bindings(std::move(bindings)) {}
    [[nodiscard]] bool hasKeys() const override { return false; }
    [[nodiscard]] OwnBindings ownBindings() const override { return m_bindings; }
    [[nodiscard]] bool grab(quint32, KeyCode, Modifiers) override { return false; }
    void release(quint32) override {}

private:
    OwnBindings m_bindings;
};

} // namespace vellumry
