// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "foundation/Reason.h"

#include <QString>
#include <optional>

namespace vellumry {

/// The one file that the program is, and the files beside it while a newer one takes its place. Blocks on the disk.
class ProgramFile {
public:
    explicit ProgramFile(QString path);

    /// True when the user may replace it: a file and a folder of their own, which no package manager has put there.
    [[nodiscard]] bool isReplaceable() const;
    [[nodiscard]] const QString& path() const { return m_path; }
    /// Where the newer one is put together; on the same disk, so that taking the place is one step.
    [[nodiscard]] QString staged() const { return m_path + QStringLiteral(".part"); }
    /// The one before, kept until the newer one has started.
    [[nodiscard]] QString previous() const { return m_path + QStringLiteral(".previous"); }

    /// Asks the staged file for its version, as a program. Nothing when it does not say one within twenty seconds.
    [[nodiscard]] std::optional<QString> stagedVersion() const;
    /// Puts the staged file in the place of the program, in one step, and keeps the one before. On failure the program
    /// is as it was.
    [[nodiscard]] std::optional<Reason> replace() const;
    void discardStaged() const;
    void discardPrevious() const;
    /// Has the program started again when this process has ended. False when that cannot be arranged.
    [[nodiscard]] bool startAfterThisProcess() const;

private:
    QString m_path;
};

} // namespace vellumry
