// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "paste/Shortcut.h"

#include <QSet>
#include <QStringList>
#include <functional>
#include <optional>
#include <vector>

namespace vellumry {

class HotKeyCenter;
struct HotKeyPurpose;
class UserDefaults;

/// The program's global shortcuts as the settings have them: the panel's, the Paste Stack's, and those of the pinned
/// clips. Main thread.
class ShortcutRegistrations {
public:
    /// What the shortcuts do. A key whose action is not set is left to other programs.
    struct Actions {
        std::function<void()> togglePanel;
        std::function<void()> toggleStack;
        std::function<void(int number)> pastePinned;
    };

    /// A free shortcut in place of one that another program holds.
    struct Offer {
        QString key; ///< of the setting
        Shortcut shortcut;
        bool operator==(const Offer&) const = default;
    };

    /// The references must outlive the registrations.
    ShortcutRegistrations(const UserDefaults& preferences, HotKeyCenter& center, const KeyboardLayout& layout,
                          Actions actions);
    ~ShortcutRegistrations();
    ShortcutRegistrations(const ShortcutRegistrations&) = delete;
    ShortcutRegistrations& operator=(const ShortcutRegistrations&) = delete;

    /// Registers everything anew. One sentence for the user for each of the two chosen shortcuts that another program
    /// holds; a taken shortcut of a pinned clip is no problem, it only does not count.
    QStringList reload();
    /// Gives all keys back until the next `reload`, so that they reach a recorder.
    void suspend();

    /// The settings whose shortcut another program holds.
    [[nodiscard]] const QStringList& takenKeys() const { return m_takenKeys; }
    /// For the first of `takenKeys`; nothing when none is taken, or all that would do are.
    [[nodiscard]] std::optional<Offer> offer();
    /// The digits of the pinned clips' shortcuts that are registered now.
    [[nodiscard]] const QSet<int>& availablePinnedNumbers() const { return m_pinnedNumbers; }
    [[nodiscard]] const std::vector<quint32>& hotKeyIDs() const { return m_hotKeyIDs; }

private:
    [[nodiscard]] bool add(const Shortcut& shortcut, std::function<void()> action, const HotKeyPurpose& purpose);
    void addChosen(const QString& key, const Shortcut& standard, const std::function<void()>& action,
                   const HotKeyPurpose& purpose, QStringList& problems);
    void addPinned();

    const UserDefaults& m_preferences;
    HotKeyCenter& m_center;
    const KeyboardLayout& m_layout;
    Actions m_actions;
    std::vector<quint32> m_hotKeyIDs;
    QStringList m_takenKeys;
    QSet<int> m_pinnedNumbers;
};

} // namespace vellumry
