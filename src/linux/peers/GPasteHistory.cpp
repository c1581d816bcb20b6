// SPDX-License-Identifier: GPL-3.0-or-later
#include "linux/peers/GPasteHistory.h"

#include "linux/peers/PeerItems.h"

#include <QFileInfo>

namespace vellumry {

namespace {

constexpr QByteArrayView sectionStart = "<![CDATA[";
constexpr QByteArrayView sectionEnd = "]]>";

/// The value of an attribute in the text of a tag; empty when it has none.
QByteArray attribute(const QByteArray& tag, const QByteArray& name) {
    const QByteArray start = ' ' + name + "=\"";
    const qsizetype from = tag.indexOf(start);
    if (from < 0)
        return {};
    const qsizetype to = tag.indexOf('"', from + start.size());
    return to < 0 ? QByteArray() : tag.sliced(from + start.size(), to - from - start.size());
}

QByteArray unescaped(QByteArray text) {
    text.replace("&gt;", ">");
    text.replace("&amp;", "&");
    return text;
}

} // namespace

GPasteHistory::GPasteHistory(QByteArray bytes, Date modified, QString folder)
    : m_bytes(std::move(bytes))
    , m_modified(modified)
    , m_folder(std::move(folder)) {}

std::optional<PeerClip> GPasteHistory::next() {
    const qsizetype start = m_bytes.indexOf("<item ", m_position);
    if (start < 0) {
        m_isDamaged = m_isDamaged || m_bytes.indexOf("</history>", m_position) < 0;
        return std::nullopt;
    }
    const qsizetype tagEnd = m_bytes.indexOf('>', start);
    // Its text cannot hold this, as ">" is escaped there.
    const qsizetype itemEnd = tagEnd < 0 ? -1 : m_bytes.indexOf("</item>", tagEnd);
    // Looked for within the item: to the end of the file each time, a long one would take hours.
    const QByteArrayView item =
        itemEnd < 0 ? QByteArrayView() : QByteArrayView(m_bytes).sliced(tagEnd, itemEnd - tagEnd);
    const qsizetype from = item.indexOf(sectionStart);
    const qsizetype to = from < 0 ? -1 : item.indexOf(sectionEnd, from);
    if (itemEnd < 0 || (from >= 0 && to < 0)) {
        m_isDamaged = true;
        m_position = m_bytes.size();
        return std::nullopt;
    }
    m_position = itemEnd;
    if (from < 0)
        return PeerClip();
    const QByteArray tag = m_bytes.sliced(start, tagEnd - start);
    const qsizetype valueStart = from + sectionStart.size();
    // Further values of the same item are other forms of it.
    const QByteArray value = unescaped(item.sliced(valueStart, to - valueStart).toByteArray());
    PeerClip clip;
    const QByteArray kind = attribute(tag, "kind");
    clip.isLocked = kind == "Password";
    if (!clip.isLocked)
        clip.items = itemsOf(kind, value);
    if (const qint64 date = attribute(tag, "date").toLongLong(); date > 0)
        clip.copiedAt = static_cast<Date>(date);
    return clip;
}

std::vector<PasteboardItem> GPasteHistory::itemsOf(const QByteArray& kind, const QByteArray& value) const {
    if (kind == "Uris")
        return peeritems::files(value);
    if (kind != "Image")
        return peeritems::text(value);
    // By its name alone: the folder may have come from another computer, and no path leads elsewhere.
    const QString name = QFileInfo(QString::fromUtf8(value)).fileName();
    auto file = ForeignFile::open(m_folder + QStringLiteral("/images/") + name, peeritems::mostBytes);
    return file ? peeritems::picture(file->rest()) : std::vector<PasteboardItem>();
}

} // namespace vellumry
