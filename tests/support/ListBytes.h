// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "foundation/BinaryListWriter.h"
#include "foundation/PropertyList.h"

#include <QtEndian>
#include <algorithm>
#include <vector>

/// Binary property lists for tests: written from a value, and put together from raw objects.
namespace vellumry {

/// Whether the program's writer has all kinds that occur in the list: it writes no numbers, dates and UIDs.
inline bool isWritable(const PropertyList& list) {
    if (const auto* array = list.array())
        return std::ranges::all_of(*array, isWritable);
    if (const auto* dictionary = list.dictionary())
        return std::ranges::all_of(*dictionary, [](const auto& entry) { return isWritable(entry.second); });
    return list.boolean() || list.string() || list.data();
}

/// Hands a writable list to the writer, what is referred to first.
inline BinaryListWriter::Reference write(BinaryListWriter& writer, const PropertyList& list) {
    Q_ASSERT(isWritable(list));
    if (const auto* boolean = list.boolean())
        return writer.boolean(*boolean);
    if (const auto* string = list.string())
        return writer.text(*string);
    if (const auto* data = list.data())
        return writer.data(*data);
    std::vector<BinaryListWriter::Reference> values;
    if (const auto* array = list.array()) {
        for (const PropertyList& element : *array)
            values.push_back(write(writer, element));
        return writer.array(std::move(values));
    }
    std::vector<BinaryListWriter::Reference> keys;
    for (const auto& [key, value] : *list.dictionary()) {
        keys.push_back(writer.text(key));
        values.push_back(write(writer, value));
    }
    return writer.dictionary(std::move(keys), values);
}

inline QByteArray written(const PropertyList& list) {
    BinaryListWriter writer;
    const auto top = write(writer, list);
    return writer.finish(top, {});
}

inline QByteArray bigEndian(quint64 value, int byteCount) {
    QByteArray result(8, '\0');
    qToBigEndian(value, result.data());
    return result.last(byteCount);
}

inline QByteArray trailer(quint64 objectCount, quint64 top, quint64 tableOffset, int offsetSize = 2,
                          int referenceSize = 2) {
    return QByteArray(6, '\0') + bigEndian(static_cast<quint64>(offsetSize), 1) +
           bigEndian(static_cast<quint64>(referenceSize), 1) + bigEndian(objectCount, 8) + bigEndian(top, 8) +
           bigEndian(tableOffset, 8);
}

/// A list made of raw objects; references in them take two bytes.
inline QByteArray assembled(const std::vector<QByteArray>& objects) {
    QByteArray bytes("bplist00");
    QByteArray table;
    for (const QByteArray& object : objects) {
        table += bigEndian(static_cast<quint64>(bytes.size()), 2);
        bytes += object;
    }
    const auto tableOffset = static_cast<quint64>(bytes.size());
    return bytes + table + trailer(objects.size(), 0, tableOffset);
}

inline QByteArray hex(const char* digits) {
    return QByteArray::fromHex(digits);
}

/// An array of `references`, each of two bytes.
inline QByteArray arrayOf(const std::vector<quint64>& references) {
    QByteArray result = bigEndian(0xA0 | references.size(), 1);
    for (const quint64 reference : references)
        result += bigEndian(reference, 2);
    return result;
}

} // namespace vellumry
