// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "linux/pasteboard/ForeignOffer.h"
#include "linux/x11/selection/XcbConnection.h"

#include <memory>

namespace vellumry {

/// What an owner's answer gives. With a `uniformType` the bytes are what that has for those of `target`, else they are
/// left as they came. Null for what is no content or cannot be understood. Pasteboard thread: a text may have many
/// megabytes.
[[nodiscard]] std::shared_ptr<const GivenBytes> givenBytes(XcbConnection& connection, XcbProperty property,
                                                           const QString& target, const QString& uniformType);

} // namespace vellumry
