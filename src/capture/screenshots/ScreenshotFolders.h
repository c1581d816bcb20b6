// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringList>

namespace vellumry {

/// Where screenshot tools of the desktop save: the folders that their settings name, then those they use without a
/// setting. Touches the disk; any thread.
struct ScreenshotFolders {
    QString home;
    QString configHome; ///< $XDG_CONFIG_HOME
    QString pictures;   ///< the user's folder for pictures
    QString variable;   ///< $XDG_SCREENSHOTS_DIR; empty when unset

    /// Of the user whose process this is.
    [[nodiscard]] static ScreenshotFolders ofUser();

    /// Each once, absolute, without a slash at the end, at most eight: what the variable, user-dirs.dirs and the
    /// settings of KDE's, Xfce's and others' tools name and what exists of it; Pictures/Screenshots, there or not yet;
    /// its namesakes in the user's language; Pictures itself.
    [[nodiscard]] QStringList list() const;
};

} // namespace vellumry
