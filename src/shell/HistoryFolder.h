// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace vellumry {

/// The application's own folder, "Vellumry" inside `dataHome`: made with all folders above it when missing, mode 700 at
/// every call. Throws std::runtime_error when it cannot be made. Permissions that cannot be set are ignored. Any
/// thread.
[[nodiscard]] QString historyFolder(const QString& dataHome);

/// True when the volume of `folder` has at least 1 GiB left for this user, and when it does not say. Any thread.
[[nodiscard]] bool hasRoomForImages(const QString& folder);

/// The rule alone: `available` bytes, negative when unknown.
[[nodiscard]] bool isRoomForImages(qint64 available);

/// A size as file managers show it, in powers of a thousand: whole kilobytes, one digit behind the point for megabytes,
/// two from there on; zeros at the end are left out.
[[nodiscard]] QString fileSizeText(qint64 bytes);

/// Bytes of the history file and its write-ahead log. A file that cannot be examined counts nothing.
[[nodiscard]] qint64 historyBytes(const QString& folder);

} // namespace vellumry
