// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "linux/x11/selection/XcbConnection.h"

#include <memory>

namespace vellumry {

/// What an owner gave for a target. Immutable once made; shared between the threads.
struct SelectionBytes {
    QByteArray bytes;
    bool wasLarger = false; ///< there was more than was asked for, and nothing is here

    /// With a `uniformType` the bytes are what that has for those of `target`, else they are left as they came. Null
    /// for what is no content or cannot be understood. Pasteboard thread: a text may have many megabytes.
    [[nodiscard]] static std::shared_ptr<const SelectionBytes> of(XcbConnection& connection, XcbProperty property,
                                                                  const QString& target, const QString& uniformType);
};

} // namespace vellumry
