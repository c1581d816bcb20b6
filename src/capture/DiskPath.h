// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QString>

namespace vellumry {

/// The bytes by which the disk knows `path`. Names that are not UTF-8 have replacement characters in a path; each such
/// component stands for the entry of its folder that decodes so, which is looked for. Touches the disk for these only;
/// any thread.
[[nodiscard]] QByteArray diskPathOf(const QString& path);

/// True when something is at `path`; links are followed. Mounts nothing, and asks no server for what is known here.
[[nodiscard]] bool existsOnDisk(const QString& path);

} // namespace vellumry
