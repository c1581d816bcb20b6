// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "paste/Shortcut.h"

#include <QHash>
#include <functional>
#include <optional>

namespace vellumry {

class HotKeyRegistrar;
struct HotKeyPurpose;

/// Joins global key combinations with what they do. Takes the registrar's `onPressed` for itself; gives all keys back
/// when it goes. Main thread.
class HotKeyCenter {
public:
    using Action = std::function<void()>;

    /// `registrar` must outlive the centre.
    explicit HotKeyCenter(HotKeyRegistrar& registrar);
    ~HotKeyCenter();
    HotKeyCenter(const HotKeyCenter&) = delete;
    HotKeyCenter& operator=(const HotKeyCenter&) = delete;

    /// False where no program can hold keys.
    [[nodiscard]] bool hasKeys() const;
    /// The id of the registration; nothing when the combination is taken. An id is never used twice in a run, that of a
    /// failed registration included, so that a late key press cannot reach a newer action.
    [[nodiscard]] std::optional<quint32> registerShortcut(const Shortcut& shortcut, Action action);
    /// The same, for a key that the desktop may show the user.
    [[nodiscard]] std::optional<quint32> registerShortcut(const Shortcut& shortcut, Action action,
                                                          const HotKeyPurpose& purpose);
    /// An unknown id does nothing.
    void unregister(quint32 id);

private:
    void press(quint32 id);

    HotKeyRegistrar& m_registrar;
    QHash<quint32, Action> m_actions;
    quint32 m_nextID = 1;
};

} // namespace vellumry
