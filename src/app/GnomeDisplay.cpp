// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/GnomeDisplay.h"

#include "app/CompositorReturn.h"
#include "linux/accessibility/PasswordFocus.h"
#include "linux/applications/DesktopEntries.h"
#include "linux/applications/XdgInstalledApplications.h"
#include "linux/gnome/GnomeIdleTime.h"
#include "linux/gnome/ShellHotKeys.h"
#include "linux/gnome/ShellKeyInjector.h"
#include "linux/gnome/ShellNames.h"
#include "linux/gnome/ShellPanelSurface.h"
#include "linux/gnome/ShellSelection.h"
#include "linux/gnome/ShellWindows.h"
#include "linux/wayland/keys/WaylandKeyboardLayout.h"
#include "linux/wayland/keys/WaylandPasteKeys.h"
#include "linux/wayland/keys/WaylandPasteTarget.h"
#include "linux/wayland/selection/WaylandPasteboard.h"
#include "linux/wayland/windows/CopiedWindow.h"
#include "linux/wayland/windows/WaylandFrontmostApplication.h"
#include "settings/Preferences.h"
#include "shell/Platform.h"

namespace vellumry::gnomedisplay {

bool isGnome() {
    return qEnvironmentVariable("XDG_CURRENT_DESKTOP").split(u':').contains(u"GNOME", Qt::CaseInsensitive);
}

bool hasExtension() {
    return isGnome() && ShellSelection::isThere();
}

std::vector<Capability> capabilities() {
    const QString extension = QStringLiteral("GNOME extension");
    if (!hasExtension())
        return {Capability::missing(
                    extension,
                    QStringLiteral(
                        "off: the paste key, shortcuts everywhere and the panel's place need it, and some copies "
                        "are missed. Switch it on: gnome-extensions enable %1, then start Vellumry again")
                        .arg(QString::fromLatin1(shell::extension)))
                    .serving({Feature::capture, Feature::shortcuts, Feature::paste, Feature::stack})};
    return {Capability::found(QStringLiteral("Wayland display")),
            Capability::found(extension, QString::fromLatin1(shell::extension)),
            Capability::found(QStringLiteral("clipboard"), QStringLiteral("by the extension"))
                .serving({Feature::capture, Feature::stack}),
            Capability::found(QStringLiteral("panel"), QStringLiteral("placed by the extension")),
            Capability::found(QStringLiteral("paste key"), QStringLiteral("pressed by the extension"))
                .serving({Feature::paste}),
            Capability::found(QStringLiteral("windows"), QStringLiteral("told by the extension")),
            Capability::found(QStringLiteral("hot keys"), QStringLiteral("held by the extension"))
                .serving({Feature::shortcuts})};
}

/// One connection for the keyboard map; the pasteboard has its own to the bus, with its own thread, and Qt one for our
/// windows.
std::optional<Reason> add(Platform& platform) {
    platform.capabilities = capabilities();
    auto selection = ShellSelection::create();
    if (!selection)
        return selection.error();
    auto created = WaylandPasteboard::createOn(std::move(*selection));
    if (!created)
        return created.error();
    const auto opened = WaylandConnection::create();
    if (!opened)
        return opened.error();
    compositorreturn::follow(**opened);
    std::unique_ptr<WaylandPasteboard> pasteboard = std::move(*created);
    const auto keymap = std::make_shared<WaylandKeymap>(*opened);
    const auto link = std::make_shared<ShellLink>();
    const std::shared_ptr<WaylandWindows> windows = std::make_shared<ShellWindows>(link);
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
    platform.hotKeys = std::make_unique<ShellHotKeys>(link, keymap);
    platform.keyboard = std::make_unique<WaylandKeyboardLayout>(keymap);
    platform.pasteTarget = std::make_unique<WaylandPasteTarget>(focus, keymap, std::make_unique<ShellKeyInjector>(link),
                                                                std::move(options));
    platform.idleSeconds = [idle = std::make_shared<GnomeIdleTime>()] { return idle->seconds(); };
    platform.panelSurface = std::make_unique<ShellPanelSurface>(link, focus);
    return std::nullopt;
}

} // namespace vellumry::gnomedisplay
