// SPDX-License-Identifier: GPL-3.0-or-later
#include "foundation/BinaryPropertyListReader.h"

#include <QtEndian>
#include <algorithm>
#include <bit>

namespace vellumry {

namespace {

constexpr QByteArrayView magic = "bplist00";
constexpr quint64 trailerSize = 32;
constexpr int deepest = 64;
/// From this size on a repeated string or piece of data is decoded once.
constexpr quint64 longText = 64;

enum Kind : quint8 {
    Simple = 0x0,
    Integer = 0x1,
    Real = 0x2,
    Date = 0x3,
    Data = 0x4,
    AsciiString = 0x5,
    Utf16String = 0x6,
    UidKind = 0x8,
    ArrayKind = 0xA,
    DictionaryKind = 0xD,
};

} // namespace

bool BinaryPropertyListReader::recognises(QByteArrayView bytes) {
    return bytes.startsWith(magic);
}

std::optional<PropertyList> BinaryPropertyListReader::read() {
    if (!readTrailer())
        return std::nullopt;
    // Without doublings each value takes at least one byte.
    m_nodesLeft = static_cast<quint64>(m_bytes.size());
    return valueOf(m_topObject, 0);
}

bool BinaryPropertyListReader::readTrailer() {
    const auto size = static_cast<quint64>(m_bytes.size());
    if (size < static_cast<quint64>(magic.size()) + trailerSize || !recognises(m_bytes))
        return false;
    const quint64 trailer = size - trailerSize;
    const auto at = [this, trailer](quint64 offset) {
        return qFromBigEndian<quint64>(m_bytes.data() + trailer + offset);
    };
    m_offsetSize = static_cast<quint8>(m_bytes[static_cast<qsizetype>(trailer + 6)]);
    m_referenceSize = static_cast<quint8>(m_bytes[static_cast<qsizetype>(trailer + 7)]);
    m_objectCount = at(8);
    m_topObject = at(16);
    m_objectsEnd = at(24);
    const bool hasSizes = m_offsetSize >= 1 && m_offsetSize <= 8 && m_referenceSize >= 1 && m_referenceSize <= 8;
    return hasSizes && m_objectsEnd >= static_cast<quint64>(magic.size()) && m_objectsEnd <= trailer &&
           m_objectCount <= (trailer - m_objectsEnd) / m_offsetSize && m_topObject < m_objectCount;
}

quint64 BinaryPropertyListReader::unsignedAt(quint64 position, quint64 byteCount) const {
    quint64 value = 0;
    for (quint64 i = 0; i < byteCount; ++i)
        value = value << 8 | static_cast<quint8>(m_bytes.data()[position + i]);
    return value;
}

std::optional<quint64> BinaryPropertyListReader::referenceAt(quint64 position) const {
    const quint64 object = unsignedAt(position, m_referenceSize);
    return object < m_objectCount ? std::optional(object) : std::nullopt;
}

std::optional<BinaryPropertyListReader::Head> BinaryPropertyListReader::headOf(quint64 object) const {
    const quint64 offset = unsignedAt(m_objectsEnd + object * m_offsetSize, m_offsetSize);
    if (offset < static_cast<quint64>(magic.size()) || offset >= m_objectsEnd)
        return std::nullopt;
    const auto marker = static_cast<quint8>(m_bytes.data()[offset]);
    return Head{static_cast<quint8>(marker >> 4), static_cast<quint8>(marker & 0x0F), offset + 1};
}

bool BinaryPropertyListReader::fits(quint64 position, quint64 count, quint64 unitSize) const {
    return position <= m_objectsEnd && count <= (m_objectsEnd - position) / unitSize;
}

std::optional<quint64> BinaryPropertyListReader::countOf(Head& head) const {
    if (head.info != 0x0F)
        return head.info;
    // A count of 15 and more follows as an integer object of its own.
    if (!fits(head.content, 1, 1))
        return std::nullopt;
    const auto marker = static_cast<quint8>(m_bytes.data()[head.content]);
    const quint64 byteCount = 1ull << (marker & 0x0F);
    if (marker >> 4 != Integer || byteCount > 8 || !fits(head.content + 1, byteCount, 1))
        return std::nullopt;
    const quint64 count = unsignedAt(head.content + 1, byteCount);
    head.content += 1 + byteCount;
    return count;
}

std::optional<PropertyList> BinaryPropertyListReader::valueOf(quint64 object, int depth) {
    if (depth > deepest || m_nodesLeft == 0)
        return std::nullopt;
    --m_nodesLeft;
    const std::optional<Head> head = headOf(object);
    if (!head)
        return std::nullopt;
    switch (head->kind) {
    case Simple:
        if (head->info != 0x8 && head->info != 0x9)
            return std::nullopt;
        return PropertyList(head->info == 0x9);
    case Integer:
        return integerOf(*head);
    case Real:
    case Date:
        return realOf(*head);
    case Data:
    case AsciiString:
    case Utf16String:
        return textOf(object, *head);
    case UidKind: {
        const quint64 byteCount = head->info + 1u;
        if (byteCount > 8 || !fits(head->content, byteCount, 1))
            return std::nullopt;
        return PropertyList(PropertyList::Uid{unsignedAt(head->content, byteCount)});
    }
    case ArrayKind:
        return arrayOf(*head, depth);
    case DictionaryKind:
        return dictionaryOf(*head, depth);
    default:
        return std::nullopt;
    }
}

std::optional<PropertyList> BinaryPropertyListReader::integerOf(const Head& head) const {
    const quint64 byteCount = 1ull << head.info;
    if (byteCount > 16 || !fits(head.content, byteCount, 1))
        return std::nullopt;
    if (byteCount < 8)
        return PropertyList(static_cast<qint64>(unsignedAt(head.content, byteCount)));
    const quint64 low = unsignedAt(head.content + byteCount - 8, 8);
    if (byteCount == 8)
        return PropertyList(static_cast<qint64>(low));
    // Sixteen bytes are how others write unsigned numbers beyond ours.
    const bool isNegative = low >> 63 != 0;
    if (unsignedAt(head.content, 8) != (isNegative ? ~0ull : 0ull))
        return std::nullopt;
    return PropertyList(static_cast<qint64>(low));
}

std::optional<PropertyList> BinaryPropertyListReader::realOf(const Head& head) const {
    const quint64 byteCount = 1ull << head.info;
    if ((byteCount != 4 && byteCount != 8) || !fits(head.content, byteCount, 1))
        return std::nullopt;
    const quint64 bits = unsignedAt(head.content, byteCount);
    const double value = byteCount == 8 ? std::bit_cast<double>(bits)
                                        : static_cast<double>(std::bit_cast<float>(static_cast<quint32>(bits)));
    if (head.kind == Date)
        return byteCount == 8 ? std::optional(PropertyList(PropertyList::DateValue{value})) : std::nullopt;
    return PropertyList(value);
}

std::optional<PropertyList> BinaryPropertyListReader::textOf(quint64 object, Head head) {
    const std::optional<quint64> count = countOf(head);
    if (!count || !fits(head.content, *count, head.kind == Utf16String ? 2 : 1))
        return std::nullopt;
    if (*count >= longText) {
        if (const auto known = m_longTexts.constFind(object); known != m_longTexts.constEnd())
            return *known;
    }
    const char* content = m_bytes.data() + head.content;
    const auto length = static_cast<qsizetype>(*count);
    PropertyList value;
    if (head.kind == Data) {
        value = PropertyList(QByteArray(content, length));
    } else if (head.kind == AsciiString) {
        value = PropertyList(QString::fromLatin1(content, length));
    } else {
        QString text(length, Qt::Uninitialized);
        qFromBigEndian<quint16>(content, length, text.data());
        value = PropertyList(std::move(text));
    }
    if (*count >= longText)
        m_longTexts.insert(object, value);
    return value;
}

std::optional<PropertyList> BinaryPropertyListReader::arrayOf(Head head, int depth) {
    const std::optional<quint64> count = countOf(head);
    if (!count || !fits(head.content, *count, m_referenceSize) || *count > m_nodesLeft)
        return std::nullopt;
    PropertyList::Array array;
    // More only as elements prove to be there: nested claims must not add up to memory.
    array.reserve(std::min<quint64>(*count, 256));
    for (quint64 i = 0; i < *count; ++i) {
        const std::optional<quint64> object = referenceAt(head.content + i * m_referenceSize);
        std::optional<PropertyList> element = object ? valueOf(*object, depth + 1) : std::nullopt;
        if (!element)
            return std::nullopt;
        array.push_back(std::move(*element));
    }
    return PropertyList(std::move(array));
}

std::optional<QString> BinaryPropertyListReader::keyOf(quint64 object) {
    const std::optional<Head> head = headOf(object);
    if (!head || (head->kind != AsciiString && head->kind != Utf16String))
        return std::nullopt;
    const std::optional<PropertyList> text = textOf(object, *head);
    return text ? std::optional(*text->string()) : std::nullopt;
}

std::optional<PropertyList> BinaryPropertyListReader::dictionaryOf(Head head, int depth) {
    const std::optional<quint64> count = countOf(head);
    if (!count || !fits(head.content, *count, 2 * m_referenceSize) || *count > m_nodesLeft)
        return std::nullopt;
    PropertyList::Dictionary dictionary;
    for (quint64 i = 0; i < *count; ++i) {
        const std::optional<quint64> keyObject = referenceAt(head.content + i * m_referenceSize);
        const std::optional<quint64> valueObject = referenceAt(head.content + (*count + i) * m_referenceSize);
        std::optional<QString> key = keyObject ? keyOf(*keyObject) : std::nullopt;
        std::optional<PropertyList> value = key && valueObject ? valueOf(*valueObject, depth + 1) : std::nullopt;
        if (!value)
            return std::nullopt;
        dictionary.insert_or_assign(std::move(*key), std::move(*value));
    }
    return PropertyList(std::move(dictionary));
}

} // namespace vellumry
