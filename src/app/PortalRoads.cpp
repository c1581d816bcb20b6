// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/PortalRoads.h"

#include "linux/portal/PortalBus.h"
#include "linux/portal/PortalHotKeys.h"
#include "linux/portal/PortalKeyboard.h"
#include "shell/Platform.h"

#include <algorithm>
#include <utility>

namespace vellumry {

namespace {

/// The portal may have to be started, with the session still busy; a desktop whose portal is slower than this is taken
/// to have none.
constexpr std::chrono::milliseconds surveyTime{1000};
const QString keysName = QStringLiteral("hot keys");
const QString pasteName = QStringLiteral("paste key");
const QString tokenKey = QStringLiteral("pasteKeyToken");
const QString refusedKey = QStringLiteral("refusedShortcuts");

/// Elsewhere the portals that are of use to us are not known to be there, and none is started to find out.
bool isPortalDesktop() {
    const QStringList names = qEnvironmentVariable("XDG_CURRENT_DESKTOP").split(u':');
    return names.contains(u"GNOME", Qt::CaseInsensitive) || names.contains(u"KDE", Qt::CaseInsensitive);
}

PortalSurvey survey() {
    using enum PortalSurvey::Start;
    PortalSurvey found =
        PortalSurvey::take(QDBusConnection::sessionBus(), isPortalDesktop() ? wanted : unwanted, surveyTime);
    // Its portal holds no keys: the user has to bind them in its configuration all the same, where our own lines do
    // without the portal.
    if (qEnvironmentVariable("XDG_CURRENT_DESKTOP").startsWith(u"Hyprland", Qt::CaseInsensitive))
        found.globalShortcuts = 0;
    return found;
}

/// Lines about what the display server lacks and a portal has.
void drop(std::vector<Capability>& lines, const QString& name, Feature feature) {
    std::erase_if(lines, [&name](const Capability& line) { return line.name == name && !line.isFound; });
    for (Capability& line : lines) {
        if (!line.isFound)
            std::erase(line.features, feature);
    }
}

} // namespace

PortalRoads::PortalRoads(Platform& platform)
    : m_platform(platform)
    , m_survey(survey()) {
    if (m_survey == PortalSurvey())
        return;
    const QDBusConnection bus = portalbus::connection();
    portalbus::introduce(bus, surveyTime);
    PortalLink::Options options;
    options.isIntroduced = true;
    m_link = std::make_shared<PortalLink>(bus, options);
}

PortalRoads::~PortalRoads() = default;

void PortalRoads::report(std::function<Capability()> capability) const {
    m_platform.standing = [before = m_platform.standing, capability = std::move(capability)] {
        std::vector<Capability> lines = before();
        lines.push_back(capability());
        return lines;
    };
}

std::unique_ptr<HotKeyRegistrar> PortalRoads::hotKeys(CharactersFor charactersFor) const {
    if (m_survey.globalShortcuts == 0)
        return nullptr;
    UserDefaults* defaults = m_platform.defaults.get();
    PortalHotKeys::Options options;
    options.charactersFor = std::move(charactersFor);
    options.refused = [defaults] { return defaults->stringArray(refusedKey).value_or(QStringList()); };
    options.refuse = [defaults](const QStringList& names) { defaults->setObject(refusedKey, names); };
    auto hotKeys = std::make_unique<PortalHotKeys>(m_link, std::move(options));
    drop(m_platform.capabilities, keysName, Feature::shortcuts);
    report([keys = hotKeys.get()] { return keys->capability(); });
    return hotKeys;
}

std::unique_ptr<KeyInjector> PortalRoads::keyboard() const {
    if (m_survey.remoteDesktop == 0)
        return nullptr;
    UserDefaults* defaults = m_platform.defaults.get();
    PortalKeyboard::Options options;
    options.token = [defaults] { return defaults->string(tokenKey).value_or(QString()); };
    options.keepToken = [defaults](const QString& token) {
        if (token.isEmpty())
            defaults->removeObject(tokenKey);
        else
            defaults->setObject(tokenKey, token);
    };
    auto keyboard = std::make_unique<PortalKeyboard>(m_link, std::move(options));
    drop(m_platform.capabilities, pasteName, Feature::paste);
    report([keyboard = keyboard.get()] { return keyboard->capability(); });
    return keyboard;
}

void PortalRoads::complete(std::vector<Capability>& lines) {
    const auto isLacking = [&lines](Feature feature, const QString& name) {
        return std::ranges::any_of(lines, [&](const Capability& line) {
            return !line.isFound && (line.name == name || std::ranges::count(line.features, feature) > 0);
        });
    };
    const bool lacksKeys = isLacking(Feature::shortcuts, keysName);
    const bool lacksPaste = isLacking(Feature::paste, pasteName);
    if (!lacksKeys && !lacksPaste)
        return;
    const PortalSurvey found = survey();
    if (lacksKeys && found.globalShortcuts != 0) {
        drop(lines, keysName, Feature::shortcuts);
        lines.push_back(Capability::found(keysName, QStringLiteral("global shortcuts portal")));
    }
    if (lacksPaste && found.remoteDesktop != 0) {
        drop(lines, pasteName, Feature::paste);
        lines.push_back(Capability::found(pasteName, QStringLiteral("remote desktop portal, once it is allowed")));
    }
}

} // namespace vellumry
