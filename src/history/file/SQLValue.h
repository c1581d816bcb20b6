// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QString>
#include <variant>

namespace vellumry {

/// A value to bind to a statement's parameter: integer, real, text, blob or NULL. Text ends at its first NUL character.
using SQLValue = std::variant<qint64, double, QString, QByteArray, std::monostate>;

} // namespace vellumry
