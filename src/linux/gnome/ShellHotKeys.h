// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "linux/gnome/ShellLink.h"
#include "linux/wayland/keys/WaylandKeymap.h"
#include "platform/display/HotKeyRegistrar.h"

#include <QHash>

namespace vellumry {

/// Global keys that our shell extension holds for us. While it is away they are not held, and are taken again when it
/// is back. Main thread.
class ShellHotKeys final : public QObject, public HotKeyRegistrar {
    Q_OBJECT
public:
    ShellHotKeys(std::shared_ptr<ShellLink> link, std::shared_ptr<WaylandKeymap> keymap);
    ~ShellHotKeys() override;

    /// Waits for the shell. True while the extension is away: the key is taken when it comes.
    [[nodiscard]] bool grab(quint32 id, KeyCode keyCode, Modifiers modifiers) override;
    void release(quint32 id) override;

private:
    [[nodiscard]] QString acceleratorOf(KeyCode keyCode, Modifiers modifiers) const;
    void takeAgain();

    std::shared_ptr<ShellLink> m_link;
    std::shared_ptr<WaylandKeymap> m_keymap;
    QHash<quint32, QString> m_accelerators; ///< by id
};

} // namespace vellumry
