// SPDX-License-Identifier: GPL-3.0-or-later
#include "paste/HotKeyCenter.h"

#include "platform/display/HotKeyRegistrar.h"

namespace vellumry {

HotKeyCenter::HotKeyCenter(HotKeyRegistrar& registrar)
    : m_registrar(registrar) {
    m_registrar.onPressed = [this](quint32 id) { press(id); };
}

HotKeyCenter::~HotKeyCenter() {
    m_registrar.onPressed = nullptr;
    for (auto action = m_actions.cbegin(); action != m_actions.cend(); ++action)
        m_registrar.release(action.key());
}

bool HotKeyCenter::hasKeys() const {
    return m_registrar.hasKeys();
}

std::optional<quint32> HotKeyCenter::registerShortcut(const Shortcut& shortcut, Action action) {
    return registerShortcut(shortcut, std::move(action), {});
}

std::optional<quint32> HotKeyCenter::registerShortcut(const Shortcut& shortcut, Action action,
                                                      const HotKeyPurpose& purpose) {
    const auto id = m_nextID++;
    m_registrar.announce(id, purpose);
    if (!m_registrar.grab(id, shortcut.keyCode, shortcut.modifiers))
        return std::nullopt;
    m_actions.insert(id, std::move(action));
    return id;
}

void HotKeyCenter::unregister(quint32 id) {
    if (m_actions.remove(id))
        m_registrar.release(id);
}

void HotKeyCenter::press(quint32 id) {
    // A copy: the action may register everything anew.
    if (const auto action = m_actions.value(id))
        action();
}

} // namespace vellumry
