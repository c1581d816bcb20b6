// SPDX-License-Identifier: GPL-3.0-or-later
#include "linux/peers/CopyQHistory.h"

#include "linux/peers/Inflate.h"
#include "linux/peers/PeerItems.h"
#include "linux/peers/StreamReader.h"

#include <QDir>
#include <algorithm>
#include <array>
#include <limits>

namespace vellumry {

namespace {

constexpr qint32 currentCoding = -2;
constexpr qint64 longestType = 1024;
/// More than any item has; a number beyond it is damage.
constexpr qint32 mostForms = 10'000;
const QString ownTypes = QStringLiteral("application/x-copyq-");

/// What the first letter of a MIME type stands for, by its value as a hexadecimal digit.
const std::array<QString, 12>& beginnings() {
    static const std::array<QString, 12> list{QString(),
                                              ownTypes + QStringLiteral("owner-window-title"),
                                              ownTypes + QStringLiteral("item-notes"),
                                              ownTypes,
                                              QStringLiteral("text/plain"),
                                              QStringLiteral("text/html"),
                                              QStringLiteral("text/uri-list"),
                                              QStringLiteral("image/"),
                                              QStringLiteral("text/"),
                                              QStringLiteral("application/"),
                                              QStringLiteral("audio/"),
                                              QStringLiteral("video/")};
    return list;
}

std::optional<QString> typeOf(const QString& coded) {
    bool isNumber = false;
    const uint index = coded.left(1).toUInt(&isNumber, 16);
    if (!isNumber || index >= beginnings().size())
        return std::nullopt;
    return beginnings()[index] + coded.mid(1);
}

/// zlib bytes behind their length, which is not believed. Of nothing there is the length alone (qCompress).
std::expected<QByteArray, InflateFailure> unpacked(const QByteArray& bytes) {
    constexpr qsizetype lengthBytes = 4;
    if (bytes.isEmpty() || bytes.size() == lengthBytes)
        return QByteArray();
    return inflated(QByteArrayView(bytes).sliced(std::min(lengthBytes, bytes.size())), peeritems::mostBytes);
}

/// Tabs that a plugin keeps begin with its name: encrypted ones, and those that are folders.
bool belongsToPlugin(const QString& path) {
    auto file = ForeignFile::open(path, std::numeric_limits<qint64>::max());
    if (!file)
        return false;
    StreamReader reader(*file);
    const auto header = reader.string(128);
    return header && header->startsWith(u"CopyQ_");
}

} // namespace

QStringList CopyQHistory::tabs(const QString& folder) {
    const QDir directory(folder);
    QStringList paths;
    for (const QString& name : directory.entryList({QStringLiteral("copyq_tab_*.dat")}, QDir::Files, QDir::Name)) {
        // "&clipboard" in base64: what CopyQ itself fills.
        const bool isClipboard = name == QLatin1String("copyq_tab_JmNsaXBib2FyZA==.dat");
        paths.insert(isClipboard ? 0 : paths.size(), directory.filePath(name));
    }
    return paths;
}

CopyQHistory::CopyQHistory(QStringList tabs)
    : m_tabs(std::move(tabs)) {
    (void)openNext();
}

/// False behind the last tab.
bool CopyQHistory::openNext() {
    while (!m_tabs.isEmpty()) {
        const QString path = m_tabs.takeFirst();
        if (belongsToPlugin(path)) {
            ++m_lockedTabs;
            continue;
        }
        auto file = ForeignFile::open(path, std::numeric_limits<qint64>::max());
        std::optional<qint32> count;
        if (file) {
            StreamReader reader(*file);
            count = reader.number<qint32>();
        }
        if (!count || *count < 0) {
            m_isDamaged = true;
            continue;
        }
        m_newest = std::max(m_newest, file->modified());
        m_file.emplace(std::move(*file));
        m_left = *count;
        ++m_openTabs;
        return true;
    }
    m_file.reset();
    return false;
}

std::optional<PeerClip> CopyQHistory::next() {
    while (m_file) {
        if (m_left > 0) {
            --m_left;
            if (auto clip = readItem())
                return clip;
            m_isDamaged = true;
        }
        if (!openNext())
            return std::nullopt;
    }
    return std::nullopt;
}

std::optional<PeerClip> CopyQHistory::readItem() {
    StreamReader reader(*m_file);
    auto count = reader.number<qint32>();
    const bool isCurrent = count == currentCoding;
    if (isCurrent)
        count = reader.number<qint32>();
    if (!count || *count < 0 || *count > mostForms)
        return std::nullopt;
    peeritems::Formats formats;
    bool isLocked = false;
    bool isPinned = false;
    for (qint32 form = 0; form < *count; ++form) {
        const auto coded = reader.string(longestType);
        const auto type = coded && isCurrent ? typeOf(*coded) : coded;
        const auto flag = isCurrent ? reader.number<quint8>() : std::optional<quint8>(1);
        auto bytes = reader.bytes(peeritems::mostBytes);
        if (!type || !flag || !bytes)
            return std::nullopt;
        isLocked =
            isLocked || *type == ownTypes + QStringLiteral("encrypted") || *type == ownTypes + QStringLiteral("secret");
        isPinned = isPinned || *type == ownTypes + QStringLiteral("item-pinned");
        if (bytes->isTooLarge || type->startsWith(ownTypes))
            continue;
        auto plain = *flag ? unpacked(bytes->bytes) : std::expected<QByteArray, InflateFailure>(bytes->bytes);
        if (!plain && plain.error() == InflateFailure::damaged)
            return std::nullopt;
        if (plain)
            formats.emplace_back(*type, *std::move(plain));
    }
    PeerClip clip = isLocked ? PeerClip() : peeritems::ofFormats(formats);
    clip.isLocked = clip.isLocked || isLocked;
    clip.isPinned = isPinned;
    return clip;
}

} // namespace vellumry
