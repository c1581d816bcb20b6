// SPDX-License-Identifier: GPL-3.0-or-later
#include "linux/tray/MenuLayout.h"

#include <algorithm>

namespace vellumry {

namespace {

/// Menus that a desktop may still show: it asks for the next one as soon as it hears of it.
constexpr std::size_t mostFormer = 4;

QVariantMap chosen(const QVariantMap& properties, const QStringList& names) {
    if (names.isEmpty())
        return properties;
    QVariantMap result;
    for (const QString& name : names) {
        if (const auto found = properties.constFind(name); found != properties.constEnd())
            result.insert(name, *found);
    }
    return result;
}

/// A single underscore stands before the letter that chooses the entry.
QString labelOf(QString text) {
    return text.replace(u'_', QStringLiteral("__"));
}

} // namespace

MenuLayout::MenuLayout(Draw draw)
    : m_draw(std::move(draw)) {
    m_entries.insert(0, Entry{{{QStringLiteral("children-display"), QStringLiteral("submenu")}}, {}, {}});
}

/// Only what is not as the interface's own defaults have it.
QVariantMap MenuLayout::propertiesOf(const ActionMenuItem& item) const {
    if (item.isSeparator())
        return {{QStringLiteral("type"), QStringLiteral("separator")}};
    QVariantMap properties{{QStringLiteral("label"), labelOf(item.text)}};
    if (!item.isEnabled)
        properties.insert(QStringLiteral("enabled"), false);
    if (!item.chord.isEmpty())
        properties.insert(QStringLiteral("shortcut"), QVariant::fromValue(MenuShortcut{item.chord}));
    if (!item.items.empty())
        properties.insert(QStringLiteral("children-display"), QStringLiteral("submenu"));
    if (item.check != ActionMenuItem::Check::none) {
        // Without a picture: several desktops draw it in the place of the mark.
        properties.insert(QStringLiteral("toggle-type"), QStringLiteral("checkmark"));
        properties.insert(QStringLiteral("toggle-state"), item.check == ActionMenuItem::Check::on ? 1 : 0);
    } else if (const QByteArray picture = m_draw(item); !picture.isEmpty()) {
        properties.insert(QStringLiteral("icon-data"), picture);
    }
    return properties;
}

void MenuLayout::append(Entries& entries, int parent, const std::vector<ActionMenuItem>& items, int& next) const {
    for (const ActionMenuItem& item : items) {
        const int id = next++;
        entries.insert(id, Entry{propertiesOf(item), {}, item.isEnabled ? item.handler : nullptr});
        entries[parent].children.push_back(id);
        append(entries, id, item.items, next);
    }
}

bool MenuLayout::isSame(const Entries& others, int id, int otherId) const {
    const Entry& mine = *m_entries.constFind(id);
    const Entry& other = *others.constFind(otherId);
    return mine.properties == other.properties &&
           std::ranges::equal(mine.children, other.children,
                              [&](int child, int otherChild) { return isSame(others, child, otherChild); });
}

void MenuLayout::takeHandlers(const Entries& others, int id, int otherId) {
    const Entry other = others.value(otherId);
    m_entries[id].handler = other.handler;
    const std::vector<int> children = m_entries[id].children;
    for (std::size_t index = 0; index < children.size(); ++index)
        takeHandlers(others, children[index], other.children[index]);
}

bool MenuLayout::set(const std::vector<ActionMenuItem>& items) {
    Entries entries{{0, Entry{m_entries[0].properties, {}, {}}}};
    int next = m_next;
    append(entries, 0, items, next);
    if (m_revision > 0 && isSame(entries, 0, 0)) {
        takeHandlers(entries, 0, 0);
        return false;
    }
    QHash<int, Handler> former;
    for (auto entry = m_entries.cbegin(); entry != m_entries.cend(); ++entry) {
        if (entry->handler)
            former.insert(entry.key(), entry->handler);
    }
    m_former.push_back(std::move(former));
    if (m_former.size() > mostFormer)
        m_former.pop_front();
    m_entries = std::move(entries);
    m_next = next;
    ++m_revision;
    return true;
}

std::optional<MenuNode> MenuLayout::node(int parent, int depth, const QStringList& names) const {
    const auto entry = m_entries.constFind(parent);
    if (entry == m_entries.constEnd())
        return std::nullopt;
    MenuNode node{parent, chosen(entry->properties, names), {}};
    if (depth == 0)
        return node;
    for (const int child : entry->children)
        node.children.append(*this->node(child, depth < 0 ? depth : depth - 1, names));
    return node;
}

QList<MenuProperties> MenuLayout::properties(const QList<int>& ids, const QStringList& names) const {
    QList<MenuProperties> result;
    for (const int id : ids.isEmpty() ? m_entries.keys() : ids) {
        if (const auto entry = m_entries.constFind(id); entry != m_entries.constEnd())
            result.append({id, chosen(entry->properties, names)});
    }
    return result;
}

std::optional<QVariant> MenuLayout::property(int id, const QString& name) const {
    const auto entry = m_entries.constFind(id);
    if (entry == m_entries.constEnd() || !entry->properties.contains(name))
        return std::nullopt;
    return entry->properties.value(name);
}

bool MenuLayout::contains(int id) const {
    return m_entries.contains(id) ||
           std::ranges::any_of(m_former, [id](const auto& handlers) { return handlers.contains(id); });
}

MenuLayout::Handler MenuLayout::handlerOf(int id) const {
    if (const auto entry = m_entries.constFind(id); entry != m_entries.constEnd())
        return entry->handler;
    for (const auto& handlers : m_former) {
        if (const auto handler = handlers.constFind(id); handler != handlers.constEnd())
            return *handler;
    }
    return nullptr;
}

} // namespace vellumry
