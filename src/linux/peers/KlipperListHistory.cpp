// SPDX-License-Identifier: GPL-3.0-or-later
#include "linux/peers/KlipperListHistory.h"

#include "linux/peers/PeerItems.h"
#include "linux/peers/StreamReader.h"

#include <array>

namespace vellumry {

namespace {

constexpr qint64 longestName = 256;
/// More than any list of files has; a number beyond it is damage.
constexpr quint32 mostEntries = 1'000'000;

/// The check sum of zlib, PNG and IEEE 802.3.
quint32 crc32(const QByteArray& bytes) {
    static const std::array<quint32, 256> table = [] {
        std::array<quint32, 256> result{};
        for (quint32 value = 0; value < result.size(); ++value) {
            quint32 remainder = value;
            for (int bit = 0; bit < 8; ++bit)
                remainder = (remainder >> 1) ^ (remainder & 1U ? 0xedb88320U : 0U);
            result[value] = remainder;
        }
        return result;
    }();
    quint32 sum = 0xffffffffU;
    for (const char byte : bytes)
        sum = table[(sum ^ static_cast<unsigned char>(byte)) & 0xffU] ^ (sum >> 8);
    return sum ^ 0xffffffffU;
}

} // namespace

KlipperListHistory::KlipperListHistory(QByteArray file, Date modified)
    : m_bytes(std::move(file))
    , m_modified(modified) {
    StreamReader reader(*this);
    const auto sum = reader.number<quint32>();
    const auto length = reader.number<quint32>();
    m_bytes = m_bytes.sliced(m_position);
    m_position = 0;
    m_isDamaged = !sum || !length || *length > m_bytes.size();
    if (!m_isDamaged)
        m_bytes.truncate(*length);
    m_isDamaged = m_isDamaged || crc32(m_bytes) != *sum;
    const auto version = reader.bytes(longestName);
    if (!version || version->isTooLarge)
        m_isDamaged = true;
}

std::optional<QByteArray> KlipperListHistory::read(qint64 count) {
    if (count < 0 || count > m_bytes.size() - m_position)
        return std::nullopt;
    m_position += count;
    return m_bytes.sliced(m_position - count, count);
}

bool KlipperListHistory::skip(qint64 count) {
    return read(count).has_value();
}

std::optional<PeerClip> KlipperListHistory::next() {
    if (isAtEnd())
        return std::nullopt;
    auto clip = readEntry();
    if (!clip) {
        m_isDamaged = true;
        m_position = m_bytes.size();
    }
    return clip;
}

std::optional<PeerClip> KlipperListHistory::readEntry() {
    StreamReader reader(*this);
    const auto kind = reader.string(longestName);
    PeerClip clip;
    if (kind == u"string") {
        const auto text = reader.string(m_bytes.size());
        if (!text)
            return std::nullopt;
        clip.items = peeritems::text(text->toUtf8());
    } else if (kind == u"url") {
        const auto list = readAddresses();
        if (!list)
            return std::nullopt;
        clip.items = peeritems::files(*list);
    } else if (kind == u"image") {
        const auto png = readPicture();
        if (!png)
            return std::nullopt;
        if (!png->isEmpty())
            clip.items = peeritems::picture(*png);
    } else {
        return std::nullopt;
    }
    return clip;
}

/// QList<QUrl>, QMap<QString, QString>, int.
std::optional<QByteArray> KlipperListHistory::readAddresses() {
    StreamReader reader(*this);
    QByteArray list;
    const auto count = reader.number<quint32>();
    if (!count || *count > mostEntries)
        return std::nullopt;
    for (quint32 i = 0; i < *count; ++i) {
        const auto address = reader.bytes(m_bytes.size());
        if (!address)
            return std::nullopt;
        list += address->bytes + '\n';
    }
    const auto pairs = reader.number<quint32>();
    if (!pairs || *pairs > mostEntries)
        return std::nullopt;
    for (quint32 i = 0; i < 2 * *pairs; ++i) {
        if (!reader.bytes(m_bytes.size()))
            return std::nullopt;
    }
    if (!reader.number<qint32>())
        return std::nullopt;
    return list;
}

/// A QImage: 0 for none, or 1 and a PNG whose end only itself knows.
std::optional<QByteArray> KlipperListHistory::readPicture() {
    StreamReader reader(*this);
    const auto mark = reader.number<qint32>();
    if (mark == 0)
        return QByteArray();
    const auto length = mark == 1 ? peeritems::pngLength(QByteArrayView(m_bytes).sliced(m_position)) : std::nullopt;
    return length ? read(*length) : std::nullopt;
}

} // namespace vellumry
