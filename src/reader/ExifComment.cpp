// SPDX-License-Identifier: GPL-3.0-or-later
#include "reader/ExifComment.h"

#include <QStringDecoder>
#include <QXmlStreamReader>
#include <QtEndian>
#include <optional>

namespace vellumry {

namespace {

constexpr quint16 exifFolderTag = 0x8769;
constexpr quint16 userCommentTag = 0x9286;
/// No mark that is looked for is longer; a longer comment is none of them.
constexpr quint32 longestComment = 4096;
constexpr qsizetype entryBytes = 12;

/// A TIFF file's numbers in its own byte order; nothing beyond its end.
class TiffBytes {
public:
    explicit TiffBytes(QByteArrayView bytes)
        : m_bytes(bytes) {
        m_isBigEndian = bytes.startsWith(QByteArrayView("MM\0*", 4));
        m_isValid = m_isBigEndian || bytes.startsWith(QByteArrayView("II*\0", 4));
    }

    [[nodiscard]] bool isValid() const { return m_isValid; }
    [[nodiscard]] bool isBigEndian() const { return m_isBigEndian; }
    [[nodiscard]] std::optional<quint16> number16(qsizetype offset) const { return number<quint16>(offset); }
    [[nodiscard]] std::optional<quint32> number32(qsizetype offset) const { return number<quint32>(offset); }
    [[nodiscard]] QByteArrayView slice(qsizetype offset, qsizetype length) const {
        if (offset < 0 || length < 0 || offset > m_bytes.size() || length > m_bytes.size() - offset)
            return {};
        return m_bytes.sliced(offset, length);
    }

private:
    template <typename Number>
    [[nodiscard]] std::optional<Number> number(qsizetype offset) const {
        const QByteArrayView bytes = slice(offset, sizeof(Number));
        if (bytes.isEmpty())
            return std::nullopt;
        return m_isBigEndian ? qFromBigEndian<Number>(bytes.data()) : qFromLittleEndian<Number>(bytes.data());
    }

    QByteArrayView m_bytes;
    bool m_isBigEndian = false;
    bool m_isValid = false;
};

/// Where the entry with `tag` stands in the folder at `folder`.
std::optional<qsizetype> entryOffset(const TiffBytes& tiff, qsizetype folder, quint16 tag) {
    const auto count = tiff.number16(folder);
    if (!count)
        return std::nullopt;
    for (quint16 index = 0; index < *count; ++index) {
        const qsizetype entry = folder + 2 + index * entryBytes;
        const auto found = tiff.number16(entry);
        if (!found)
            return std::nullopt;
        if (*found == tag)
            return entry;
    }
    return std::nullopt;
}

/// The bytes of an entry whose units are one byte each (types ASCII and UNDEFINED).
QByteArrayView byteValue(const TiffBytes& tiff, qsizetype entry) {
    const auto type = tiff.number16(entry + 2);
    const auto count = tiff.number32(entry + 4);
    const auto offset = tiff.number32(entry + 8);
    if (!type || !count || !offset || (*type != 1 && *type != 2 && *type != 7) || *count > longestComment)
        return {};
    const qsizetype position = *count <= 4 ? entry + 8 : static_cast<qsizetype>(*offset);
    return tiff.slice(position, static_cast<qsizetype>(*count));
}

QString withoutPadding(QString text) {
    const auto end = text.indexOf(QChar(u'\0'));
    if (end >= 0)
        text.truncate(end);
    return text;
}

/// A comment begins with eight bytes that name its coding; tools that leave them out write plain ASCII.
QString decodeComment(QByteArrayView comment, bool isBigEndian) {
    const QByteArrayView coding = comment.first(qMin<qsizetype>(8, comment.size()));
    if (coding.size() == 8 && coding.startsWith("UNICODE")) {
        QStringDecoder decoder(isBigEndian ? QStringDecoder::Utf16BE : QStringDecoder::Utf16LE);
        return withoutPadding(decoder.decode(comment.sliced(8)));
    }
    const bool isNamed =
        coding.size() == 8 && (coding.startsWith("ASCII") || coding == QByteArrayView("\0\0\0\0\0\0\0\0", 8));
    return withoutPadding(QString::fromUtf8(isNamed ? comment.sliced(8) : comment));
}

} // namespace

QString exifUserComment(QByteArrayView bytes) {
    const TiffBytes tiff(bytes);
    const auto folder = tiff.isValid() ? tiff.number32(4) : std::nullopt;
    const auto pointer = folder ? entryOffset(tiff, static_cast<qsizetype>(*folder), exifFolderTag) : std::nullopt;
    const auto exif = pointer ? tiff.number32(*pointer + 8) : std::nullopt;
    const auto entry = exif ? entryOffset(tiff, static_cast<qsizetype>(*exif), userCommentTag) : std::nullopt;
    if (!entry)
        return {};
    return decodeComment(byteValue(tiff, *entry), tiff.isBigEndian());
}

QString xmpUserComment(QByteArrayView packet) {
    const QString exifNamespace = QStringLiteral("http://ns.adobe.com/exif/1.0/");
    const QString name = QStringLiteral("UserComment");
    QXmlStreamReader reader(packet.toByteArray());
    while (!reader.atEnd()) {
        if (reader.readNext() != QXmlStreamReader::StartElement)
            continue;
        const QXmlStreamAttributes attributes = reader.attributes();
        if (attributes.hasAttribute(exifNamespace, name))
            return attributes.value(exifNamespace, name).toString();
        if (reader.namespaceUri() == exifNamespace && reader.name() == name)
            return reader.readElementText(QXmlStreamReader::IncludeChildElements);
    }
    return {};
}

} // namespace vellumry
