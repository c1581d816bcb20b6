// SPDX-License-Identifier: GPL-3.0-or-later
#include "linux/portal/DeferredHotKeys.h"

#include "foundation/Logging.h"

#include <utility>

namespace vellumry {

void DeferredHotKeys::choose(std::unique_ptr<HotKeyRegistrar> chosen) {
    m_chosen = std::move(chosen);
    m_chosen->onPressed = [this](quint32 id) {
        if (const auto told = onPressed)
            told(id);
    };
    for (const auto& [id, wish] : std::exchange(m_wishes, {})) {
        m_chosen->announce(id, wish.purpose);
        if (!m_chosen->grab(id, wish.keyCode, wish.modifiers))
            qCWarning(logging::wayland).noquote() << "no shortcut for" << wish.purpose.name;
    }
    for (const auto& [id, purpose] : std::exchange(m_purposes, {}))
        m_chosen->announce(id, purpose);
}

bool DeferredHotKeys::hasKeys() const {
    return !m_chosen || m_chosen->hasKeys();
}

OwnBindings DeferredHotKeys::ownBindings() const {
    return m_chosen ? m_chosen->ownBindings() : OwnBindings();
}

void DeferredHotKeys::announce(quint32 id, const HotKeyPurpose& purpose) {
    if (m_chosen)
        m_chosen->announce(id, purpose);
    else
        m_purposes[id] = purpose;
}

bool DeferredHotKeys::grab(quint32 id, KeyCode keyCode, Modifiers modifiers) {
    if (m_chosen)
        return m_chosen->grab(id, keyCode, modifiers);
    const auto purpose = m_purposes.extract(id);
    m_wishes[id] = Wish{purpose.empty() ? HotKeyPurpose() : purpose.mapped(), keyCode, modifiers};
    return true;
}

void DeferredHotKeys::release(quint32 id) {
    if (m_chosen)
        m_chosen->release(id);
    m_purposes.erase(id);
    m_wishes.erase(id);
}

} // namespace vellumry
