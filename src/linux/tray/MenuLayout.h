// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "linux/tray/MenuTypes.h"
#include "platform/desktop/ActionMenuItem.h"

#include <QHash>
#include <deque>
#include <functional>
#include <optional>
#include <vector>

namespace vellumry {

/// A menu as com.canonical.dbusmenu wants it: a tree of entries, each with a number and properties. The desktop keeps a
/// copy of what it was told, so a number never comes to stand for another entry: a click on what was shown a while ago
/// does what was shown, or nothing. Main thread.
class MenuLayout {
public:
    /// The picture of an entry as PNG; empty for none.
    using Draw = std::function<QByteArray(const ActionMenuItem& item)>;
    using Handler = std::function<void()>;

    explicit MenuLayout(Draw draw);

    /// True when the menu is another one than before; `revision` has then grown.
    bool set(const std::vector<ActionMenuItem>& items);
    [[nodiscard]] uint revision() const { return m_revision; }

    /// The entry `parent` (0: the menu itself) with what is below it, `depth` levels or all when negative. Of the
    /// properties those that are named, or all when none is. Nothing for an unknown number.
    [[nodiscard]] std::optional<MenuNode> node(int parent, int depth, const QStringList& names) const;
    /// Of the entries named, or of all when none is, without unknown ones.
    [[nodiscard]] QList<MenuProperties> properties(const QList<int>& ids, const QStringList& names) const;
    [[nodiscard]] std::optional<QVariant> property(int id, const QString& name) const;
    [[nodiscard]] bool contains(int id) const;
    /// What choosing an entry of this menu or one of those shown a while ago does; null for all others and for what
    /// cannot be chosen.
    [[nodiscard]] Handler handlerOf(int id) const;

private:
    struct Entry {
        QVariantMap properties;
        std::vector<int> children;
        Handler handler;
    };
    using Entries = QHash<int, Entry>;

    [[nodiscard]] QVariantMap propertiesOf(const ActionMenuItem& item) const;
    void append(Entries& entries, int parent, const std::vector<ActionMenuItem>& items, int& next) const;
    [[nodiscard]] bool isSame(const Entries& others, int id, int otherId) const;
    void takeHandlers(const Entries& others, int id, int otherId);

    Draw m_draw;
    Entries m_entries;
    std::deque<QHash<int, Handler>> m_former;
    int m_next = 1;
    uint m_revision = 0;
};

} // namespace vellumry
