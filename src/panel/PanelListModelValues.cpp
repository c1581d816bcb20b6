// SPDX-License-Identifier: GPL-3.0-or-later

// What the rows show and say.

#include "capture/FileStatus.h"
#include "foundation/Localisation.h"
#include "panel/MarkedTitle.h"
#include "panel/PanelListModel.h"
#include "panel/RowAppearance.h"

namespace vellumry {

QVariant PanelListModel::headerValue(const QString& header, int role) const {
    switch (role) {
    case Qt::DisplayRole:
    case HeaderRole:
        return header;
    case IsPinnedRole:
    case IsSelectedRole:
    case IsSensitiveRole:
        return false;
    default:
        return QString();
    }
}

QVariant PanelListModel::clipValue(const Clip& clip, int role) const {
    switch (role) {
    case Qt::DisplayRole:
    case TitleRole:
        return row::titleOf(clip);
    case MarkedTitleRole:
        return markedTitle(row::titleOf(clip), clip.isSensitive() ? QString() : m_model->query());
    case SourceNameRole:
        return row::sourceOf(clip);
    case ImageMatchRole:
        return imageMatchOf(clip);
    case SymbolRole:
        return row::symbolOf(clip);
    case ThumbnailRole:
        return row::thumbnailOf(clip);
    case SwatchRole:
        return row::swatchOf(clip);
    case PillRole:
        return pillOf(clip);
    case NumberRole:
        return digitOf(m_rowNumbers, clip);
    case PinNumberRole:
        return digitOf(m_pinNumbers, clip);
    case PinHintRole:
        return hintOf(clip);
    case DescriptionRole:
        return descriptionOf(clip);
    case IsPinnedRole:
        return clip.isPinned;
    case IsSelectedRole:
        return m_model->isSelected(clip.id);
    case IsSensitiveRole:
        return clip.isSensitive();
    default:
        return QString();
    }
}

QString PanelListModel::pillOf(const Clip& clip) const {
    const auto statuses = m_model->fileStatuses().constFind(clip.id);
    if (statuses == m_model->fileStatuses().constEnd())
        return QString();
    for (const FileStatus& status : *statuses) {
        switch (status.kind) {
        case FileStatus::Case::missing:
            return localised("Deleted");
        case FileStatus::Case::inTrash:
            return localised("In Trash");
        case FileStatus::Case::volumeUnavailable:
            return localised("Offline");
        case FileStatus::Case::available:
        case FileStatus::Case::moved:
            break;
        }
    }
    return QString();
}

QString PanelListModel::digitOf(const QHash<QUuid, int>& numbers, const Clip& clip) {
    const auto number = numbers.constFind(clip.id);
    return number == numbers.constEnd() ? QString() : QString::number(*number);
}

QString PanelListModel::hintOf(const Clip& clip) const {
    const QString digit = digitOf(m_pinNumbers, clip);
    return digit.isEmpty() ? digit : localised("%1 anywhere to paste this").arg(m_pinKeys.arg(digit));
}

QString PanelListModel::imageMatchOf(const Clip& clip) const {
    return clip.isSensitive() ? QString() : m_model->imageMatch(clip).value_or(QString());
}

/// Everything beside the title that the row shows, for screen readers.
QString PanelListModel::descriptionOf(const Clip& clip) const {
    const QString number = digitOf(m_rowNumbers, clip);
    QStringList parts{row::sourceOf(clip), imageMatchOf(clip), pillOf(clip)};
    if (clip.isPinned)
        parts.append(localised("Pinned clip"));
    parts.append(hintOf(clip));
    if (!number.isEmpty())
        parts.append(localised("⌘") + number);
    parts.removeAll(QString());
    return parts.join(QStringLiteral(", "));
}

} // namespace vellumry
