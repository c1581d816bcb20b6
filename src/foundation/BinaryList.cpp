// SPDX-License-Identifier: GPL-3.0-or-later
#include "foundation/BinaryList.h"

#include <algorithm>

namespace vellumry {

bool BinaryList::open() {
    constexpr qsizetype trailerSize = 32;
    if (m_bytes.size() < trailerSize + 8 || !recognises(m_bytes))
        return false;
    const auto trailer = static_cast<quint64>(m_bytes.size() - trailerSize);
    m_offsetSize = static_cast<quint8>(m_bytes[static_cast<qsizetype>(trailer) + 6]);
    m_referenceSize = static_cast<quint8>(m_bytes[static_cast<qsizetype>(trailer) + 7]);
    m_objectCount = number(trailer + 8, 8);
    m_top = number(trailer + 16, 8);
    m_offsetTable = number(trailer + 24, 8);
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
    Object found{static_cast<quint8>(marker & 0xF0), static_cast<quint8>(marker & 0xF), offset + 1};
    return readCount(found) && fits(found) ? std::optional(found) : std::nullopt;
}

QByteArrayView BinaryList::bytesOf(const Object& object) {
    const quint64 size = object.is(Marker::utf16) ? object.count * 2 : object.count;
    m_budget -= static_cast<qint64>(size);
    if (m_budget < 0)
        return {};
    return m_bytes.sliced(static_cast<qsizetype>(object.content), static_cast<qsizetype>(size));
}

quint64 BinaryList::lowBitsOf(const Object& numeric) const {
    const quint64 size = std::min<quint64>(numeric.count, 8);
    return number(numeric.content + numeric.count - size, size);
}

quint64 BinaryList::highBitsOf(const Object& numeric) const {
    return numeric.count > 8 ? number(numeric.content, numeric.count - 8) : 0;
}

bool BinaryList::readCount(Object& found) const {
    switch (static_cast<Marker>(found.kind)) {
    case Marker::integer:
    case Marker::real:
    case Marker::date:
        found.count = 1ULL << found.count;
        return true;
    case Marker::uid:
        ++found.count;
        return true;
    default:
        break;
    }
    if (found.count < 0xF)
        return true;
    if (found.content >= m_offsetTable)
        return false;
    const auto marker = static_cast<quint8>(m_bytes[static_cast<qsizetype>(found.content)]);
    const quint64 size = 1ULL << (marker & 0xF);
    if ((marker & 0xF0) != static_cast<quint8>(Marker::integer) || size > 8 || m_offsetTable - found.content < 1 + size)
        return false;
    found.count = number(found.content + 1, size);
    found.content += 1 + size;
    return true;
}

bool BinaryList::fits(const Object& found) const {
    const quint64 room = m_offsetTable - found.content;
    switch (static_cast<Marker>(found.kind)) {
    case Marker::integer:
        return found.count <= std::min<quint64>(room, 16);
    case Marker::real:
        return (found.count == 4 || found.count == 8) && found.count <= room;
    case Marker::date:
        return found.count == 8 && found.count <= room;
    case Marker::uid:
        return found.count <= std::min<quint64>(room, 8);
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
