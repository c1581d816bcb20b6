// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

/// The file names by which screenshot tools of the desktop can be told: most of them leave no mark in the file. Pure;
/// any thread.
namespace vellumry::screenshotnames {

/// True for names that screenshot tools give by themselves: the word for a screenshot in the user's language, or the
/// name of a tool, together with a date ("Screenshot from 2026-03-09 14-05-00.png",
/// "2026-03-09-140500_1920x1080_scrot.png"); or, for a PNG, a full date and time alone, as some tools have it. A
/// photograph's name is none.
[[nodiscard]] bool isScreenshotName(const QString& fileName);

/// True when `folderName` is the word for screenshots in some language, as desktops name their folder for them.
[[nodiscard]] bool isScreenshotFolderName(const QString& folderName);

} // namespace vellumry::screenshotnames
