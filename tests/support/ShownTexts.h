// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QQuickItem>
#include <QStringList>

namespace vellumry {

/// The texts that `item` and its children show, parents first.
inline QStringList shownTexts(const QQuickItem* item) {
    if (!item->isVisible())
        return {};
    QStringList found;
    const QString text = item->property("text").toString();
    if (item->inherits("QQuickText") && !text.isEmpty())
        found.append(text);
    for (const QQuickItem* child : item->childItems())
        found += shownTexts(child);
    return found;
}

} // namespace vellumry
