// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/desktop/LoginItem.h"

#include <QString>
#include <QStringList>

namespace vellumry {

/// The program among what the desktop starts at login: an entry of the user's own (Desktop Application Autostart
/// Specification 0.5). Main thread; the files are small and the user's own.
class XdgLoginItem : public LoginItem {
public:
    struct Places {
        QString userFolder{};        ///< $XDG_CONFIG_HOME/autostart
        QStringList systemFolders{}; ///< …/autostart of each of $XDG_CONFIG_DIRS
        QString program{};           ///< what is started: the AppImage where the program is one
        [[nodiscard]] static Places ofUser();
    };

    explicit XdgLoginItem(Places places = Places::ofUser());

    [[nodiscard]] bool isEnabled() const override;
    /// Off takes our file away; where the system has an entry of that name, it is covered by one that says so.
    [[nodiscard]] bool setEnabled(bool isWanted) override;
    /// An entry that starts a program which is not there any more, an AppImage that was moved for one, starts this one
    /// from now on.
    void follow();

private:
    [[nodiscard]] QString file() const;
    [[nodiscard]] QString systemFile() const;
    [[nodiscard]] bool write(const QByteArray& text) const;

    Places m_places;
};

} // namespace vellumry
