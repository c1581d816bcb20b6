// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace vellumry {

/// One thing that the program would like of the system, and what became of it. For the log and for `vellumry --status`,
/// in English; holds nothing that belongs to the user.
struct Capability {
    QString name;
    bool isFound = false;
    QString detail;          ///< what was found; else why it was not, and what does not work without it
    bool isOptional = false; ///< the log warns only of what is not

    [[nodiscard]] static Capability found(QString name, QString detail = {}) {
        return {std::move(name), true, std::move(detail)};
    }
    [[nodiscard]] static Capability missing(QString name, QString reason) {
        return {std::move(name), false, std::move(reason)};
    }
    /// As `missing`, for what most users do without and nobody needs to be warned of.
    [[nodiscard]] static Capability without(QString name, QString reason) {
        return {std::move(name), false, std::move(reason), true};
    }
    bool operator==(const Capability&) const = default;
};

} // namespace vellumry
