// SPDX-License-Identifier: GPL-3.0-or-later
#include "history/file/ClipMeta.h"

namespace vellumry {

namespace {

BinaryListWriter::Reference write(BinaryListWriter& writer, const FileRef& file) {
    BinaryListWriter::Fields fields{{"path", writer.text(file.path)}, {"name", writer.text(file.name)}};
    if (file.bookmark)
        fields.emplace_back("bookmark", writer.data(*file.bookmark));
    return writer.dictionary(fields);
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

} // namespace vellumry
