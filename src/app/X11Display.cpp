// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/X11Display.h"

#include "app/Capabilities.h"
#include "app/PortalRoads.h"
#include "app/WaylandDisplay.h"
#include "linux/accessibility/PasswordFocus.h"
#include "linux/applications/DesktopEntries.h"
#include "linux/applications/XdgInstalledApplications.h"
#include "linux/tray/TrayPictures.h"
#include "linux/x11/drag/X11DragSource.h"
#include "linux/x11/keys/X11HotKeys.h"
#include "linux/x11/keys/X11KeyboardLayout.h"
#include "linux/x11/keys/X11PasteKeys.h"
#include "linux/x11/keys/X11PasteTarget.h"
#include "linux/x11/selection/QtClipboardNotices.h"
#include "linux/x11/selection/X11Pasteboard.h"
#include "linux/x11/windows/WaylandSession.h"
#include "linux/x11/windows/X11ClassicIcon.h"
#include "linux/x11/windows/X11Focus.h"
#include "linux/x11/windows/X11FrontmostApplication.h"
#include "linux/x11/windows/X11IdleTime.h"
#include "linux/x11/windows/X11PanelSurface.h"
#include "linux/x11/windows/XlibConnection.h"
#include "settings/Preferences.h"
#include "shell/Platform.h"
#include "views/SymbolProvider.h"

#include <QCoreApplication>
#include <QTimer>
#include <algorithm>
#include <iterator>

namespace vellumry::x11display {

namespace {

QImage trayMark(const QSize& size) {
    return symbolImage(QStringLiteral("Logo"), QColor::fromRgb(TrayPictures::colour), size);
}

/// Returns what presses keys for another program, where a portal does.
std::unique_ptr<KeyInjector> addHotKeys(Platform& platform, const std::shared_ptr<PortalIntroduction>& introduction,
                                        const std::shared_ptr<XlibConnection>& connection) {
    const auto ownHotKeys = [connection] { return std::make_unique<X11HotKeys>(connection); };
    if (!platform.isWaylandSession) {
        platform.hotKeys = ownHotKeys();
        return nullptr;
    }
    const PortalRoads portals(platform, introduction, PortalRoads::Wants());
    platform.hotKeys = portals.hotKeys(
        [keyboard = platform.keyboard.get()](KeyCode key) { return keyboard->charactersFor(key); }, ownHotKeys);
    return portals.keyboard();
}

/// `everywhere` may be null.
void addPasting(Platform& platform, X11Pasteboard* board, const std::shared_ptr<XlibConnection>& connection,
                const std::shared_ptr<X11Focus>& focus, std::unique_ptr<KeyInjector> everywhere) {
    const auto injected = std::make_shared<InjectedPresses>();
    X11PasteTarget::Options options;
    options.offerAsPrimary = [board] { return board->offerAsPrimary(); };
    options.terminalApps = [defaults = platform.defaults.get()] { return Preferences::terminalApps(*defaults); };
    options.isPasswordField = [password = std::make_shared<PasswordFocus>()](qint64 process) {
        return password->isIn(process);
    };
    options.willPress = [injected] { injected->announce(std::chrono::steady_clock::now()); };
    options.everywhere = std::move(everywhere);
    auto target = std::make_unique<X11PasteTarget>(connection, focus, std::move(options));

    X11PasteKeys::Options keys;
    keys.wasServed = [board] { return board->wasServed(); };
    keys.offerAsPrimary = [board] { (void)board->offerAsPrimary(); };
    keys.wasListed = [board] { return board->wasListed(); };
    keys.injected = injected;
    keys.looksFirst = [front = target.get()] { return front->looksFirst(); };
    platform.pasteTarget = std::move(target);
    platform.pasteKeys = std::make_unique<X11PasteKeys>(std::move(keys));
}

void addWindows(Platform& platform, const std::shared_ptr<XlibConnection>& connection,
                const std::shared_ptr<X11Focus>& focus) {
    const auto entries = std::make_shared<DesktopEntries>();
    platform.frontmost = std::make_unique<X11FrontmostApplication>(connection, entries);
    platform.applications = std::make_unique<XdgInstalledApplications>(entries, iconFoldersOfSession());
    platform.idleSeconds = [idle = std::make_shared<X11IdleTime>(connection)] { return idle->seconds(); };
    platform.panelSurface = std::make_unique<X11PanelSurface>(
        connection, focus, platform.isWaylandSession ? std::make_unique<WindowManagerFence>(connection) : nullptr);
    platform.drags = std::make_unique<X11DragSource>();
}

} // namespace

std::optional<Reason> add(Platform& platform, const std::shared_ptr<PortalIntroduction>& introduction,
                          std::shared_ptr<XlibConnection>& connection) {
    auto created = X11Pasteboard::create(qgetenv("DISPLAY"));
    if (!created)
        return created.error();
    const auto opened = XlibConnection::create();
    platform.capabilities = capabilities::ofDisplay(opened);
    // Why not natively.
    std::ranges::copy(waylanddisplay::capabilities(), std::back_inserter(platform.capabilities));
    if (!opened)
        return opened.error();
    connection = *opened;
    platform.isWaylandSession = isWaylandSession(*connection);
    platform.extension = waylanddisplay::extension();
    platform.keyboard = std::make_unique<X11KeyboardLayout>(connection);
    const auto focus = std::make_shared<X11Focus>(connection);
    addPasting(platform, created->get(), connection, focus, addHotKeys(platform, introduction, connection));
    platform.pasteboard = std::move(*created);
    addWindows(platform, connection, focus);
    QTimer::singleShot(0, QCoreApplication::instance(), &stopQtClipboardNotices);
    return std::nullopt;
}

std::unique_ptr<ClassicIcon> classicIcon(const std::shared_ptr<XlibConnection>& connection) {
    return std::make_unique<X11ClassicIcon>(connection, &trayMark);
}

} // namespace vellumry::x11display
