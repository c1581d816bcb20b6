// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "transfer/ImportSource.h"

#include <QByteArray>
#include <QJsonObject>
#include <QString>
#include <functional>
#include <utility>
#include <vector>

/// How clips lie in a folder: an ordinary file for each form of each item, named after the clip's number, and
/// `index.json`, which tells of each clip what its files do not: times, pin, title, where it came from, which file is
/// which form. Described in docs/export.md. Pure; any thread.
namespace vellumry::exportformat {

inline const QString indexName = QStringLiteral("index.json");
constexpr int version = 1;

/// A file to be written, by its name in the folder.
using File = std::pair<QString, QByteArray>;

/// The entry of the index for the clip of that number, whose files are appended to `files`. A list of files, one item
/// each, becomes one file with an address a line.
[[nodiscard]] QJsonObject coded(const ImportEntry& entry, int number, std::vector<File>& files);

/// The bytes of the file of that name; nothing when there is none.
using ReadFile = std::function<std::optional<QByteArray>(const QString& name)>;
/// The entry again. Nothing where one of its files has gone, or the index has no sense.
[[nodiscard]] std::optional<ImportEntry> decoded(const QJsonObject& object, const ReadFile& read);

/// A name that lies in the folder itself.
[[nodiscard]] bool isPlainName(const QString& name);

} // namespace vellumry::exportformat
