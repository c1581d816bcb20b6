// SPDX-License-Identifier: GPL-3.0-or-later
#include "linux/gnome/ShellHotKeys.h"

#include "foundation/Logging.h"

#include <array>
#include <xkbcommon/xkbcommon.h>

namespace vellumry {

ShellHotKeys::ShellHotKeys(std::shared_ptr<ShellLink> link, std::shared_ptr<WaylandKeymap> keymap)
    : m_link(std::move(link))
    , m_keymap(std::move(keymap)) {
    connect(m_link.get(), &ShellLink::keyPressed, this, [this](quint32 id) {
        if (m_accelerators.contains(id) && onPressed)
            onPressed(id);
    });
    connect(m_link.get(), &ShellLink::thereChanged, this, [this](bool isThere) {
        if (isThere)
            takeAgain();
    });
}

ShellHotKeys::~ShellHotKeys() {
    for (const quint32 id : m_accelerators.keys())
        release(id);
}

/// As GTK writes it: <Control><Super>v.
QString ShellHotKeys::acceleratorOf(KeyCode keyCode, Modifiers modifiers) const {
    const auto evdevCode = m_keymap->positions().evdevCode(keyCode);
    const auto characters = evdevCode ? m_keymap->charactersFor(*evdevCode) : std::nullopt;
    if (!characters || characters->size() != 1)
        return {};
    std::array<char, 64> name{};
    if (xkb_keysym_get_name(xkb_utf32_to_keysym(characters->front().unicode()), name.data(), name.size()) <= 0)
        return {};
    QString accelerator;
    for (const auto& [modifier, written] :
         {std::pair(Modifier::command, "<Control>"), std::pair(Modifier::shift, "<Shift>"),
          std::pair(Modifier::option, "<Alt>"), std::pair(Modifier::control, "<Super>")}) {
        if (modifiers.testFlag(modifier))
            accelerator += QLatin1String(written);
    }
    return accelerator + QLatin1String(name.data());
}

bool ShellHotKeys::grab(quint32 id, KeyCode keyCode, Modifiers modifiers) {
    const QString accelerator = acceleratorOf(keyCode, modifiers);
    if (accelerator.isEmpty())
        return false;
    if (m_link->isThere()) {
        const auto answer = m_link->ask(QStringLiteral("GrabKey"), {id, accelerator});
        if (!answer || !answer->value(0).toBool())
            return false;
    }
    m_accelerators.insert(id, accelerator);
    return true;
}

void ShellHotKeys::release(quint32 id) {
    if (m_accelerators.remove(id))
        m_link->tell(QStringLiteral("ReleaseKey"), {id});
}

void ShellHotKeys::takeAgain() {
    for (auto key = m_accelerators.cbegin(); key != m_accelerators.cend(); ++key) {
        const auto answer = m_link->ask(QStringLiteral("GrabKey"), {key.key(), key.value()});
        if (!answer || !answer->value(0).toBool())
            qCWarning(logging::wayland).noquote() << "the shell does not give back the key" << key.value();
    }
}

} // namespace vellumry
