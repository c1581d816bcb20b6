// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QString>
#include <QVariant>

/// The right-hand sides of the settings file, in the notation of Qt's INI files: bare words, quoted strings, lists
/// parted by commas, `@ByteArray(…)` for data. What stands in quotes is text, so that types survive: 5 is a number, "5"
/// is not. Pure; any thread.
namespace vellumry::inivalue {

/// The value as this program keeps it: integers as qint64, fractions as double, lists of texts as QStringList.
[[nodiscard]] QVariant normalized(const QVariant& value);

/// Reads what stands behind the equals sign (UTF-8). Invalid for a notation that is not understood.
[[nodiscard]] QVariant parsed(const QByteArray& text);

/// The text that `parsed` reads as `value`. Maps are written as JSON.
[[nodiscard]] QByteArray formatted(const QVariant& value);

} // namespace vellumry::inivalue
