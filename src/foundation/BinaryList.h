// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArrayView>
#include <optional>

namespace vellumry {

/// The objects of a binary property list (`bplist00`: header, objects, offset table, trailer of 32 bytes; all numbers
/// big-endian), read in place. Every position is checked against the bytes, which must outlive it. One thread at a
/// time.
class BinaryList {
public:
    /// An object's first byte, without the lower half where that is part of a size.
    enum class Marker : quint8 {
        falseValue = 0x08,
        trueValue = 0x09,
        integer = 0x10,
        real = 0x20,
        date = 0x30,
        data = 0x40,
        ascii = 0x50,
        utf16 = 0x60,
        uid = 0x80,
        array = 0xA0,
        dictionary = 0xD0
    };
    /// One object of a list: its kind and where its content lies. `count` is the bytes of a number or of data, the
    /// UTF-16 units of a string, the elements of an array, the pairs of a dictionary.
    struct Object {
        quint8 kind = 0; ///< a `Marker`
        quint64 count = 0;
        quint64 content = 0;

        [[nodiscard]] bool is(Marker marker) const { return kind == static_cast<quint8>(marker); }
    };

    explicit BinaryList(QByteArrayView bytes)
        : m_bytes(bytes) {}

    /// Whether the bytes begin as such a list does.
    [[nodiscard]] static bool recognises(QByteArrayView bytes) { return bytes.startsWith("bplist00"); }

    /// Reads the trailer; false for bytes that are no such list. Comes before everything else.
    [[nodiscard]] bool open();

    [[nodiscard]] std::optional<Object> top() const { return object(m_top); }

    /// Nothing for a reference or an object that does not lie within the list, and for the kinds that `Marker` leaves
    /// out.
    [[nodiscard]] std::optional<Object> object(quint64 reference) const;

    /// The object that element `index` of an array refers to; of a dictionary, keys come first, then values.
    [[nodiscard]] std::optional<Object> element(const Object& container, quint64 index) const {
        return object(number(container.content + index * m_referenceSize, m_referenceSize));
    }

    /// The content of a string or data object. Objects may be referred to many times; a list that would unfold to far
    /// more than its own size ends here, with empty content and `isOverdrawn`.
    [[nodiscard]] QByteArrayView bytesOf(const Object& object);

    /// True once `bytesOf` has refused; what was read is then not to be trusted.
    [[nodiscard]] bool isOverdrawn() const { return m_budget < 0; }

    /// The content of an integer, real, date or UID as an unsigned number: its last eight bytes, when it has more.
    [[nodiscard]] quint64 lowBitsOf(const Object& numeric) const;
    /// The bits above those, 0 for a content of at most eight bytes.
    [[nodiscard]] quint64 highBitsOf(const Object& numeric) const;

private:
    [[nodiscard]] quint64 number(quint64 position, quint64 size) const {
        const char* const bytes = m_bytes.data() + position;
        // Nearly every reference has one byte, every offset one or two.
        if (size == 1)
            return static_cast<quint8>(*bytes);
        quint64 value = 0;
        for (quint64 i = 0; i < size; ++i)
            value = value << 8 | static_cast<quint8>(bytes[i]);
        return value;
    }

    /// A count of 15 and more stands behind the marker, as an integer object.
    [[nodiscard]] bool readCount(Object& found) const;

    /// Whether all of the content lies before the offset table.
    [[nodiscard]] bool fits(const Object& found) const;

    QByteArrayView m_bytes;
    quint8 m_offsetSize = 0;
    quint8 m_referenceSize = 0;
    quint64 m_objectCount = 0;
    quint64 m_top = 0;
    quint64 m_offsetTable = 0; ///< where objects must have ended
    qint64 m_budget = 0;
};

} // namespace vellumry
