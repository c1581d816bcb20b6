// SPDX-License-Identifier: GPL-3.0-or-later
#include "linux/peers/ClipmanHistory.h"

#include "linux/peers/ForeignFile.h"
#include "linux/peers/PeerItems.h"

#include <QJsonArray>
#include <QJsonDocument>

namespace vellumry {

namespace {

/// A list of texts as GKeyFile writes it. Nothing for an escape that it does not know.
std::optional<QByteArrayList> textsOf(const QByteArray& list) {
    QByteArrayList texts;
    QByteArray text;
    for (qsizetype i = 0; i < list.size(); ++i) {
        if (list[i] == ';') {
            texts.append(std::exchange(text, {}));
            continue;
        }
        if (list[i] != '\\') {
            text += list[i];
            continue;
        }
        if (++i == list.size())
            return std::nullopt;
        constexpr QByteArrayView escapes = "sntr\\;";
        constexpr QByteArrayView meanings = " \n\t\r\\;";
        const qsizetype which = escapes.indexOf(list[i]);
        if (which < 0)
            return std::nullopt;
        text += meanings[which];
    }
    if (!text.isEmpty())
        texts.append(text);
    return texts;
}

} // namespace

ClipmanHistory ClipmanHistory::ofXfce(const QByteArray& file, Date modified, QStringList pictures) {
    ClipmanHistory history;
    history.m_modified = modified;
    history.m_pictures = std::move(pictures);
    bool isInGroup = false;
    bool hasTexts = file.isEmpty();
    for (const QByteArray& line : file.split('\n')) {
        if (line.startsWith('['))
            isInGroup = line.trimmed() == "[texts]";
        if (!isInGroup || !line.startsWith("texts="))
            continue;
        const auto texts = textsOf(line.sliced(6));
        hasTexts = texts.has_value();
        history.m_texts = texts.value_or(QByteArrayList());
    }
    history.m_isDamaged = !hasTexts;
    return history;
}

ClipmanHistory ClipmanHistory::ofWayland(const QByteArray& file, Date modified) {
    ClipmanHistory history;
    history.m_modified = modified;
    const QJsonDocument document = QJsonDocument::fromJson(file);
    history.m_isDamaged = !document.isArray();
    const QJsonArray texts = document.array();
    for (const auto& value : texts)
        history.m_texts.append(value.toString().toUtf8());
    return history;
}

std::optional<PeerClip> ClipmanHistory::next() {
    PeerClip clip;
    if (!m_texts.isEmpty()) {
        clip.items = peeritems::text(m_texts.takeLast());
        return clip;
    }
    while (!m_pictures.isEmpty()) {
        auto file = ForeignFile::open(m_pictures.takeLast(), peeritems::mostBytes);
        if (!file)
            continue;
        clip.items = peeritems::picture(file->rest());
        return clip;
    }
    return std::nullopt;
}

} // namespace vellumry
