// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "foundation/BinaryList.h"
#include "foundation/StoredText.h"

#include <QByteArray>
#include <QHash>
#include <QString>
#include <algorithm>
#include <cstdint>
#include <utility>
#include <vector>

namespace vellumry {

/// Writes a binary property list (see BinaryList) of objects that are handed over one by one, each before what refers
/// to it. Equal strings and equal data are written once, and every byte of content is copied once, into a result that
/// can have room for whatever is to go around it. One use, one thread.
class BinaryListWriter {
public:
    using Reference = std::uint32_t;
    using Fields = std::vector<std::pair<const char*, Reference>>;
    /// Bytes left free before and behind the list.
    struct Margins {
        qsizetype before = 0;
        qsizetype behind = 0;
    };

    BinaryListWriter() = default;
    ~BinaryListWriter();
    BinaryListWriter(const BinaryListWriter&) = delete;
    BinaryListWriter& operator=(const BinaryListWriter&) = delete;

    Reference text(const QString& string);
    Reference text(const StoredText& stored);
    Reference data(const QByteArray& data);
    Reference boolean(bool value);
    Reference array(std::vector<Reference> elements);
    /// The keys come first, then the values.
    Reference dictionary(std::vector<Reference> keys, const std::vector<Reference>& values);
    /// A dictionary with ASCII keys.
    Reference dictionary(const Fields& fields);

    [[nodiscard]] QByteArray finish(Reference top, Margins margins);

private:
    struct Object {
        quint8 kind = 0; ///< as in BinaryList::Object
        quint64 count = 0;
        QByteArray content;
        std::vector<Reference> references;
        bool isOwnCopy = false; ///< no other object has this content
    };
    /// Equal objects with content, without hashing all of a long one.
    struct Leaf {
        quint8 kind;
        QByteArray content;
        bool operator==(const Leaf&) const = default;
        friend std::size_t qHash(const Leaf& leaf, std::size_t seed) {
            constexpr qsizetype sample = 256;
            const QByteArrayView all(leaf.content);
            return qHashMulti(seed, leaf.kind, all.size(), all.first(std::min(sample, all.size())),
                              all.last(std::min(sample, all.size())));
        }
    };

    Reference leaf(BinaryList::Marker marker, quint64 count, const QByteArray& content, bool isOwnCopy);
    Reference add(Object object);
    [[nodiscard]] qsizetype sizeOf(const Object& object, unsigned referenceSize) const;
    char* writeObject(char* out, const Object& object, unsigned referenceSize) const;

    std::vector<Object> m_objects;
    QHash<Leaf, Reference> m_leaves;
};

} // namespace vellumry
