// SPDX-License-Identifier: GPL-3.0-or-later
#include "capture/ImageCompleteness.h"

#include "foundation/UniformType.h"

#include <QtEndian>
#include <array>
#include <optional>

namespace vellumry::imagecompleteness {

namespace {

constexpr qsizetype pngEndBytes = 12; // length, "IEND", checksum

bool isCompletePng(QByteArrayView file) {
    return file.size() >= pngEndBytes && file.last(pngEndBytes).contains("IEND");
}

bool isCompleteJpeg(QByteArrayView file) {
    return file.startsWith("\xFF\xD8") && file.endsWith("\xFF\xD9");
}

/// ISO/IEC 14496-12, 4.2: size, name, content; size 1 stands for a long size behind the name, 0 for the rest of the
/// file.
bool isCompleteHeic(QByteArrayView file) {
    constexpr qsizetype frame = 8;
    qsizetype position = 0;
    bool hasContent = false;
    while (position < file.size()) {
        if (file.size() - position < frame)
            return false;
        quint64 size = qFromBigEndian<quint32>(file.data() + position);
        const QByteArrayView name = file.sliced(position + 4, 4);
        if (position == 0 && name != "ftyp")
            return false;
        hasContent = hasContent || name == "mdat" || name == "idat" || name == "meta";
        if (size == 1 && file.size() - position >= frame + 8)
            size = qFromBigEndian<quint64>(file.data() + position + frame);
        else if (size == 0)
            size = static_cast<quint64>(file.size() - position);
        if (size < frame || size > static_cast<quint64>(file.size() - position))
            return false;
        position += static_cast<qsizetype>(size);
    }
    return hasContent;
}

/// TIFF 6.0, section 2, and as far as needed here: the first directory, and where its strips or tiles lie.
class TiffFile {
public:
    explicit TiffFile(QByteArrayView file)
        : m_file(file)
        , m_isBigEndian(file.startsWith("MM")) {}

    [[nodiscard]] bool isComplete() const {
        const std::optional<quint32> directory = number(4, 4);
        const std::optional<quint32> count = directory ? number(*directory, 2) : std::nullopt;
        if (!(m_file.startsWith("II*") || m_file.startsWith(QByteArrayView("MM\0*", 4))) || !count)
            return false;
        Entry offsets;
        Entry lengths;
        for (quint32 i = 0; i < *count; ++i) {
            const quint64 at = quint64(*directory) + 2 + quint64(i) * 12;
            const std::optional<quint32> tag = number(at, 2);
            if (!tag || !number(at + 8, 4))
                return false;
            const bool isOffsets = *tag == 273 || *tag == 324; // strips or tiles
            const bool isLengths = *tag == 279 || *tag == 325;
            if (isOffsets || isLengths)
                (isOffsets ? offsets : lengths) = entryAt(at);
        }
        return offsets.count > 0 && offsets.count == lengths.count && liesWithin(offsets, lengths);
    }

private:
    struct Entry {
        quint64 count = 0;
        quint64 width = 0; ///< bytes of one number
        quint64 where = 0;
    };

    [[nodiscard]] std::optional<quint32> number(quint64 at, quint64 width) const {
        if (at + width > static_cast<quint64>(m_file.size()))
            return std::nullopt;
        const char* const bytes = m_file.data() + at;
        if (width == 2)
            return m_isBigEndian ? qFromBigEndian<quint16>(bytes) : qFromLittleEndian<quint16>(bytes);
        return m_isBigEndian ? qFromBigEndian<quint32>(bytes) : qFromLittleEndian<quint32>(bytes);
    }
    [[nodiscard]] Entry entryAt(quint64 at) const {
        Entry entry;
        entry.width = number(at + 2, 2) == 3 ? 2 : 4; // SHORT or LONG
        entry.count = number(at + 4, 4).value_or(0);
        const bool isInPlace = entry.count * entry.width <= 4;
        entry.where = isInPlace ? at + 8 : number(at + 8, 4).value_or(0);
        return entry;
    }
    [[nodiscard]] bool liesWithin(const Entry& offsets, const Entry& lengths) const {
        for (quint64 i = 0; i < offsets.count; ++i) {
            const std::optional<quint32> offset = number(offsets.where + i * offsets.width, offsets.width);
            const std::optional<quint32> length = number(lengths.where + i * lengths.width, lengths.width);
            if (!offset || !length || quint64(*offset) + *length > static_cast<quint64>(m_file.size()))
                return false;
        }
        return true;
    }

    QByteArrayView m_file;
    bool m_isBigEndian;
};

bool isLetter(char byte, char lower) {
    return static_cast<char>(byte | 0x20) == lower;
}

/// "screenshot" without regard to case, its letters `step` bytes apart: 1 for ASCII, 2 for either UTF-16.
bool holdsWord(QByteArrayView file, qsizetype step) {
    constexpr QByteArrayView word("screenshot");
    const qsizetype span = (word.size() - 1) * step + 1;
    for (qsizetype at = 0; at + span <= file.size(); ++at) {
        qsizetype letter = 0;
        while (letter < word.size() && isLetter(file[at + letter * step], word[letter]))
            ++letter;
        if (letter == word.size())
            return true;
    }
    return false;
}

} // namespace

bool isComplete(QByteArrayView file, const QString& type) {
    if (type == uniformtype::png)
        return isCompletePng(file);
    if (type == uniformtype::jpeg)
        return isCompleteJpeg(file);
    if (type == uniformtype::heic)
        return isCompleteHeic(file);
    return type == uniformtype::tiff && TiffFile(file).isComplete();
}

bool mayHoldScreenshotMark(QByteArrayView file) {
    return holdsWord(file, 1) || holdsWord(file, 2);
}

} // namespace vellumry::imagecompleteness
