// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "history/clips/Clip.h"

#include <QByteArray>
#include <QImage>
#include <QSize>

namespace vellumry::madeup {

/// A picture of our own: hills behind each other under an evening sky.
[[nodiscard]] QImage hills(QSize size);
[[nodiscard]] QByteArray png(const QImage& image);
[[nodiscard]] ClipDraft link(const char* address);
[[nodiscard]] ClipDraft colour(const char* text);
/// Headings, lists, colours and a link.
[[nodiscard]] ClipDraft rich();
/// Out of a terminal.
[[nodiscard]] ClipDraft code();

} // namespace vellumry::madeup
