// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/SettingsWatch.h"

#include "foundation/Logging.h"
#include "foundation/UserDefaults.h"

#include <QPointer>

namespace vellumry {

SettingsWatch::SettingsWatch(const UserDefaults& defaults, Reactions reactions)
    : m_defaults(&defaults)
    , m_groups{{{QStringLiteral("openPanelShortcut"), QStringLiteral("pasteStackShortcut"),
                 QStringLiteral("pinnedShortcutsEnabled")},
                std::move(reactions.shortcuts),
                {}},
               {{QStringLiteral("appearance")}, std::move(reactions.appearance), {}},
               {{QStringLiteral("saveNewScreenshots")}, std::move(reactions.screenshots), {}}}
    , m_anything(std::move(reactions.anything)) {
    for (Group& group : m_groups)
        group.values = valuesOf(group);
}

void SettingsWatch::start(FolderWatching& watching, const QString& folder) {
    if (folder.isEmpty())
        return;
    m_watch = watching.watch({folder}, [self = QPointer(this)] {
        if (self)
            self->look();
    });
}

QVariantList SettingsWatch::valuesOf(const Group& group) const {
    QVariantList values;
    for (const QString& key : group.keys)
        values.append(m_defaults->object(key));
    return values;
}

void SettingsWatch::look() {
    for (Group& group : m_groups) {
        const QVariantList values = valuesOf(group);
        if (values == group.values)
            continue;
        // Before the reaction, which may write a setting itself.
        group.values = values;
        qCInfo(logging::shell).noquote() << "changed settings:" << group.keys.join(u' ');
        if (group.reaction)
            group.reaction();
    }
    if (m_anything)
        m_anything();
}

void SettingsWatch::acknowledge() {
    m_groups.front().values = valuesOf(m_groups.front());
}

} // namespace vellumry
