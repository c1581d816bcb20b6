// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/PortalRoads.h"

#include "linux/portal/DeferredHotKeys.h"
#include "linux/portal/PortalHotKeys.h"
#include "linux/portal/PortalKeyboard.h"
#include "shell/Platform.h"

#include <QPointer>
#include <algorithm>
#include <utility>

namespace vellumry {

namespace {

/// For a report, which a user waits for: the portal may have to be started.
constexpr std::chrono::milliseconds reportTime{1000};
/// For the start: a portal that runs answers within a millisecond; one that does not has nothing.
constexpr std::chrono::milliseconds startTime{200};
const QString keysName = QStringLiteral("hot keys");
const QString pasteName = QStringLiteral("paste key");
const QString tokenKey = QStringLiteral("pasteKeyToken");
const QString refusedKey = QStringLiteral("refusedShortcuts");

/// Elsewhere the portals that are of use to us are not known to be there, and none is started to find out.
bool isPortalDesktop() {
    const QStringList names = qEnvironmentVariable("XDG_CURRENT_DESKTOP").split(u':');
    return names.contains(u"GNOME", Qt::CaseInsensitive) || names.contains(u"KDE", Qt::CaseInsensitive);
}

/// Hyprland's portal holds no keys: the user has to bind them in its configuration all the same, where our own lines do
/// without the portal. sway and labwc have no such portal: one that answers there is another desktop's, installed
/// beside theirs, and gives no shortcuts.
bool areKeysIdle() {
    const QStringList names = qEnvironmentVariable("XDG_CURRENT_DESKTOP").split(u':');
    const auto isThere = [&names](const char* name) {
        return names.contains(QLatin1String(name), Qt::CaseInsensitive);
    };
    return isThere("Hyprland") || isThere("sway") || isThere("labwc");
}

PortalSurvey withoutIdleOnes(PortalSurvey found) {
    if (areKeysIdle())
        found.globalShortcuts = 0;
    return found;
}

PortalSurvey survey(std::chrono::milliseconds limit) {
    using enum PortalSurvey::Start;
    return withoutIdleOnes(
        PortalSurvey::take(QDBusConnection::sessionBus(), isPortalDesktop() ? wanted : unwanted, limit));
}

/// Takes out the lines about what the display server lacks and a portal has. The last one that was only about it.
std::optional<Capability> drop(std::vector<Capability>& lines, const QString& name, Feature feature) {
    std::optional<Capability> dropped;
    std::erase_if(lines, [&](const Capability& line) {
        const bool isIt = line.name == name && !line.isFound;
        if (isIt)
            dropped = line;
        return isIt;
    });
    for (Capability& line : lines) {
        if (!line.isFound)
            std::erase(line.features, feature);
    }
    return dropped;
}

Capability unanswered(const QString& name, Feature feature) {
    return Capability::missing(name, QStringLiteral("the desktop's portal has not answered yet")).serving({feature});
}

Capability none(const QString& name, Feature feature) {
    return Capability::missing(name, QStringLiteral("the desktop has no portal for it")).serving({feature});
}

} // namespace

struct PortalRoads::Found {
    std::shared_ptr<PortalLink> link;
    std::optional<PortalSurvey> survey{}; ///< unset until the portal has answered
    std::vector<std::function<void(const PortalSurvey&)>> waiting{};
};

PortalRoads::PortalRoads(Platform& platform, const std::shared_ptr<PortalIntroduction>& introduction, Wants wants)
    : m_platform(platform) {
    if (!wants.paste && (!wants.keys || areKeysIdle()))
        return;
    std::optional<PortalSurvey> known;
    if (!isPortalDesktop())
        known = survey(startTime);
    else if (!PortalSurvey::canBeThere(QDBusConnection::sessionBus(), PortalSurvey::Start::wanted))
        known = PortalSurvey();
    if (known == PortalSurvey())
        return;
    m_found = std::make_shared<Found>(Found{std::make_shared<PortalLink>(introduction, PortalLink::Options()), known});
    if (!known)
        ask(m_found);
}

QCoro::Task<void> PortalRoads::ask(std::weak_ptr<Found> found) {
    auto asking = found.lock()->link->survey();
    const PortalSurvey answer = co_await asking;
    const auto known = found.lock();
    if (!known)
        co_return;
    known->survey = withoutIdleOnes(answer);
    for (const auto& told : std::exchange(known->waiting, {}))
        told(*known->survey);
}

PortalRoads::~PortalRoads() = default;

void PortalRoads::report(std::function<Capability()> capability) const {
    m_platform.standing = [before = m_platform.standing, capability = std::move(capability)] {
        std::vector<Capability> lines = before();
        lines.push_back(capability());
        return lines;
    };
}

std::unique_ptr<HotKeyRegistrar> PortalRoads::hotKeys(CharactersFor charactersFor, MakeHotKeys otherwise) const {
    if (!m_found || (m_found->survey && m_found->survey->globalShortcuts == 0))
        return otherwise();
    UserDefaults* defaults = m_platform.defaults.get();
    PortalHotKeys::Options options;
    options.charactersFor = std::move(charactersFor);
    options.refused = [defaults] { return defaults->stringArray(refusedKey).value_or(QStringList()); };
    options.refuse = [defaults](const QStringList& names) { defaults->setObject(refusedKey, names); };
    auto deferred = std::make_unique<DeferredHotKeys>();
    const auto chosen = std::make_shared<QPointer<PortalHotKeys>>();
    const auto choose = [link = m_found->link, keys = QPointer(deferred.get()), chosen, options = std::move(options),
                         otherwise = std::move(otherwise)](const PortalSurvey& found) {
        if (!keys)
            return;
        if (found.globalShortcuts == 0) {
            keys->choose(otherwise());
            return;
        }
        auto portalKeys = std::make_unique<PortalHotKeys>(link, options);
        *chosen = portalKeys.get();
        keys->choose(std::move(portalKeys));
    };
    if (m_found->survey)
        choose(*m_found->survey);
    else
        m_found->waiting.push_back(choose);
    const auto dropped = drop(m_platform.capabilities, keysName, Feature::shortcuts);
    report([found = m_found, chosen, dropped] {
        if (!found->survey)
            return unanswered(keysName, Feature::shortcuts);
        return *chosen ? (*chosen)->capability() : dropped.value_or(none(keysName, Feature::shortcuts));
    });
    return deferred;
}

std::unique_ptr<KeyInjector> PortalRoads::keyboard() const {
    if (!m_found || (m_found->survey && m_found->survey->remoteDesktop == 0))
        return nullptr;
    UserDefaults* defaults = m_platform.defaults.get();
    PortalKeyboard::Options options;
    options.isThere = [found = m_found] { return !found->survey || found->survey->remoteDesktop != 0; };
    options.token = [defaults] { return defaults->string(tokenKey).value_or(QString()); };
    options.keepToken = [defaults](const QString& token) {
        if (token.isEmpty())
            defaults->removeObject(tokenKey);
        else
            defaults->setObject(tokenKey, token);
    };
    auto keyboard = std::make_unique<PortalKeyboard>(m_found->link, std::move(options));
    const auto dropped = drop(m_platform.capabilities, pasteName, Feature::paste);
    report([keyboard = keyboard.get(), dropped] {
        return keyboard->isThere() ? keyboard->capability() : dropped.value_or(none(pasteName, Feature::paste));
    });
    return keyboard;
}

void PortalRoads::complete(std::vector<Capability>& lines) {
    const auto isLacking = [&lines](Feature feature, const QString& name) {
        return std::ranges::any_of(lines, [&](const Capability& line) {
            return !line.isFound && (line.name == name || std::ranges::count(line.features, feature) > 0);
        });
    };
    const bool lacksKeys = isLacking(Feature::shortcuts, keysName) && !areKeysIdle();
    const bool lacksPaste = isLacking(Feature::paste, pasteName);
    if (!lacksKeys && !lacksPaste)
        return;
    const PortalSurvey found = survey(reportTime);
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
