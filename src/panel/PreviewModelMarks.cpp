// SPDX-License-Identifier: GPL-3.0-or-later
// What the user searches for, marked in what the preview shows.
#include "panel/PreviewModel.h"

namespace vellumry {

namespace {

QString marked(const QString& text, const std::vector<TextStretch>& hits, const markup::Look& look) {
    return hits.empty() ? QString() : markup::styled(text, {}, hits, look);
}

} // namespace

void PreviewModel::setLook(const markup::Look& look) {
    if (m_look == look)
        return;
    m_look = look;
    m_text.setLook(look);
    Q_EMIT marksChanged();
}

/// What is said of a secret is no text of it.
QString PreviewModel::markedText() const {
    const bool isAddress = m_content.body == PreviewContent::Body::link;
    return isAddress ? marked(m_content.text, markup::hitsIn(m_query, m_content.text), m_look) : QString();
}

QString PreviewModel::textUpToHit() const {
    const bool isAddress = m_content.body == PreviewContent::Body::link;
    return isAddress ? markup::upToFirstHit(m_content.text, {}, markup::hitsIn(m_query, m_content.text), m_look)
                     : QString();
}

QString PreviewModel::markedWords() const {
    const QString& words = m_content.textInImage;
    return marked(words, markup::hitsInPicture(m_query, words), m_look);
}

QString PreviewModel::wordsUpToHit() const {
    const QString& words = m_content.textInImage;
    return markup::upToFirstHit(words, {}, markup::hitsInPicture(m_query, words), m_look);
}

} // namespace vellumry
