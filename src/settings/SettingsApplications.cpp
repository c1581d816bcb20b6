// SPDX-License-Identifier: GPL-3.0-or-later
// The applications that the settings name: those never saved from, and those that paste like terminals.
#include "foundation/Localisation.h"
#include "settings/ApplicationLines.h"
#include "settings/SettingsModel.h"

#include <QPointer>
#include <algorithm>

namespace vellumry {

QCoro::Task<void> SettingsModel::readApplications() {
    const QPointer<SettingsModel> self(this);
    auto reading = actions.installedApplications();
    std::vector<InstalledApplication> applications = co_await reading;
    if (!self)
        co_return;
    m_applications = std::move(applications);
    showLists();
    showOffered();
    Q_EMIT changed();
}

void SettingsModel::showLists() {
    m_ignoredApps.setLines(applicationlines::ignored(m_values.ignoredApps, m_applications));
    m_terminals.setLines(applicationlines::terminals(m_values.terminalApps, m_applications));
}

QString SettingsModel::moreManagers() const {
    const int count = applicationlines::notListed(m_values.ignoredApps, m_applications);
    if (count == 0)
        return {};
    return localised("%n more password managers (Bitwarden, LastPass, Dashlane…) are skipped too as soon as they're "
                     "installed.",
                     count);
}

void SettingsModel::saveFrom(int line) {
    const auto& lines = m_ignoredApps.lines();
    if (line < 0 || static_cast<std::size_t>(line) >= lines.size())
        return;
    QStringList identifiers = m_values.ignoredApps;
    identifiers.removeAll(lines[static_cast<std::size_t>(line)].identifier);
    m_preferences->setIgnoredApps(identifiers);
    refresh();
}

void SettingsModel::forgetTerminal(int line) {
    QStringList names = m_values.terminalApps;
    if (line < 0 || line >= names.size())
        return;
    names.removeAt(line);
    store("terminalApps", names);
}

void SettingsModel::setTerminal(int line, bool isTerminal) {
    QStringList names = m_values.terminalApps;
    if (line < 0 || line >= names.size())
        return;
    QString name = names[line];
    while (name.startsWith(u'!'))
        name.remove(0, 1);
    names[line] = isTerminal ? name : u'!' + name;
    store("terminalApps", names);
}

void SettingsModel::beginChoosing(bool isForTerminals) {
    m_isForTerminals = isForTerminals;
    m_words.clear();
    m_chosen.clear();
    showOffered();
    Q_EMIT changed();
    setSheet(QStringLiteral("applications"));
}

void SettingsModel::searchApplications(const QString& words) {
    m_words = words;
    showOffered();
}

QStringList SettingsModel::listedNames() const {
    return m_isForTerminals ? m_values.terminalApps : m_values.ignoredApps;
}

/// What is in the list already is not offered again.
void SettingsModel::showOffered() {
    const QStringList present = listedNames();
    std::vector<InstalledApplication> applications;
    for (const InstalledApplication& application : m_applications) {
        const QString& name = m_isForTerminals ? application.windowClass : application.identifier;
        if (!present.contains(name) && !present.contains(u'!' + name))
            applications.push_back(application);
    }
    m_offeredApps.setLines(applicationlines::offered(applications, m_words, m_chosen));
}

void SettingsModel::toggleChosen(int line) {
    const auto& lines = m_offeredApps.lines();
    if (line < 0 || static_cast<std::size_t>(line) >= lines.size())
        return;
    const QString identifier = lines[static_cast<std::size_t>(line)].identifier;
    if (m_chosen.removeAll(identifier) == 0)
        m_chosen.append(identifier);
    showOffered();
    Q_EMIT changed();
}

/// As the list that they are chosen for names them.
QStringList SettingsModel::chosenNames() const {
    QStringList names;
    for (const InstalledApplication& application : m_applications) {
        if (m_chosen.contains(application.identifier))
            names.append(m_isForTerminals ? application.windowClass : application.identifier);
    }
    return names;
}

void SettingsModel::finishChoosing() {
    QStringList names = listedNames() + chosenNames();
    names.removeDuplicates();
    m_chosen.clear();
    setSheet(QString());
    store(m_isForTerminals ? "terminalApps" : "ignoredApps", names);
    showOffered();
    Q_EMIT changed();
}

} // namespace vellumry
