// SPDX-License-Identifier: GPL-3.0-or-later
#include "history/file/ClipMetaReader.h"

#include "foundation/BinaryList.h"
#include "foundation/Text.h"
#include "foundation/Utf16Bytes.h"
#include "history/clips/StringPool.h"
#include "history/file/RecordFields.h"

namespace vellumry {

namespace {

using Marker = BinaryList::Marker;
using Object = BinaryList::Object;

/// A string object's text; nothing for anything else, and for bytes beyond ASCII where the marker promises ASCII.
std::optional<QString> stringOf(BinaryList& list, const Object& object, StringPool* pool = nullptr) {
    const bool isUtf16 = object.is(Marker::utf16);
    if (!isUtf16 && !object.is(Marker::ascii))
        return std::nullopt;
    const QByteArrayView bytes = list.bytesOf(object);
    if (isUtf16)
        return pool ? pool->shared(utf16bytes::toString(bytes)) : utf16bytes::toString(bytes);
    if (!text::isAscii(bytes))
        return std::nullopt;
    return pool ? pool->sharedAscii(bytes) : QString::fromLatin1(bytes);
}

std::optional<StoredText> storedTextOf(BinaryList& list, const Object& object) {
    const bool isUtf16 = object.is(Marker::utf16);
    if (!isUtf16 && !object.is(Marker::ascii))
        return std::nullopt;
    const QByteArrayView bytes = list.bytesOf(object);
    if (isUtf16) {
        auto converted = utf16bytes::toUtf8(bytes);
        return converted ? StoredText::fromUtf8(*std::move(converted)) : StoredText(utf16bytes::toString(bytes));
    }
    return text::isAscii(bytes) ? std::optional(StoredText::fromUtf8(bytes.toByteArray())) : std::nullopt;
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

const QString titleKey = QStringLiteral("title");
const QString searchTextKey = QStringLiteral("searchText");
const QString sourceBundleIDKey = QStringLiteral("sourceBundleID");
const QString sourceAppNameKey = QStringLiteral("sourceAppName");
const QString filesKey = QStringLiteral("files");
const QString thumbnailKey = QStringLiteral("thumbnail");
const QString imageTextKey = QStringLiteral("imageText");
const QString imageTextIsAccurateKey = QStringLiteral("imageTextIsAccurate");
const QString isScreenshotKey = QStringLiteral("isScreenshot");
const QString pathKey = QStringLiteral("path");
const QString nameKey = QStringLiteral("name");
const QString bookmarkKey = QStringLiteral("bookmark");

std::optional<FileRef> fileOf(const PropertyList& list) {
    using namespace recordfields;
    FileRef file;
    if (!list.dictionary() || !require(list, pathKey, &PropertyList::string, file.path) ||
        !require(list, nameKey, &PropertyList::string, file.name) ||
        !allow(list, bookmarkKey, &PropertyList::data, file.bookmark))
        return std::nullopt;
    return file;
}

void share(std::optional<QString>& name, StringPool* pool) {
    if (name && pool)
        name = pool->shared(*name);
}

std::optional<ClipMeta> metaOf(const PropertyList& list) {
    using namespace recordfields;
    ClipMeta meta;
    QString title;
    QString searchText;
    std::optional<QString> imageText;
    PropertyList::Array files;
    if (!list.dictionary() || !require(list, titleKey, &PropertyList::string, title) ||
        !require(list, searchTextKey, &PropertyList::string, searchText) ||
        !require(list, filesKey, &PropertyList::array, files) ||
        !allow(list, sourceBundleIDKey, &PropertyList::string, meta.sourceBundleID) ||
        !allow(list, sourceAppNameKey, &PropertyList::string, meta.sourceAppName) ||
        !allow(list, thumbnailKey, &PropertyList::data, meta.thumbnail) ||
        !allow(list, imageTextKey, &PropertyList::string, imageText) ||
        !allow(list, imageTextIsAccurateKey, &PropertyList::boolean, meta.imageTextIsAccurate) ||
        !allow(list, isScreenshotKey, &PropertyList::boolean, meta.isScreenshot))
        return std::nullopt;
    meta.searchText = searchText;
    meta.title = title;
    if (imageText)
        meta.imageText = *imageText;
    for (const PropertyList& entry : files) {
        auto file = fileOf(entry);
        if (!file)
            return std::nullopt;
        meta.files.push_back(*std::move(file));
    }
    return meta;
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
    std::optional<StoredText> title;
    std::optional<StoredText> searchText;
    std::optional<std::vector<FileRef>> files;
    const bool isPlain = forEachPair(list, *top, [&](QByteArrayView key, const Object& value) {
        if (key == "title")
            return fill(title, storedTextOf(list, value));
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
        return key == "imageText" && fill(meta.imageText, storedTextOf(list, value));
    });
    if (!isPlain || !title || !searchText || !files || list.isOverdrawn())
        return std::nullopt;
    meta.title = *std::move(title);
    meta.searchText = *std::move(searchText);
    meta.files = *std::move(files);
    meta.title.shareWith(meta.searchText);
    return meta;
}

std::optional<ClipMeta> decodeMeta(QByteArrayView bytes, StringPool* pool) {
    if (auto meta = readPlainMeta(bytes, pool))
        return meta;
    const auto list = PropertyList::fromBytes(bytes.toByteArray());
    auto meta = list ? metaOf(*list) : std::nullopt;
    if (meta) {
        share(meta->sourceBundleID, pool);
        share(meta->sourceAppName, pool);
    }
    return meta;
}

} // namespace vellumry
