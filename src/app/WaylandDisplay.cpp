// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/WaylandDisplay.h"

#include "app/CompositorReturn.h"
#include "app/GnomeDisplay.h"
#include "app/PortalRoads.h"
#include "linux/accessibility/PasswordFocus.h"
#include "linux/applications/DesktopEntries.h"
#include "linux/applications/XdgInstalledApplications.h"
#include "linux/gnome/ShellExtension.h"
#include "linux/wayland/WaylandSurvey.h"
#include "linux/wayland/keys/BoundElsewhere.h"
#include "linux/wayland/keys/CompositorKeys.h"
#include "linux/wayland/keys/GlobalAccelHotKeys.h"
#include "linux/wayland/keys/WaylandKeyboardLayout.h"
#include "linux/wayland/keys/WaylandPasteKeys.h"
#include "linux/wayland/keys/WaylandPasteTarget.h"
#include "linux/wayland/selection/WaylandPasteboard.h"
#include "linux/wayland/windows/CopiedWindow.h"
#include "linux/wayland/windows/LayerPanelSurface.h"
#include "linux/wayland/windows/WaylandFrontmostApplication.h"
#include "linux/wayland/windows/WaylandIdleTime.h"
#include "settings/Preferences.h"
#include "shell/Platform.h"

namespace vellumry::waylanddisplay {

namespace {

/// By what needs no question of the user, if there is such a thing.
void addKeys(Platform& platform, const std::shared_ptr<PortalIntroduction>& introduction,
             const std::shared_ptr<WaylandKeymap>& keymap, bool isPlasma, std::unique_ptr<KeyInjector>& injector) {
    const QDBusConnection bus = QDBusConnection::sessionBus();
    if (isPlasma && GlobalAccelHotKeys::isThere(bus))
        platform.hotKeys = std::make_unique<GlobalAccelHotKeys>(bus, keymap);
    if (platform.hotKeys && injector)
        return;
    const PortalRoads portals(platform, introduction, {!platform.hotKeys, !injector});
    if (!platform.hotKeys)
        platform.hotKeys = portals.hotKeys(
            [keymap](KeyCode keyCode) {
                const auto evdevCode = keymap->positions().evdevCode(keyCode);
                return evdevCode ? keymap->charactersFor(*evdevCode) : std::nullopt;
            },
            [] { return std::make_unique<BoundElsewhere>(ownBindingsOfSession()); });
    if (!injector)
        injector = portals.keyboard();
}

} // namespace

bool isWanted() {
    const QString chosen = qEnvironmentVariable("QT_QPA_PLATFORM");
    if (!chosen.isEmpty() && !chosen.startsWith(u"wayland"))
        return false;
    const auto survey = WaylandSurvey::take();
    return survey && (survey->isEnough() || gnomedisplay::hasExtension());
}

std::vector<Capability> capabilities() {
    const auto survey = WaylandSurvey::take();
    if (survey && !survey->isEnough() && gnomedisplay::isGnome())
        return gnomedisplay::capabilities();
    return survey ? survey->capabilities() : std::vector<Capability>();
}

/// One connection for keys, focus and windows; the pasteboard has its own, with its own thread, and Qt one for ours.
std::optional<Reason> add(Platform& platform, const std::shared_ptr<PortalIntroduction>& introduction) {
    const auto survey = WaylandSurvey::take();
    if (!survey)
        return survey.error();
    if (!survey->isEnough())
        return gnomedisplay::add(platform);
    platform.capabilities = survey->capabilities();
    auto created = WaylandPasteboard::create({});
    if (!created)
        return created.error();
    const auto opened = WaylandConnection::create();
    if (!opened)
        return opened.error();
    std::unique_ptr<WaylandPasteboard> pasteboard = std::move(*created);
    const std::shared_ptr<WaylandConnection>& connection = *opened;
    compositorreturn::follow(*connection);
    const auto keymap = std::make_shared<WaylandKeymap>(connection);
    const std::shared_ptr<WaylandWindows> windows = WaylandWindows::create(connection);
    const auto focus = std::make_shared<WaylandFocus>(windows);
    WaylandPasteTarget::Options options;
    options.offerAsPrimary = [board = pasteboard.get()] { return board->offerAsPrimary(); };
    options.terminalApps = [defaults = platform.defaults.get()] { return Preferences::terminalApps(*defaults); };
    options.isPasswordField = [password = std::make_shared<PasswordFocus>()](qint64 process) {
        return password->isIn(process);
    };
    platform.pasteKeys = std::make_unique<WaylandPasteKeys>(pasteboard->thread());
    pasteboard->setOwnerWatch(std::make_shared<CopiedWindow>(windows));
    platform.pasteboard = std::move(pasteboard);
    const auto entries = std::make_shared<DesktopEntries>();
    platform.frontmost = std::make_unique<WaylandFrontmostApplication>(windows, entries);
    platform.applications = std::make_unique<XdgInstalledApplications>(entries, iconFoldersOfSession());
    std::unique_ptr<KeyInjector> injector = makeCompositorKeys(connection, keymap);
    addKeys(platform, introduction, keymap, survey->isPlasma, injector);
    platform.keyboard = std::make_unique<WaylandKeyboardLayout>(keymap);
    platform.pasteTarget = std::make_unique<WaylandPasteTarget>(focus, keymap, std::move(injector), std::move(options));
    platform.idleSeconds = [idle = std::make_shared<WaylandIdleTime>(connection)] { return idle->seconds(); };
    platform.panelSurface = std::make_unique<LayerPanelSurface>(focus);
    return std::nullopt;
}

std::unique_ptr<DesktopExtension> extension() {
    const auto survey = WaylandSurvey::take();
    if (!survey || survey->isEnough() || !gnomedisplay::isGnome())
        return nullptr;
    if (gnomedisplay::hasExtension() || !ShellExtension::isInstalled())
        return nullptr;
    return std::make_unique<ShellExtension>();
}

} // namespace vellumry::waylanddisplay
