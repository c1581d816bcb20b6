// SPDX-License-Identifier: GPL-3.0-or-later
#include "foundation/BinaryListTree.h"

#include "foundation/Utf16Bytes.h"

#include <algorithm>
#include <bit>

namespace vellumry {

namespace {

using Marker = BinaryList::Marker;

constexpr int deepest = 64;
/// Content from this size on is decoded once for all that refer to it. Shorter content cannot exhaust what a BinaryList
/// lets a list unfold to.
constexpr quint64 smallestShared = 8;

} // namespace

std::optional<PropertyList> BinaryListTree::read() {
    if (!m_list.open())
        return std::nullopt;
    const auto top = m_list.top();
    return top ? valueOf(*top, 0) : std::nullopt;
}

std::optional<PropertyList> BinaryListTree::valueOf(const Object& object, int depth) {
    if (depth > deepest || m_nodesLeft == 0)
        return std::nullopt;
    --m_nodesLeft;
    switch (static_cast<Marker>(object.kind)) {
    case Marker::falseValue:
    case Marker::trueValue:
        return PropertyList(object.is(Marker::trueValue));
    case Marker::integer:
        return integerOf(object);
    case Marker::real:
        return realOf(object);
    case Marker::date:
        return PropertyList(PropertyList::DateValue{std::bit_cast<double>(m_list.lowBitsOf(object))});
    case Marker::uid:
        return PropertyList(PropertyList::Uid{m_list.lowBitsOf(object)});
    case Marker::data:
    case Marker::ascii:
    case Marker::utf16:
        return leafOf(object);
    case Marker::array:
        return arrayOf(object, depth);
    case Marker::dictionary:
        return dictionaryOf(object, depth);
    }
    return std::nullopt;
}

std::optional<PropertyList> BinaryListTree::integerOf(const Object& object) const {
    const auto value = static_cast<qint64>(m_list.lowBitsOf(object));
    // Sixteen bytes are how others write unsigned numbers beyond ours.
    if (object.count == 16 && m_list.highBitsOf(object) != (value < 0 ? ~0ULL : 0ULL))
        return std::nullopt;
    return PropertyList(value);
}

PropertyList BinaryListTree::realOf(const Object& object) const {
    const quint64 bits = m_list.lowBitsOf(object);
    return object.count == 8 ? std::bit_cast<double>(bits)
                             : static_cast<double>(std::bit_cast<float>(static_cast<quint32>(bits)));
}

std::optional<PropertyList> BinaryListTree::leafOf(const Object& object) {
    const bool isShared = object.count >= smallestShared;
    const std::pair place(object.content, object.count);
    if (const auto known = m_leaves.constFind(place); isShared && known != m_leaves.constEnd())
        return *known;
    const QByteArrayView bytes = m_list.bytesOf(object);
    if (m_list.isOverdrawn())
        return std::nullopt;
    PropertyList value;
    if (object.is(Marker::data))
        value = PropertyList(bytes.toByteArray());
    else
        value = PropertyList(object.is(Marker::ascii) ? QString::fromLatin1(bytes) : utf16bytes::toString(bytes));
    if (isShared)
        m_leaves.insert(place, value);
    return value;
}

std::optional<PropertyList> BinaryListTree::arrayOf(const Object& object, int depth) {
    if (object.count > m_nodesLeft)
        return std::nullopt;
    PropertyList::Array array;
    // More only as elements prove to be there: nested claims must not add up to memory.
    array.reserve(std::min<quint64>(object.count, 256));
    for (quint64 i = 0; i < object.count; ++i) {
        const auto element = m_list.element(object, i);
        auto value = element ? valueOf(*element, depth + 1) : std::nullopt;
        if (!value)
            return std::nullopt;
        array.push_back(*std::move(value));
    }
    return PropertyList(std::move(array));
}

std::optional<PropertyList> BinaryListTree::dictionaryOf(const Object& object, int depth) {
    if (object.count > m_nodesLeft)
        return std::nullopt;
    PropertyList::Dictionary dictionary;
    for (quint64 i = 0; i < object.count; ++i) {
        const auto keyObject = m_list.element(object, i);
        const auto valueObject = m_list.element(object, object.count + i);
        const bool hasTextKey = keyObject && (keyObject->is(Marker::ascii) || keyObject->is(Marker::utf16));
        const auto key = hasTextKey ? leafOf(*keyObject) : std::nullopt;
        auto value = key && valueObject ? valueOf(*valueObject, depth + 1) : std::nullopt;
        if (!value)
            return std::nullopt;
        dictionary.insert_or_assign(*key->string(), *std::move(value));
    }
    return PropertyList(std::move(dictionary));
}

} // namespace vellumry
