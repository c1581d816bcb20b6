// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <map>
#include <optional>

namespace vellumry {

/// One thing on the pasteboard, in all the forms it was offered in. Types are uniform type identifiers, or the MIME
/// name where no identifier exists.
struct PasteboardItem {
    std::map<QString, QByteArray> representations;
    /// The types in the order in which the source offered them; absent where it is unknown.
    std::optional<QStringList> order;

    bool operator==(const PasteboardItem&) const = default;
};

} // namespace vellumry
