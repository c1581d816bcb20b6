// SPDX-License-Identifier: GPL-3.0-or-later
#include "reader/PictureReader.h"

#include <QDir>

namespace vellumry {

namespace {

/// Where the packages of the distributions put the data, the user's choice first.
QStringList dataFolders() {
    QStringList folders;
    if (const QString chosen = qEnvironmentVariable("TESSDATA_PREFIX"); !chosen.isEmpty())
        folders << chosen;
    return folders << QStringLiteral("/usr/share/tesseract-ocr/5/tessdata")
                   << QStringLiteral("/usr/share/tesseract/tessdata") << QStringLiteral("/usr/share/tessdata")
                   << QStringLiteral("/usr/local/share/tessdata");
}

} // namespace

std::unique_ptr<PictureReader> PictureReader::create() {
    for (const QString& folder : dataFolders()) {
        if (QDir(folder).entryList({QStringLiteral("*.traineddata")}, QDir::Files).isEmpty())
            continue;
        auto library = TesseractLibrary::load();
        if (!library)
            return nullptr;
        return std::unique_ptr<PictureReader>(new PictureReader(std::move(library), QFile::encodeName(folder)));
    }
    return nullptr;
}

std::optional<QString> PictureReader::read(const QImage& picture, Mode) {
    auto engine = TextEngine::create(*m_library, m_data, "eng");
    if (!engine)
        return std::nullopt;
    const auto lines = engine->read(picture.convertToFormat(QImage::Format_Grayscale8), TextEngine::Layout::page);
    if (!lines)
        return std::nullopt;
    QString text;
    for (const TextLine& line : *lines)
        text += line.text + u'\n';
    return text;
}

} // namespace vellumry
