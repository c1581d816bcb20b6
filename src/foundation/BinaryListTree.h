// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "foundation/BinaryList.h"
#include "foundation/PropertyList.h"

#include <QHash>
#include <utility>

namespace vellumry {

/// Reads all of a binary property list into one value. Foreign bytes may claim cycles and values that are referred to
/// over and over; both end at fixed bounds. The bytes must outlive it. Any thread; one use.
class BinaryListTree {
public:
    explicit BinaryListTree(QByteArrayView bytes)
        : m_list(bytes)
        , m_nodesLeft(static_cast<quint64>(bytes.size())) {}

    [[nodiscard]] std::optional<PropertyList> read();

private:
    using Object = BinaryList::Object;

    [[nodiscard]] std::optional<PropertyList> valueOf(const Object& object, int depth);
    [[nodiscard]] std::optional<PropertyList> integerOf(const Object& object) const;
    [[nodiscard]] PropertyList realOf(const Object& object) const;
    [[nodiscard]] std::optional<PropertyList> leafOf(const Object& object);
    [[nodiscard]] std::optional<PropertyList> arrayOf(const Object& object, int depth);
    [[nodiscard]] std::optional<PropertyList> dictionaryOf(const Object& object, int depth);

    BinaryList m_list;
    quint64 m_nodesLeft; ///< an object takes a byte at least; only one that is referred to again can use these up
    /// Strings and data by position and count, shared by all that refer to them.
    QHash<std::pair<quint64, quint64>, PropertyList> m_leaves;
};

} // namespace vellumry
