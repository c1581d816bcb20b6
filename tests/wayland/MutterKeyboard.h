// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDBusConnection>
#include <QString>

/// A keyboard in a GNOME session, by Mutter's interface for remote sessions.
class MutterKeyboard {
public:
    /// False where there is no Mutter.
    bool open();
    [[nodiscard]] bool isOpen() const { return !m_session.isEmpty(); }
    /// Answered when the shell has taken it in.
    void press(quint32 evdevCode, bool isDown);

private:
    QString m_session;
};
