// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "foundation/PropertyList.h"

#include <QHash>

namespace vellumry {

/// Writes one list in the binary coding (see BinaryPropertyListReader). Any thread; used once.
class BinaryPropertyListWriter {
public:
    [[nodiscard]] QByteArray write(const PropertyList& list);

private:
    /// A value and, for containers, the numbers of the objects it refers to.
    struct Object {
        const PropertyList* value = nullptr;
        const QString* key = nullptr; ///< set in place of `value` for a dictionary's key
        std::vector<quint64> references;
    };

    quint64 numberOf(const PropertyList& value);
    quint64 numberOfText(const QString& text, const PropertyList* value);
    void appendObject(const Object& object);
    void appendReferences(quint8 kind, quint64 count, const std::vector<quint64>& references);
    void appendText(const QString& text);
    void appendHead(quint8 kind, quint64 count);
    void appendInteger(qint64 value);
    void appendUnsigned(quint64 value, int byteCount);

    std::vector<Object> m_objects;
    QHash<QString, quint64> m_texts;
    QHash<QByteArray, quint64> m_data;
    int m_referenceSize = 1;
    QByteArray m_bytes;
};

} // namespace vellumry
