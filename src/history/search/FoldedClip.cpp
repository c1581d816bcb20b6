// SPDX-License-Identifier: GPL-3.0-or-later
#include "history/search/FoldedClip.h"

#include "foundation/Text.h"

namespace vellumry {

namespace {

/// Below this a text is scanned faster beside its neighbours than by itself.
constexpr qsizetype longText = 2048;

} // namespace

FoldedIndex::Slot appendFolded(const Clip& clip, FoldedIndex& index) {
    const QByteArray before = clip.title.utf8() + '\n';
    const QByteArray& body = clip.searchText.utf8();
    const QByteArray behind =
        '\n' + clip.sourceAppName.value_or(QString()).toUtf8() + '\n' + clip.imageText.value_or(StoredText()).utf8();
    if (body.size() >= longText && text::foldsToLowerCase(body))
        return index.append(text::foldedBytes(before), body, text::foldedBytes(behind));
    return index.append(text::foldedBytes(before + body + behind));
}

} // namespace vellumry
