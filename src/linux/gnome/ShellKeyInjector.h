// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "linux/gnome/ShellLink.h"
#include "linux/keys/KeyInjector.h"

namespace vellumry {

/// Presses keys by the shell's own virtual keyboard. Main thread.
class ShellKeyInjector final : public KeyInjector {
public:
    explicit ShellKeyInjector(std::shared_ptr<ShellLink> link)
        : m_link(std::move(link)) {}

    [[nodiscard]] bool isReady() const override { return m_link->isThere(); }
    void press(const std::vector<Modifier>& modifiers, quint32 evdevCode) override;

private:
    std::shared_ptr<ShellLink> m_link;
};

} // namespace vellumry
