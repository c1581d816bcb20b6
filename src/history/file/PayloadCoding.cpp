// SPDX-License-Identifier: GPL-3.0-or-later
#include "history/file/PayloadCoding.h"

#include "history/file/RecordFields.h"

namespace vellumry {

namespace {

const QString itemsKey = QStringLiteral("items");
const QString representationsKey = QStringLiteral("representations");
const QString orderKey = QStringLiteral("order");

BinaryListWriter::Reference write(BinaryListWriter& writer, const PasteboardItem& item) {
    std::vector<BinaryListWriter::Reference> types;
    std::vector<BinaryListWriter::Reference> contents;
    for (const auto& [type, bytes] : item.representations) {
        types.push_back(writer.text(type));
        contents.push_back(writer.data(bytes));
    }
    BinaryListWriter::Fields fields{{"representations", writer.dictionary(std::move(types), contents)}};
    if (item.order) {
        std::vector<BinaryListWriter::Reference> order;
        for (const QString& type : *item.order)
            order.push_back(writer.text(type));
        fields.emplace_back("order", writer.array(std::move(order)));
    }
    return writer.dictionary(fields);
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

QByteArray encodePayload(const ClipPayload& payload, BinaryListWriter::Margins margins) {
    BinaryListWriter writer;
    std::vector<BinaryListWriter::Reference> items;
    for (const PasteboardItem& item : payload.items)
        items.push_back(write(writer, item));
    return writer.finish(writer.dictionary({{"items", writer.array(std::move(items))}}), margins);
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
