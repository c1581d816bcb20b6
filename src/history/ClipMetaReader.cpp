// SPDX-License-Identifier: GPL-3.0-or-later
#include "history/ClipMetaReader.h"

#include "history/StringPool.h"

#include <QtEndian>
#include <algorithm>

namespace vellumry {

namespace {

enum class Marker : quint8 { falseValue = 0x08, trueValue = 0x09, integer = 0x1, data = 0x4, ascii = 0x5, utf16 = 0x6,
                             array = 0xA, dictionary = 0xD };

/// One object of a list: its kind and where its content lies. `count` is bytes, UTF-16 units, elements or pairs.
struct Object {
    quint8 kind = 0; ///< the marker's upper half, or the whole marker of a boolean
    quint64 count = 0;
    quint64 content = 0;

    [[nodiscard]] bool is(Marker marker) const { return kind == static_cast<quint8>(marker); }
};

/// The layout of `bplist00`: header, objects, offset table, trailer of 32 bytes. Every position is checked against the bytes.
class BinaryList {
public:
    explicit BinaryList(QByteArrayView bytes) : m_bytes(bytes) {}

    [[nodiscard]] bool open() {
        constexpr qsizetype trailerSize = 32;
        if (m_bytes.size() < trailerSize + 8 || !m_bytes.startsWith("bplist00"))
            return false;
        const auto trailer = static_cast<quint64>(m_bytes.size() - trailerSize);
        m_offsetSize = static_cast<quint8>(m_bytes[static_cast<qsizetype>(trailer) + 6]);
        m_referenceSize = static_cast<quint8>(m_bytes[static_cast<qsizetype>(trailer) + 7]);
        m_objectCount = number(trailer + 8, 8);
        m_top = number(trailer + 16, 8);
        m_offsetTable = number(trailer + 24, 8);
        m_end = m_offsetTable;
        m_budget = 8 * m_bytes.size();
        return m_offsetSize >= 1 && m_offsetSize <= 8 && m_referenceSize >= 1 && m_referenceSize <= 8 &&
               m_offsetTable >= 8 && m_offsetTable <= trailer && m_objectCount <= (trailer - m_offsetTable) / m_offsetSize;
    }

    [[nodiscard]] std::optional<Object> top() const { return object(m_top); }

    [[nodiscard]] std::optional<Object> object(quint64 reference) const {
        if (reference >= m_objectCount)
            return std::nullopt;
        const quint64 offset = number(m_offsetTable + reference * m_offsetSize, m_offsetSize);
        if (offset < 8 || offset >= m_offsetTable)
            return std::nullopt;
        const auto marker = static_cast<quint8>(m_bytes[static_cast<qsizetype>(offset)]);
        if (marker < 0x10)
            return Object{marker, 0, offset + 1};
        Object found{static_cast<quint8>(marker >> 4), static_cast<quint8>(marker & 0xF), offset + 1};
        if (found.count == 0xF && !found.is(Marker::integer) && !readCount(found))
            return std::nullopt;
        return fits(found) ? std::optional(found) : std::nullopt;
    }

    /// The object that element `index` of an array refers to; of a dictionary, keys come first, then values.
    [[nodiscard]] std::optional<Object> element(const Object& container, quint64 index) const {
        return object(number(container.content + index * m_referenceSize, m_referenceSize));
    }

    /// The content of a string or data object. Objects may be referred to many times; a list that would unfold to far more
    /// than its own size ends here, with empty content and `isOverdrawn`.
    [[nodiscard]] QByteArrayView bytesOf(const Object& object) {
        const quint64 size = object.is(Marker::utf16) ? object.count * 2 : object.count;
        m_budget -= static_cast<qint64>(size);
        if (m_budget < 0)
            return {};
        return m_bytes.sliced(static_cast<qsizetype>(object.content), static_cast<qsizetype>(size));
    }

    [[nodiscard]] bool isOverdrawn() const { return m_budget < 0; }

private:
    [[nodiscard]] quint64 number(quint64 position, unsigned size) const {
        quint64 value = 0;
        for (unsigned i = 0; i < size; ++i)
            value = value << 8 | static_cast<quint8>(m_bytes[static_cast<qsizetype>(position + i)]);
        return value;
    }

    /// A count of 15 and more stands behind the marker, as an integer object.
    [[nodiscard]] bool readCount(Object& found) const {
        if (found.content >= m_end)
            return false;
        const auto marker = static_cast<quint8>(m_bytes[static_cast<qsizetype>(found.content)]);
        const unsigned size = 1U << (marker & 0xF);
        if (marker >> 4 != static_cast<quint8>(Marker::integer) || size > 8 || m_end - found.content < 1 + size)
            return false;
        found.count = number(found.content + 1, size);
        found.content += 1 + size;
        return true;
    }

