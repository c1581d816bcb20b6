// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "panel/PreviewContent.h"

#include <QCoroTask>
#include <QStringList>
#include <optional>
#include <vector>

namespace vellumry {

/// Looks at the files with these paths, an empty one for a file that cannot be had. Nothing when the disk does not
/// answer in time. Main thread; the disk is asked on another one.
[[nodiscard]] QCoro::Task<std::optional<std::vector<FileFacts>>> fileFacts(QStringList paths);

} // namespace vellumry
