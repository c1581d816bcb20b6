// SPDX-License-Identifier: GPL-3.0-or-later
#include "history/PayloadCoding.h"

#include "history/RecordFields.h"

namespace vellumry {

namespace {

const QString itemsKey = QStringLiteral("items");
const QString representationsKey = QStringLiteral("representations");
const QString orderKey = QStringLiteral("order");

PropertyList listOf(const PasteboardItem& item) {
    PropertyList::Dictionary representations;
    for (const auto& [type, bytes] : item.representations)
        representations.emplace(type, bytes);
    PropertyList::Dictionary fields;
    fields.emplace(representationsKey, std::move(representations));
    if (item.order) {
        PropertyList::Array order;
        for (const QString& type : *item.order)
            order.emplace_back(type);
        fields.emplace(orderKey, std::move(order));
    }
    return fields;
}

std::optional<PasteboardItem> itemOf(const PropertyList& list) {
    using namespace recordfields;
    PropertyList::Dictionary representations;
    std::optional<PropertyList::Array> order;
    if (!list.dictionary() || !require(list, representationsKey, &PropertyList::dictionary, representations) ||
        !allow(list, orderKey, &PropertyList::array, order))
        return std::nullopt;
    PasteboardItem item;
    for (const auto& [type, value] : representations) {
        const QByteArray* const bytes = value.data();
        if (!bytes)
            return std::nullopt;
        item.representations.emplace(type, *bytes);
    }
    if (!order)
        return item;
    item.order.emplace();
    for (const PropertyList& value : *order) {
        const QString* const type = value.string();
        if (!type)
            return std::nullopt;
        item.order->append(*type);
    }
    return item;
}

} // namespace

QByteArray encodePayload(const ClipPayload& payload) {
    PropertyList::Array items;
    for (const PasteboardItem& item : payload.items)
        items.push_back(listOf(item));
    PropertyList::Dictionary fields;
    fields.emplace(itemsKey, std::move(items));
    return PropertyList(std::move(fields)).toBinary();
}

std::optional<ClipPayload> decodePayload(const QByteArray& bytes) {
    const auto list = PropertyList::fromBytes(bytes);
    PropertyList::Array items;
    if (!list || !recordfields::require(*list, itemsKey, &PropertyList::array, items))
        return std::nullopt;
    ClipPayload payload;
    for (const PropertyList& entry : items) {
        auto item = itemOf(entry);
        if (!item)
            return std::nullopt;
        payload.items.push_back(*std::move(item));
    }
    return payload;
}

} // namespace vellumry
