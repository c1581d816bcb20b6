// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "foundation/Date.h"
#include "history/clips/Clip.h"

#include <QLocale>
#include <QSize>
#include <QString>
#include <QTimeZone>
#include <optional>
#include <vector>

/// The one-line names that clips get when they are made. Pure; any thread.
namespace vellumry {

/// The first line of `text` that is not blank, freed of blanks and tabs, at most 300 characters; empty when there is
/// none.
[[nodiscard]] QString titleOf(const QString& text);

/// "Image 640 × 480".
[[nodiscard]] QString imageTitle(int width, int height);
/// `imageTitle`, or "Image" for an unknown size.
[[nodiscard]] QString imageTitle(const std::optional<QSize>& pixelSize);

/// "Screenshot 2026-03-09 at 14:05": the date as ISO 8601 has it, the time in the short form of `locale`.
[[nodiscard]] QString screenshotTitle(Date date, const QTimeZone& zone, const QLocale& locale);
/// The same where and how the user is.
[[nodiscard]] QString screenshotTitle(Date date);

/// The name of a single file; "a.txt and 2 more" for several. `files` is not empty.
[[nodiscard]] QString filesTitle(const std::vector<FileRef>& files);

} // namespace vellumry
