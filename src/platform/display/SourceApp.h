// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <optional>

namespace vellumry {

/// The application that something was copied from, or that is in front.
struct SourceApp {
    /// The desktop-file id without ".desktop", or the identifier that stands for the same application in the program's
    /// lists.
    std::optional<QString> bundleID;
    /// The name the user knows it by.
    std::optional<QString> name;

    bool operator==(const SourceApp&) const = default;
};

/// Tells which application is in front. Main thread; answers from what is known already.
class FrontmostApplication {
public:
    virtual ~FrontmostApplication() = default;
    /// Both fields empty when no application is in front.
    [[nodiscard]] virtual SourceApp current() const = 0;
    /// The application whose program put on the pasteboard what is there now; it may have hidden its window since. Both
    /// fields empty when the pasteboard has no owner or the owner has no window that identifies it.
    [[nodiscard]] virtual SourceApp pasteboardOwner() const { return {}; }
};

} // namespace vellumry
