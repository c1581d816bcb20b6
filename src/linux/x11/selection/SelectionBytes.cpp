// SPDX-License-Identifier: GPL-3.0-or-later
#include "linux/x11/selection/SelectionBytes.h"

#include "linux/pasteboard/TargetCoding.h"

namespace vellumry {

std::shared_ptr<const GivenBytes> givenBytes(XcbConnection& connection, XcbProperty property, const QString& target,
                                             const QString& uniformType) {
    const auto given = std::make_shared<GivenBytes>();
    given->wasLarger = property.isTooLong;
    // Elements of 32 bits are atoms, windows, numbers: never content.
    if (property.isTooLong || property.format == 32)
        return property.isTooLong ? given : nullptr;
    if (uniformType.isEmpty()) {
        given->bytes = std::move(property.bytes);
        return given;
    }
    const QString propertyType = connection.atomName(property.type);
    std::optional<QByteArray> bytes = targetcoding::decode(uniformType, target, propertyType, property.bytes);
    if (!bytes)
        return nullptr;
    given->bytes = std::move(*bytes);
    return given;
}

} // namespace vellumry
