// SPDX-License-Identifier: GPL-3.0-or-later
#include "history/file/ClipMeta.h"

#include "history/clips/StringPool.h"
#include "history/file/ClipMetaReader.h"
#include "history/file/RecordFields.h"

namespace vellumry {

namespace {

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

BinaryListWriter::Reference write(BinaryListWriter& writer, const FileRef& file) {
    BinaryListWriter::Fields fields{{"path", writer.text(file.path)}, {"name", writer.text(file.name)}};
    if (file.bookmark)
        fields.emplace_back("bookmark", writer.data(*file.bookmark));
    return writer.dictionary(fields);
}

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
    QString searchText;
    PropertyList::Array files;
    if (!list.dictionary() || !require(list, titleKey, &PropertyList::string, meta.title) ||
        !require(list, searchTextKey, &PropertyList::string, searchText) ||
        !require(list, filesKey, &PropertyList::array, files) ||
        !allow(list, sourceBundleIDKey, &PropertyList::string, meta.sourceBundleID) ||
        !allow(list, sourceAppNameKey, &PropertyList::string, meta.sourceAppName) ||
        !allow(list, thumbnailKey, &PropertyList::data, meta.thumbnail) ||
        !allow(list, imageTextKey, &PropertyList::string, meta.imageText) ||
        !allow(list, imageTextIsAccurateKey, &PropertyList::boolean, meta.imageTextIsAccurate) ||
        !allow(list, isScreenshotKey, &PropertyList::boolean, meta.isScreenshot))
        return std::nullopt;
    meta.searchText = searchText;
    for (const PropertyList& entry : files) {
        auto file = fileOf(entry);
        if (!file)
            return std::nullopt;
        meta.files.push_back(*std::move(file));
    }
    return meta;
}

} // namespace

ClipMeta ClipMeta::of(const Clip& clip) {
    return {clip.title,     clip.searchText, clip.sourceBundleID,      clip.sourceAppName, clip.files,
            clip.thumbnail, clip.imageText,  clip.imageTextIsAccurate, clip.isScreenshot};
}

void ClipMeta::applyTo(Clip& clip) && {
    clip.title = std::move(title);
    clip.searchText = std::move(searchText);
    clip.sourceBundleID = std::move(sourceBundleID);
    clip.sourceAppName = std::move(sourceAppName);
    clip.files = std::move(files);
    clip.thumbnail = std::move(thumbnail);
    clip.imageText = std::move(imageText);
    clip.imageTextIsAccurate = imageTextIsAccurate.value_or(false);
    clip.isScreenshot = isScreenshot.value_or(false);
}

QByteArray ClipMeta::encoded(BinaryListWriter::Margins margins) const {
    BinaryListWriter writer;
    std::vector<BinaryListWriter::Reference> fileList;
    for (const FileRef& file : files)
        fileList.push_back(write(writer, file));
    BinaryListWriter::Fields fields{
        {"title", writer.text(title)}, {"searchText", writer.text(searchText)}, {"files", writer.array(fileList)}};
    if (sourceBundleID)
        fields.emplace_back("sourceBundleID", writer.text(*sourceBundleID));
    if (sourceAppName)
        fields.emplace_back("sourceAppName", writer.text(*sourceAppName));
    if (thumbnail)
        fields.emplace_back("thumbnail", writer.data(*thumbnail));
    if (imageText)
        fields.emplace_back("imageText", writer.text(*imageText));
    if (imageTextIsAccurate)
        fields.emplace_back("imageTextIsAccurate", writer.boolean(*imageTextIsAccurate));
    if (isScreenshot)
        fields.emplace_back("isScreenshot", writer.boolean(*isScreenshot));
    return writer.finish(writer.dictionary(fields), margins);
}

std::optional<ClipMeta> ClipMeta::decode(QByteArrayView bytes, StringPool* pool) {
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
