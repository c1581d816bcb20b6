// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "capture/FileAccess.h"
#include "capture/FileStatus.h"
#include "foundation/Date.h"

#include <QCoroTask>
#include <chrono>
#include <functional>
#include <optional>
#include <vector>

namespace vellumry {

class PasteTarget;
class Pasteboard;

/// Everything through which the paste engine reaches the outside, so that its decisions run without any of it. Called
/// on the main thread.
struct SystemHooks {
    using FileJob = std::function<std::vector<FileStatus>()>;

    Pasteboard* pasteboard = nullptr;
    std::function<bool()> isTrusted; ///< may we press keys in this session
    /// A password field has the focus, or another program holds the keyboard. The field's application is asked, so it
    /// is awaited.
    std::function<QCoro::Task<bool>()> isSecureInput;
    std::function<QCoro::Task<bool>()> regainFocus;
    std::function<void()> pressPaste;
    /// How long the panel's going is given before keys are pressed.
    std::chrono::milliseconds settleDelay{70};
    std::function<QCoro::Task<void>(std::chrono::milliseconds)> sleep;
    std::function<QCoro::Task<FileAccess::Result>(QStringList paths)> checkFileAccess;
    /// May block; called through `runFileJob` only, so on any thread.
    std::function<FileStatus(const FileRef&)> fileStatus;
    /// Runs a job that may block where that blocks nothing. Nothing when it took too long.
    std::function<QCoro::Task<std::optional<std::vector<FileStatus>>>(FileJob)> runFileJob;
    Clock now = currentDate;

    /// The hooks of a real session; `fileStatus` and `checkFileAccess` are left to be set. Both must outlive the hooks.
    [[nodiscard]] static SystemHooks of(Pasteboard& pasteboard, PasteTarget& target);
};

} // namespace vellumry
