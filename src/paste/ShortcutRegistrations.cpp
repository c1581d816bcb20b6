// SPDX-License-Identifier: GPL-3.0-or-later
#include "paste/ShortcutRegistrations.h"

#include "foundation/Localisation.h"
#include "foundation/Logging.h"
#include "foundation/UserDefaults.h"
#include "paste/HotKeyCenter.h"
#include "platform/display/HotKeyRegistrar.h"

#include <utility>

namespace vellumry {

ShortcutRegistrations::ShortcutRegistrations(const UserDefaults& preferences, HotKeyCenter& center,
                                             const KeyboardLayout& layout, Actions actions)
    : m_preferences(preferences)
    , m_center(center)
    , m_layout(layout)
    , m_actions(std::move(actions)) {}

ShortcutRegistrations::~ShortcutRegistrations() {
    suspend();
}

QStringList ShortcutRegistrations::reload() {
    suspend();
    QStringList problems;
    addChosen(QStringLiteral("openPanelShortcut"), Shortcut::openPanelDefault(), m_actions.togglePanel,
              HotKeyPurpose{QStringLiteral("open-panel"), localised("Open Vellumry")}, problems);
    addChosen(QStringLiteral("pasteStackShortcut"), Shortcut::pasteStackDefault(), m_actions.toggleStack,
              HotKeyPurpose{QStringLiteral("toggle-stack"), localised("Start / stop Paste Stack")}, problems);
    if (m_actions.pastePinned && m_preferences.boolean(QStringLiteral("pinnedShortcutsEnabled")))
        addPinned();
    return problems;
}

void ShortcutRegistrations::suspend() {
    for (const auto id : std::exchange(m_hotKeyIDs, {}))
        m_center.unregister(id);
    m_pinnedNumbers.clear();
    m_takenKeys.clear();
}

std::optional<ShortcutRegistrations::Offer> ShortcutRegistrations::offer() {
    if (m_takenKeys.isEmpty())
        return std::nullopt;
    using enum Modifier;
    const QString& key = m_takenKeys.front();
    const Shortcut standard =
        key == QLatin1String("openPanelShortcut") ? Shortcut::openPanelDefault() : Shortcut::pasteStackDefault();
    // The usual key with other modifiers; combinations with Shift last, as many layouts type with them.
    for (const Modifiers modifiers : {control | command, command | option, control | option, control | shift,
                                      control | command | option, command | option | shift}) {
        const Shortcut candidate{standard.keyCode, modifiers};
        const auto id = m_center.registerShortcut(candidate, [] {});
        if (!id)
            continue;
        m_center.unregister(*id);
        return Offer{key, candidate};
    }
    return std::nullopt;
}

void ShortcutRegistrations::addChosen(const QString& key, const Shortcut& standard, const std::function<void()>& action,
                                      const HotKeyPurpose& purpose, QStringList& problems) {
    if (!action)
        return;
    const QVariant stored = m_preferences.object(key);
    const std::optional<Shortcut> chosen = Shortcut::fromStored(stored);
    if (stored.isValid() && !chosen)
        m_preferences.refuse(key);
    const Shortcut shortcut = chosen.value_or(standard);
    // Where keys cannot be held, none is taken.
    if (!m_center.hasKeys() || add(shortcut, action, purpose))
        return;
    qCWarning(logging::paste).noquote() << "the shortcut of" << key << "is held by another program or has no key";
    m_takenKeys.append(key);
    problems.append(
        localised("%1 is already used by another app. Pick another shortcut.").arg(shortcut.display(m_layout)));
}

bool ShortcutRegistrations::add(const Shortcut& shortcut, std::function<void()> action, const HotKeyPurpose& purpose) {
    const auto id = m_center.registerShortcut(shortcut, std::move(action), purpose);
    if (id)
        m_hotKeyIDs.push_back(*id);
    return id.has_value();
}

void ShortcutRegistrations::addPinned() {
    for (int number = 1; number <= 9; ++number) {
        const HotKeyPurpose purpose{QStringLiteral("paste-pin-%1").arg(number),
                                    localised("Pinned clip") + u' ' + QString::number(number)};
        if (add(
                Shortcut::pinned(number), [paste = m_actions.pastePinned, number] { paste(number); }, purpose))
            m_pinnedNumbers.insert(number);
    }
}

} // namespace vellumry
