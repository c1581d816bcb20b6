// SPDX-License-Identifier: GPL-3.0-or-later
#include "foundation/BinaryPropertyListWriter.h"

#include <QtEndian>
#include <algorithm>
#include <bit>

namespace vellumry {

namespace {

/// The fewest bytes, of 1, 2, 4 and 8, that hold `value`.
int bytesFor(quint64 value) {
    if (value <= 0xFF)
        return 1;
    if (value <= 0xFFFF)
        return 2;
    return value <= 0xFFFF'FFFF ? 4 : 8;
}

quint8 exponentOf(int byteCount) {
    return static_cast<quint8>(std::countr_zero(static_cast<unsigned>(byteCount)));
}

bool isAscii(const QString& text) {
    return std::all_of(text.begin(), text.end(), [](QChar unit) { return unit < u'\x80'; });
}

} // namespace

QByteArray BinaryPropertyListWriter::write(const PropertyList& list) {
    const quint64 top = numberOf(list);
    m_referenceSize = bytesFor(m_objects.size());
    m_bytes = "bplist00";
    std::vector<quint64> offsets;
    offsets.reserve(m_objects.size());
    for (const Object& object : m_objects) {
        offsets.push_back(static_cast<quint64>(m_bytes.size()));
        appendObject(object);
    }
    const auto offsetTable = static_cast<quint64>(m_bytes.size());
    const int offsetSize = bytesFor(offsetTable);
    for (const quint64 offset : offsets)
        appendUnsigned(offset, offsetSize);
    m_bytes.append(6, '\0');
    appendUnsigned(static_cast<quint64>(offsetSize), 1);
    appendUnsigned(static_cast<quint64>(m_referenceSize), 1);
    appendUnsigned(m_objects.size(), 8);
    appendUnsigned(top, 8);
    appendUnsigned(offsetTable, 8);
    return std::move(m_bytes);
}

quint64 BinaryPropertyListWriter::numberOfText(const QString& text, const PropertyList* value) {
    if (const auto known = m_texts.constFind(text); known != m_texts.constEnd())
        return *known;
    const quint64 number = m_objects.size();
    m_objects.push_back({value, value ? nullptr : &text, {}});
    m_texts.insert(text, number);
    return number;
}

quint64 BinaryPropertyListWriter::numberOf(const PropertyList& value) {
    if (const QString* text = value.string())
        return numberOfText(*text, &value);
    const QByteArray* data = value.data();
    if (data) {
        if (const auto known = m_data.constFind(*data); known != m_data.constEnd())
            return *known;
    }
    const quint64 number = m_objects.size();
    m_objects.push_back({&value, nullptr, {}});
    if (data)
        m_data.insert(*data, number);
    std::vector<quint64> references;
    if (const PropertyList::Array* array = value.array()) {
        for (const PropertyList& element : *array)
            references.push_back(numberOf(element));
    } else if (const PropertyList::Dictionary* dictionary = value.dictionary()) {
        for (const auto& entry : *dictionary)
            references.push_back(numberOfText(entry.first, nullptr));
        for (const auto& entry : *dictionary)
            references.push_back(numberOf(entry.second));
    }
    m_objects[number].references = std::move(references);
    return number;
}

void BinaryPropertyListWriter::appendObject(const Object& object) {
    if (object.key)
        return appendText(*object.key);
    const PropertyList& value = *object.value;
    if (const QString* text = value.string()) {
        appendText(*text);
    } else if (const bool* boolean = value.boolean()) {
        appendUnsigned(*boolean ? 0x09 : 0x08, 1);
    } else if (const qint64* integer = value.integer()) {
        appendInteger(*integer);
    } else if (const double* real = value.real()) {
        appendUnsigned(0x23, 1);
        appendUnsigned(std::bit_cast<quint64>(*real), 8);
    } else if (const PropertyList::DateValue* date = value.date()) {
        appendUnsigned(0x33, 1);
        appendUnsigned(std::bit_cast<quint64>(date->secondsSince2001), 8);
    } else if (const QByteArray* data = value.data()) {
        appendHead(0x4, static_cast<quint64>(data->size()));
        m_bytes += *data;
    } else if (const PropertyList::Uid* uid = value.uid()) {
        const int byteCount = bytesFor(uid->value);
        appendUnsigned(0x80u | static_cast<unsigned>(byteCount - 1), 1);
        appendUnsigned(uid->value, byteCount);
    } else if (value.array()) {
        appendReferences(0xA, object.references.size(), object.references);
    } else {
        appendReferences(0xD, object.references.size() / 2, object.references);
    }
}

void BinaryPropertyListWriter::appendReferences(quint8 kind, quint64 count, const std::vector<quint64>& references) {
    appendHead(kind, count);
    for (const quint64 reference : references)
        appendUnsigned(reference, m_referenceSize);
}

void BinaryPropertyListWriter::appendText(const QString& text) {
    if (isAscii(text)) {
        appendHead(0x5, static_cast<quint64>(text.size()));
        m_bytes += text.toLatin1();
        return;
    }
    appendHead(0x6, static_cast<quint64>(text.size()));
    const qsizetype at = m_bytes.size();
    m_bytes.resize(at + 2 * text.size());
    qToBigEndian<quint16>(text.utf16(), text.size(), m_bytes.data() + at);
}

void BinaryPropertyListWriter::appendHead(quint8 kind, quint64 count) {
    appendUnsigned(static_cast<quint64>(kind) << 4 | std::min<quint64>(count, 0x0F), 1);
    if (count >= 0x0F)
        appendInteger(static_cast<qint64>(count));
}

void BinaryPropertyListWriter::appendInteger(qint64 value) {
    // Shorter forms are read as unsigned.
    const int byteCount = value < 0 ? 8 : bytesFor(static_cast<quint64>(value));
    appendUnsigned(0x10u | exponentOf(byteCount), 1);
    appendUnsigned(static_cast<quint64>(value), byteCount);
}

void BinaryPropertyListWriter::appendUnsigned(quint64 value, int byteCount) {
    for (int shift = 8 * (byteCount - 1); shift >= 0; shift -= 8)
        m_bytes.append(static_cast<char>(value >> shift & 0xFF));
}

} // namespace vellumry
