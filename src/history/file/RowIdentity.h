// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArrayView>
#include <QString>
#include <QUuid>
#include <optional>

/// A clip's identity as the column `id` holds it. Pure; any thread.
namespace vellumry::rowidentity {

/// Canonical form, upper case, no braces: 36 characters.
[[nodiscard]] QString textOf(const QUuid& id);

/// The identity that 36 characters of that form, in any case, stand for. A start reads one for each row: 34 ns each,
/// where QUuid::fromString takes 142 and accepts other forms.
[[nodiscard]] std::optional<QUuid> uuidOf(QByteArrayView text);

} // namespace vellumry::rowidentity
