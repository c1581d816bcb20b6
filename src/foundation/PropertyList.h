// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QString>
#include <map>
#include <memory>
#include <optional>
#include <variant>
#include <vector>

namespace vellumry {

/// A value read from a property list, whole, as a tree. Values compare by content. Any thread. What the program writes
/// itself goes through BinaryListWriter, and what it reads a hundred thousand times through BinaryList alone.
///
/// Integers are signed 64-bit, reals double; dates and UIDs, which this program never writes, are read as the two
/// opaque cases below so that a foreign list that holds them still opens.
class PropertyList {
public:
    using Array = std::vector<PropertyList>;
    using Dictionary = std::map<QString, PropertyList>;
    struct DateValue {
        double secondsSince2001;
        bool operator==(const DateValue&) const = default;
    };
    struct Uid {
        quint64 value;
        bool operator==(const Uid&) const = default;
    };

    PropertyList() = default; ///< an empty dictionary
    PropertyList(bool value);
    PropertyList(qint64 value);
    PropertyList(double value);
    PropertyList(QString value);
    PropertyList(const char16_t* value);
    PropertyList(QByteArray value);
    PropertyList(Array value);
    PropertyList(Dictionary value);
    PropertyList(DateValue value);
    PropertyList(Uid value);

    [[nodiscard]] const bool* boolean() const;
    [[nodiscard]] const qint64* integer() const;
    [[nodiscard]] const double* real() const;
    [[nodiscard]] const QString* string() const;
    [[nodiscard]] const QByteArray* data() const;
    [[nodiscard]] const Array* array() const;
    [[nodiscard]] const Dictionary* dictionary() const;
    [[nodiscard]] const DateValue* date() const;
    [[nodiscard]] const Uid* uid() const;
    /// The value under `key` when this is a dictionary that has it, else null.
    [[nodiscard]] const PropertyList* find(const QString& key) const;

    /// Reads binary (`bplist00`) or XML coding; nothing for bytes that are neither, for references that form a cycle,
    /// for nesting beyond 64 levels, and for lists that claim more than they hold. Never throws; bounded by the size of
    /// the input.
    [[nodiscard]] static std::optional<PropertyList> fromBytes(const QByteArray& bytes);

    bool operator==(const PropertyList&) const;

private:
    std::variant<Dictionary, bool, qint64, double, QString, QByteArray, Array, DateValue, Uid> m_value;
};

} // namespace vellumry
