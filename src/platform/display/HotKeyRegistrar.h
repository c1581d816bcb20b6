// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/display/KeyCode.h"
#include "platform/display/Modifiers.h"

#include <QString>
#include <QStringList>
#include <QtGlobal>
#include <functional>

namespace vellumry {

/// What the user writes where, for a key to reach the program. A value.
struct OwnBindings {
    QString file; ///< empty where the desktop has a window for it
    QStringList lines;
};

/// What a key is for, where the desktop shows the user the keys of programs. A value.
struct HotKeyPurpose {
    QString name;        ///< the same in every run; letters, digits and hyphens
    QString description; ///< for the user
};

/// Keys that reach the program whatever application is in front. Main thread.
class HotKeyRegistrar {
public:
    virtual ~HotKeyRegistrar() = default;
    /// False where no program can hold keys: the user binds them to the program's actions.
    [[nodiscard]] virtual bool hasKeys() const { return true; }
    /// How the user does that; nothing where `hasKeys`.
    [[nodiscard]] virtual OwnBindings ownBindings() const { return {}; }
    /// What the key that is grabbed next with this id is for.
    virtual void announce(quint32 id, const HotKeyPurpose& purpose) {
        Q_UNUSED(id)
        Q_UNUSED(purpose)
    }
    /// False when another program holds the combination, or the platform has no global keys. A platform that asks the
    /// user first answers true.
    [[nodiscard]] virtual bool grab(quint32 id, KeyCode keyCode, Modifiers modifiers) = 0;
    virtual void release(quint32 id) = 0;
    /// Called on the main thread when a grabbed combination is pressed; key repeats are left out.
    std::function<void(quint32 id)> onPressed;
};

} // namespace vellumry
