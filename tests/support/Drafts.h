// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "foundation/FileUrl.h"
#include "foundation/UniformType.h"
#include "history/clips/Clip.h"

/// Drafts as capture makes them, for tests that need something to keep.
namespace vellumry::drafts {

inline ClipDraft text(const QString& string) {
    ClipDraft draft;
    draft.title = string;
    draft.searchText = string;
    draft.payload.items = {{{{uniformtype::utf8PlainText, string.toUtf8()}}, QStringList{uniformtype::utf8PlainText}}};
    return draft;
}

inline ClipDraft secret(const QString& string) {
    ClipDraft draft = text(string);
    draft.isSensitive = true;
    return draft;
}

inline ClipDraft image(const QByteArray& png) {
    ClipDraft draft;
    draft.kind = ClipKind::image;
    draft.title = QStringLiteral("Image");
    draft.thumbnail = QByteArray("thumbnail");
    draft.payload.items = {{{{uniformtype::png, png}}, std::nullopt}};
    return draft;
}

inline ClipDraft files(const QStringList& paths) {
    ClipDraft draft;
    draft.kind = ClipKind::file;
    for (const QString& path : paths) {
        const QString name = path.section(u'/', -1);
        draft.files.push_back({path, name, std::nullopt});
        draft.payload.items.push_back({{{uniformtype::fileUrl, fileurl::urlOf(path)}}, std::nullopt});
        draft.title += draft.title.isEmpty() ? name : QStringLiteral(", ") + name;
    }
    draft.searchText = draft.title;
    return draft;
}

} // namespace vellumry::drafts
