// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "foundation/PropertyList.h"

#include <QByteArrayView>
#include <QHash>

namespace vellumry {

/// Reads one list in the binary coding: a header of 8 bytes, objects, a table of their offsets, a trailer of 32 bytes;
/// all numbers big-endian. Objects refer to each other by their place in the table, so foreign bytes may claim cycles
/// and doublings; both end at fixed bounds. Any thread; used once.
class BinaryPropertyListReader {
public:
    explicit BinaryPropertyListReader(QByteArrayView bytes)
        : m_bytes(bytes) {}

    [[nodiscard]] static bool recognises(QByteArrayView bytes);
    [[nodiscard]] std::optional<PropertyList> read();

private:
    /// An object's head: its kind, what the low half of its first byte says, and where its content begins.
    struct Head {
        quint8 kind;
        quint8 info;
        quint64 content;
    };

    [[nodiscard]] bool readTrailer();
    /// The caller has checked that the bytes are there.
    [[nodiscard]] quint64 unsignedAt(quint64 position, quint64 byteCount) const;
    [[nodiscard]] std::optional<quint64> referenceAt(quint64 position) const;
    [[nodiscard]] std::optional<Head> headOf(quint64 object) const;
    [[nodiscard]] std::optional<quint64> countOf(Head& head) const;
    [[nodiscard]] bool fits(quint64 position, quint64 count, quint64 unitSize) const;

    [[nodiscard]] std::optional<PropertyList> valueOf(quint64 object, int depth);
    [[nodiscard]] std::optional<PropertyList> integerOf(const Head& head) const;
    [[nodiscard]] std::optional<PropertyList> realOf(const Head& head) const;
    [[nodiscard]] std::optional<PropertyList> textOf(quint64 object, Head head);
    [[nodiscard]] std::optional<PropertyList> arrayOf(Head head, int depth);
    [[nodiscard]] std::optional<PropertyList> dictionaryOf(Head head, int depth);
    [[nodiscard]] std::optional<QString> keyOf(quint64 object);

    QByteArrayView m_bytes;
    quint64 m_objectsEnd = 0; ///< where the offset table begins
    quint64 m_offsetSize = 0;
    quint64 m_referenceSize = 0;
    quint64 m_objectCount = 0;
    quint64 m_topObject = 0;
    quint64 m_nodesLeft = 0;
    QHash<quint64, PropertyList> m_longTexts; ///< long strings and data by object, shared by all who refer to them
};

} // namespace vellumry