    [[nodiscard]] bool fits(const Object& found) const {
        const quint64 room = m_end - found.content;
        switch (static_cast<Marker>(found.kind)) {
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

    QByteArrayView m_bytes;
    quint8 m_offsetSize = 0;
    quint8 m_referenceSize = 0;
    quint64 m_objectCount = 0;
    quint64 m_top = 0;
    quint64 m_offsetTable = 0;
    quint64 m_end = 0; ///< where objects must have ended
    qint64 m_budget = 0;
};

bool isAscii(QByteArrayView bytes) {
    // Without an early way out, so that the compiler can look at many bytes at a time.
    quint8 any = 0;
    for (const char byte : bytes)
        any |= static_cast<quint8>(byte);
    return any < 0x80;
}

QString utf16(QByteArrayView bigEndian) {
    QString string(bigEndian.size() / 2, Qt::Uninitialized);
    qFromBigEndian<char16_t>(bigEndian.data(), string.size(), string.data());
    return string;
}

/// A string object's text; nothing for anything else, and for bytes beyond ASCII where the marker promises ASCII.
std::optional<QString> stringOf(BinaryList& list, const Object& object, StringPool* pool = nullptr) {
    const bool isUtf16 = object.is(Marker::utf16);
    if (!isUtf16 && !object.is(Marker::ascii))
        return std::nullopt;
    const QByteArrayView bytes = list.bytesOf(object);
    if (isUtf16)
        return pool ? pool->shared(utf16(bytes)) : utf16(bytes);
    if (!isAscii(bytes))
        return std::nullopt;
    return pool ? pool->sharedAscii(bytes) : QString::fromLatin1(bytes);
}

std::optional<StoredText> storedTextOf(BinaryList& list, const Object& object) {
    const bool isUtf16 = object.is(Marker::utf16);
    if (!isUtf16 && !object.is(Marker::ascii))
        return std::nullopt;
    const QByteArrayView bytes = list.bytesOf(object);
    if (isUtf16)
        return StoredText(utf16(bytes));
    return isAscii(bytes) ? std::optional(StoredText::fromUtf8(bytes.toByteArray())) : std::nullopt;
}

std::optional<QByteArray> dataOf(BinaryList& list, const Object& object) {
    return object.is(Marker::data) ? std::optional(list.bytesOf(object).toByteArray()) : std::nullopt;
}

std::optional<bool> booleanOf(const Object& object) {
    if (object.is(Marker::trueValue))
        return true;
    return object.is(Marker::falseValue) ? std::optional(false) : std::nullopt;
}

/// Fills a field that was not there yet. A key that stands twice is for the general reader to judge.
template <typename Field>
bool fill(Field& field, Field value) {
    if (field.has_value() || !value.has_value())
        return false;
    field = std::move(value);
    return true;
}

/// Calls `visit(key, value)` for each pair of a dictionary with ASCII keys; false as soon as that answers false.
template <typename Visit>
bool forEachPair(BinaryList& list, const Object& dictionary, Visit visit) {
    for (quint64 i = 0; i < dictionary.count; ++i) {
        const auto key = list.element(dictionary, i);
        const auto value = list.element(dictionary, dictionary.count + i);
        if (!key || !value || !key->is(Marker::ascii) || !visit(list.bytesOf(*key), *value))
            return false;
    }
    return true;
}

std::optional<FileRef> fileOf(BinaryList& list, const Object& object) {
    if (!object.is(Marker::dictionary))
        return std::nullopt;
    std::optional<QString> path;
    std::optional<QString> name;
    std::optional<QByteArray> bookmark;
    const bool isPlain = forEachPair(list, object, [&](QByteArrayView key, const Object& value) {
        if (key == "path")
            return fill(path, stringOf(list, value));
        if (key == "name")
            return fill(name, stringOf(list, value));
        return key == "bookmark" && fill(bookmark, dataOf(list, value));
    });
    if (!isPlain || !path || !name || list.isOverdrawn())
        return std::nullopt;
    return FileRef{*path, *name, bookmark};
}

std::optional<std::vector<FileRef>> filesOf(BinaryList& list, const Object& object) {
    if (!object.is(Marker::array))
        return std::nullopt;
    std::vector<FileRef> files;
    for (quint64 i = 0; i < object.count; ++i) {
        const auto element = list.element(object, i);
        auto file = element ? fileOf(list, *element) : std::nullopt;
        if (!file)
            return std::nullopt;
        files.push_back(*std::move(file));
    }
    return files;
}

} // namespace

std::optional<ClipMeta> readPlainMeta(QByteArrayView bytes, StringPool* pool) {
    BinaryList list(bytes);
    if (!list.open())
        return std::nullopt;
    const auto top = list.top();
    if (!top || !top->is(Marker::dictionary))
        return std::nullopt;

    ClipMeta meta;
    std::optional<QString> title;
    std::optional<StoredText> searchText;
    std::optional<std::vector<FileRef>> files;
    const bool isPlain = forEachPair(list, *top, [&](QByteArrayView key, const Object& value) {
        if (key == "title")
            return fill(title, stringOf(list, value));
        if (key == "searchText")
            return fill(searchText, storedTextOf(list, value));
        if (key == "files")
            return fill(files, filesOf(list, value));
        if (key == "imageTextIsAccurate")
            return fill(meta.imageTextIsAccurate, booleanOf(value));
        if (key == "isScreenshot")
            return fill(meta.isScreenshot, booleanOf(value));
        if (key == "sourceBundleID")
            return fill(meta.sourceBundleID, stringOf(list, value, pool));
        if (key == "sourceAppName")
            return fill(meta.sourceAppName, stringOf(list, value, pool));
        if (key == "thumbnail")
            return fill(meta.thumbnail, dataOf(list, value));
        return key == "imageText" && fill(meta.imageText, stringOf(list, value));
    });
    if (!isPlain || !title || !searchText || !files || list.isOverdrawn())
        return std::nullopt;
    meta.title = *std::move(title);
    meta.searchText = *std::move(searchText);
    meta.files = *std::move(files);
    return meta;
}

} // namespace vellumry
