// SPDX-License-Identifier: GPL-3.0-or-later
#include "history/file/BinaryList.h"

namespace vellumry {

bool BinaryList::open() {
    constexpr qsizetype trailerSize = 32;
    if (m_bytes.size() < trailerSize + 8 || !m_bytes.startsWith("bplist00"))
        return false;
    const auto trailer = static_cast<quint64>(m_bytes.size() - trailerSize);
    m_offsetSize = static_cast<quint8>(m_bytes[static_cast<qsizetype>(trailer) + 6]);
    m_referenceSize = static_cast<quint8>(m_bytes[static_cast<qsizetype>(trailer) + 7]);
    m_objectCount = number(trailer + 8, 8);
    m_top = number(trailer + 16, 8);
    m_offsetTable = number(trailer + 24, 8);
    m_end = m_offsetTable;
    m_budget = 8 * m_bytes.size();
    return m_offsetSize >= 1 && m_offsetSize <= 8 && m_referenceSize >= 1 && m_referenceSize <= 8 &&
           m_offsetTable >= 8 && m_offsetTable <= trailer && m_objectCount <= (trailer - m_offsetTable) / m_offsetSize;
}

std::optional<BinaryList::Object> BinaryList::object(quint64 reference) const {
    if (reference >= m_objectCount)
        return std::nullopt;
    const quint64 offset = number(m_offsetTable + reference * m_offsetSize, m_offsetSize);
    if (offset < 8 || offset >= m_offsetTable)
        return std::nullopt;
    const auto marker = static_cast<quint8>(m_bytes[static_cast<qsizetype>(offset)]);
    if (marker == static_cast<quint8>(Marker::falseValue) || marker == static_cast<quint8>(Marker::trueValue))
        return Object{marker, 0, offset + 1};
    // What else begins with 0 must not pass for the kind that its lower half is the number of.
    if (marker < 0x10)
        return std::nullopt;
    Object found{static_cast<quint8>(marker >> 4), static_cast<quint8>(marker & 0xF), offset + 1};
    if (found.count == 0xF && !found.is(Marker::integer) && !readCount(found))
        return std::nullopt;
    return fits(found) ? std::optional(found) : std::nullopt;
}

QByteArrayView BinaryList::bytesOf(const Object& object) {
    const quint64 size = object.is(Marker::utf16) ? object.count * 2 : object.count;
    m_budget -= static_cast<qint64>(size);
    if (m_budget < 0)
        return {};
    return m_bytes.sliced(static_cast<qsizetype>(object.content), static_cast<qsizetype>(size));
}

quint64 BinaryList::number(quint64 position, unsigned size) const {
    quint64 value = 0;
    for (unsigned i = 0; i < size; ++i)
        value = value << 8 | static_cast<quint8>(m_bytes[static_cast<qsizetype>(position + i)]);
    return value;
}

bool BinaryList::readCount(Object& found) const {
    if (found.content >= m_end)
        return false;
    const auto marker = static_cast<quint8>(m_bytes[static_cast<qsizetype>(found.content)]);
    const unsigned size = 1U << (marker & 0xF);
    if (marker >> 4 != static_cast<quint8>(Marker::integer) || size > 8 || m_end - found.content < 1 + size)
        return false;
    found.count = number(found.content + 1, size);
    found.content += 1 + size;
    return true;
}

bool BinaryList::fits(const Object& found) const {
    const quint64 room = m_end - found.content;
    switch (static_cast<Marker>(found.kind)) {
    case Marker::data:
    case Marker::ascii:
        return found.count <= room;
    case Marker::utf16:
        return found.count <= room / 2;
    case Marker::array:
        return found.count <= room / m_referenceSize;
    case Marker::dictionary:
        return found.count <= room / m_referenceSize / 2;
    default:
        return false;
    }
}

} // namespace vellumry
