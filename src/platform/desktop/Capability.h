// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <utility>
#include <vector>

namespace vellumry {

/// What users know the program by, and what may work here or not.
enum class Feature { capture, shortcuts, paste, stack, keyring, reading, tray };

/// One thing that the program would like of the system, and what became of it. For the log and for `vellumry --status`,
/// in English; holds nothing that belongs to the user.
struct Capability {
    QString name;
    bool isFound = false;
    QString detail;                  ///< what was found; else why it was not, and what does not work without it
    bool isOptional = false;         ///< the log warns only of what is not
    std::vector<Feature> features{}; ///< what does not work without it, or not fully

    [[nodiscard]] static Capability found(QString name, QString detail = {}) {
        return {std::move(name), true, std::move(detail)};
    }
    [[nodiscard]] static Capability missing(QString name, QString reason) {
        return {std::move(name), false, std::move(reason)};
    }
    /// As `missing`, for what most users do without: no warning.
    [[nodiscard]] static Capability without(QString name, QString reason) {
        return {std::move(name), false, std::move(reason), true};
    }
    /// The same, needed by `served`: Settings tells of it there.
    [[nodiscard]] Capability serving(std::vector<Feature> served) && {
        features = std::move(served);
        return std::move(*this);
    }
    bool operator==(const Capability&) const = default;
};

} // namespace vellumry
