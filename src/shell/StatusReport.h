// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/desktop/Capability.h"

#include <QStringList>
#include <optional>
#include <vector>

namespace vellumry {

/// What `vellumry --status` tells: counts, sizes, versions and reasons, and nothing that the user copied, named or
/// typed. In English: it is read by those that help with a problem.
struct StatusReport {
    /// The history as the running program holds it.
    struct History {
        qsizetype clips = 0;
        qsizetype pinned = 0;
        qsizetype sensitive = 0;
        bool isMemoryOnly = false;
        const char* reason = nullptr; ///< why it is; null where nothing is known
        bool isBehind = false;        ///< the file refuses changes, which wait
    };
    struct Capture {
        bool isPaused = false;
        bool ignoresNext = false;
        bool savesScreenshots = false;
        qint64 overtakenCopies = 0; ///< lost because the next copy came before they could be read
    };

    /// The system, the desktop and the languages.
    QString session;
    /// Size and scale of each; none where the program does not run.
    QStringList displays;
    /// Absent when the program does not run.
    std::optional<qint64> process;
    /// Why the running program could not be asked; instead of `process`.
    QString notAsked;
    std::vector<Capability> capabilities;
    std::optional<History> history;
    /// Of the history file and its log; absent when there is none.
    std::optional<qint64> bytesOnDisk;
    std::optional<Capture> capture;
    /// Names of the settings whose shortcut another program holds; absent when nothing is known.
    std::optional<QStringList> takenShortcuts;

    /// Names of the settings whose value could not be used.
    QStringList refusedSettings;

    /// What stands in `session` of a report from here and now.
    [[nodiscard]] static QString thisSession();
    /// What stands in `displays`. Main thread, of a program with windows.
    [[nodiscard]] static QStringList theseDisplays();

    /// Lines of text, each with its end.
    [[nodiscard]] QString text() const;
};

/// One line about one capability, without its end: as the log has it and the report.
[[nodiscard]] QString lineOf(const Capability& capability);

} // namespace vellumry
