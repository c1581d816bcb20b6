// SPDX-License-Identifier: GPL-3.0-or-later
#include "panel/PreviewLists.h"

namespace vellumry {

namespace {

QString told(const PreviewContent::Entry& entry) {
    QStringList parts{entry.note, entry.place, entry.size};
    parts.removeAll(QString());
    return parts.join(QStringLiteral(" · "));
}

} // namespace

QVariant PreviewButtonModel::data(const QModelIndex& index, int role) const {
    const PreviewContent::Button* button = at(index);
    if (!button)
        return {};
    switch (role) {
    case ActionRole:
        return static_cast<int>(button->action);
    case Qt::DisplayRole:
    case TitleRole:
        return button->title;
    case HelpRole:
        return button->help;
    case SymbolRole:
        return button->symbol;
    case IsProminentRole:
        return button->isProminent;
    default:
        return {};
    }
}

QHash<int, QByteArray> PreviewButtonModel::roleNames() const {
    return {{ActionRole, "action"},
            {TitleRole, "title"},
            {HelpRole, "help"},
            {SymbolRole, "symbol"},
            {IsProminentRole, "isProminent"}};
}

QVariant PreviewEntryModel::data(const QModelIndex& index, int role) const {
    const PreviewContent::Entry* entry = at(index);
    if (!entry)
        return {};
    switch (role) {
    case Qt::DisplayRole:
    case NameRole:
        return entry->name;
    case SymbolRole:
        return entry->symbol;
    case ThumbnailRole:
        return entry->thumbnail;
    case SwatchRole:
        return entry->swatch;
    case ToldRole:
        return told(*entry);
    case HasNoteRole:
        return !entry->note.isEmpty();
    case IsMissingRole:
        return entry->isMissing;
    case IsFileRole:
        return entry->isFile;
    default:
        return {};
    }
}

QHash<int, QByteArray> PreviewEntryModel::roleNames() const {
    return {{NameRole, "name"}, {SymbolRole, "symbol"},   {ThumbnailRole, "thumbnail"}, {SwatchRole, "swatch"},
            {ToldRole, "told"}, {HasNoteRole, "hasNote"}, {IsMissingRole, "isMissing"}, {IsFileRole, "isFile"}};
}

} // namespace vellumry
