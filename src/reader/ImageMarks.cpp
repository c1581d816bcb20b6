// SPDX-License-Identifier: GPL-3.0-or-later
#include "reader/ImageMarks.h"

#include "reader/ExifComment.h"

#include <QtEndian>
#include <algorithm>
#include <array>

namespace vellumry::imagemarks {

namespace {

/// XMP packets are kilobytes. The XML reader compares each attribute of an element with each other one, so that a
/// longer packet could take seconds.
constexpr qsizetype longestPacket = 64 * 1024;

bool isScreenshotComment(const QString& comment) {
    return comment.trimmed().compare(u"Screenshot", Qt::CaseInsensitive) == 0;
}

bool hasExifMark(QByteArrayView exif) {
    // JPEG's introduction stands before the block in some WebP and PNG files too.
    const QByteArrayView introduction("Exif\0\0", 6);
    return isScreenshotComment(exifUserComment(exif.startsWith(introduction) ? exif.sliced(6) : exif));
}

bool hasXmpMark(QByteArrayView packet) {
    return packet.size() <= longestPacket && isScreenshotComment(xmpUserComment(packet));
}

/// The tools that sign with their name: GNOME's shell and its separate program, and MATE's.
bool isScreenshotTool(QByteArrayView software) {
    static constexpr std::array<const char*, 2> tools{"gnome-screenshot", "mate-screenshot"};
    return std::any_of(tools.begin(), tools.end(), [software](const char* tool) { return software.trimmed() == tool; });
}

/// `keyword NUL text` (PNG 1.2, 11.3.4.3).
bool hasTextMark(QByteArrayView chunk) {
    const auto end = chunk.indexOf('\0');
    if (end < 0)
        return false;
    const QByteArrayView keyword = chunk.first(end);
    const QByteArrayView text = chunk.sliced(end + 1);
    if (keyword == "Software")
        return isScreenshotTool(text);
    return (keyword == "UserComment" || keyword == "Comment") && isScreenshotComment(QString::fromLatin1(text));
}

/// `keyword NUL compressed method language NUL translated NUL text`, of which only plain XMP packets are of interest.
bool hasInternationalTextMark(QByteArrayView chunk) {
    const QByteArrayView keyword("XML:com.adobe.xmp\0\0", 19);
    if (!chunk.startsWith(keyword) || chunk.size() <= keyword.size())
        return false;
    QByteArrayView rest = chunk.sliced(keyword.size() + 1);
    for (int skipped = 0; skipped < 2; ++skipped) {
        const auto end = rest.indexOf('\0');
        if (end < 0)
            return false;
        rest = rest.sliced(end + 1);
    }
    return hasXmpMark(rest);
}

bool hasPngMark(QByteArrayView file) {
    constexpr qsizetype frame = 12; // length, name, checksum
    qsizetype position = 8;
    while (file.size() - position >= frame) {
        const qsizetype length = qFromBigEndian<quint32>(file.data() + position);
        if (length > file.size() - position - frame)
            return false;
        const QByteArrayView name = file.sliced(position + 4, 4);
        const QByteArrayView content = file.sliced(position + 8, length);
        if ((name == "tEXt" && hasTextMark(content)) || (name == "iTXt" && hasInternationalTextMark(content)) ||
            (name == "eXIf" && hasExifMark(content)))
            return true;
        position += frame + length;
    }
    return false;
}

bool hasJpegMark(QByteArrayView file) {
    const QByteArrayView exif("Exif\0\0", 6);
    const QByteArrayView xmp("http://ns.adobe.com/xap/1.0/\0", 29);
    qsizetype position = 2;
    while (file.size() - position >= 4 && static_cast<quint8>(file[position]) == 0xFF) {
        const auto marker = static_cast<quint8>(file[position + 1]);
        if (marker == 0xFF) { // a fill byte
            ++position;
            continue;
        }
        const qsizetype length = qFromBigEndian<quint16>(file.data() + position + 2);
        // The picture itself follows its start marker, and marks stand before it.
        if (marker == 0xDA || length < 2 || length > file.size() - position - 2)
            return false;
        const QByteArrayView content = file.sliced(position + 4, length - 2);
        if (marker == 0xE1 && content.startsWith(exif) && hasExifMark(content))
            return true;
        if (marker == 0xE1 && content.startsWith(xmp) && hasXmpMark(content.sliced(xmp.size())))
            return true;
        position += 2 + length;
    }
    return false;
}

bool hasWebpMark(QByteArrayView file) {
    qsizetype position = 12;
    while (file.size() - position >= 8) {
        const QByteArrayView name = file.sliced(position, 4);
        const qsizetype length = qFromLittleEndian<quint32>(file.data() + position + 4);
        if (length > file.size() - position - 8)
            return false;
        const QByteArrayView content = file.sliced(position + 8, length);
        if ((name == "EXIF" && hasExifMark(content)) || (name == "XMP " && hasXmpMark(content)))
            return true;
        position += 8 + length + length % 2;
    }
    return false;
}

} // namespace

bool isScreenshot(QByteArrayView file) {
    if (file.startsWith("\x89PNG\r\n\x1a\n"))
        return hasPngMark(file);
    if (file.startsWith("\xFF\xD8"))
        return hasJpegMark(file);
    if (file.startsWith("RIFF") && file.size() >= 12 && file.sliced(8, 4) == "WEBP")
        return hasWebpMark(file);
    return hasExifMark(file);
}

} // namespace vellumry::imagemarks
