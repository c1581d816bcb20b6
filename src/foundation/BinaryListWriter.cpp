// SPDX-License-Identifier: GPL-3.0-or-later
#include "foundation/BinaryListWriter.h"

#include "foundation/SecureBytes.h"
#include "foundation/Text.h"

#include <QtEndian>
#include <algorithm>
#include <bit>
#include <cstring>

namespace vellumry {

namespace {

using Marker = BinaryList::Marker;

constexpr char magic[] = "bplist00";
constexpr qsizetype magicSize = sizeof magic - 1;
constexpr qsizetype trailerSize = 32;
/// Counts from here on stand behind the marker.
constexpr quint64 firstLongCount = 0xF;

/// The fewest bytes, of 1, 2, 4 and 8, that hold `value`.
unsigned bytesFor(quint64 value) {
    if (value <= 0xFF)
        return 1;
    if (value <= 0xFFFF)
        return 2;
    return value <= 0xFFFF'FFFF ? 4 : 8;
}

char* writeUnsigned(char* out, quint64 value, unsigned byteCount) {
    for (unsigned left = byteCount; left > 0; --left)
        *out++ = static_cast<char>(value >> 8 * (left - 1) & 0xFF);
    return out;
}

QByteArray bigEndian(const QString& string) {
    QByteArray bytes(2 * string.size(), Qt::Uninitialized);
    qToBigEndian<quint16>(string.utf16(), string.size(), bytes.data());
    return bytes;
}

} // namespace

BinaryListWriter::~BinaryListWriter() {
    m_leaves.clear(); // shares the content, which would then be copied to be wiped
    for (Object& object : m_objects)
        if (object.isOwnCopy)
            wipe(object.content.data(), static_cast<std::size_t>(object.content.size()));
}

BinaryListWriter::Reference BinaryListWriter::text(const QString& string) {
    if (text::isAscii(string))
        return leaf(Marker::ascii, static_cast<quint64>(string.size()), string.toLatin1(), true);
    return leaf(Marker::utf16, static_cast<quint64>(string.size()), bigEndian(string), true);
}

BinaryListWriter::Reference BinaryListWriter::text(const StoredText& stored) {
    const QByteArray& utf8 = stored.utf8();
    if (text::isAscii(utf8))
        return leaf(Marker::ascii, static_cast<quint64>(utf8.size()), utf8, false);
    return text(stored.toString());
}

BinaryListWriter::Reference BinaryListWriter::data(const QByteArray& data) {
    return leaf(Marker::data, static_cast<quint64>(data.size()), data, false);
}

BinaryListWriter::Reference BinaryListWriter::boolean(bool value) {
    return add({static_cast<quint8>(value ? Marker::trueValue : Marker::falseValue), 0, {}, {}, false});
}

BinaryListWriter::Reference BinaryListWriter::array(std::vector<Reference> elements) {
    const quint64 count = elements.size();
    return add({static_cast<quint8>(Marker::array), count, {}, std::move(elements), false});
}

BinaryListWriter::Reference BinaryListWriter::dictionary(std::vector<Reference> keys,
                                                         const std::vector<Reference>& values) {
    const quint64 count = keys.size();
    keys.insert(keys.end(), values.begin(), values.end());
    return add({static_cast<quint8>(Marker::dictionary), count, {}, std::move(keys), false});
}

BinaryListWriter::Reference BinaryListWriter::dictionary(const Fields& fields) {
    std::vector<Reference> keys;
    std::vector<Reference> values;
    for (const auto& [key, value] : fields) {
        const QByteArray name = QByteArray::fromRawData(key, static_cast<qsizetype>(std::strlen(key)));
        keys.push_back(leaf(Marker::ascii, static_cast<quint64>(name.size()), name, false));
        values.push_back(value);
    }
    return dictionary(std::move(keys), values);
}

BinaryListWriter::Reference BinaryListWriter::leaf(Marker marker, quint64 count, const QByteArray& content,
                                                   bool isOwnCopy) {
    const Leaf wanted{static_cast<quint8>(marker), content};
    if (const auto known = m_leaves.constFind(wanted); known != m_leaves.constEnd())
        return *known;
    const Reference reference = add({wanted.kind, count, content, {}, isOwnCopy});
    m_leaves.insert(wanted, reference);
    return reference;
}

BinaryListWriter::Reference BinaryListWriter::add(Object object) {
    m_objects.push_back(std::move(object));
    return static_cast<Reference>(m_objects.size() - 1);
}

QByteArray BinaryListWriter::finish(Reference top, Margins margins) {
    const unsigned referenceSize = bytesFor(m_objects.size());
    std::vector<quint64> offsets;
    quint64 end = magicSize;
    for (const Object& object : m_objects) {
        offsets.push_back(end);
        end += static_cast<quint64>(sizeOf(object, referenceSize));
    }
    const unsigned offsetSize = bytesFor(end);
    const auto size = static_cast<qsizetype>(end) + static_cast<qsizetype>(offsets.size()) * offsetSize + trailerSize;
    QByteArray bytes(margins.before + size + margins.behind, Qt::Uninitialized);
    char* out = std::copy_n(magic, magicSize, bytes.data() + margins.before);
    for (const Object& object : m_objects)
        out = writeObject(out, object, referenceSize);
    for (const quint64 offset : offsets)
        out = writeUnsigned(out, offset, offsetSize);
    out = std::fill_n(out, 6, '\0');
    out = writeUnsigned(out, offsetSize, 1);
    out = writeUnsigned(out, referenceSize, 1);
    out = writeUnsigned(out, offsets.size(), 8);
    out = writeUnsigned(out, top, 8);
    writeUnsigned(out, end, 8);
    return bytes;
}

qsizetype BinaryListWriter::sizeOf(const Object& object, unsigned referenceSize) const {
    if (object.kind == static_cast<quint8>(Marker::falseValue) || object.kind == static_cast<quint8>(Marker::trueValue))
        return 1;
    const unsigned head = object.count < firstLongCount ? 1 : 2 + bytesFor(object.count);
    return head + object.content.size() + static_cast<qsizetype>(object.references.size()) * referenceSize;
}

char* BinaryListWriter::writeObject(char* out, const Object& object, unsigned referenceSize) const {
    if (object.kind == static_cast<quint8>(Marker::falseValue) || object.kind == static_cast<quint8>(Marker::trueValue))
        return writeUnsigned(out, object.kind, 1);
    out = writeUnsigned(out, object.kind | std::min(object.count, firstLongCount), 1);
    if (object.count >= firstLongCount) {
        const unsigned countSize = bytesFor(object.count);
        out = writeUnsigned(out, 0x10U | static_cast<unsigned>(std::countr_zero(countSize)), 1);
        out = writeUnsigned(out, object.count, countSize);
    }
    out = std::copy(object.content.begin(), object.content.end(), out);
    for (const Reference reference : object.references)
        out = writeUnsigned(out, reference, referenceSize);
    return out;
}

} // namespace vellumry
