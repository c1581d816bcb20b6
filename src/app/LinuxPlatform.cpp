// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/LinuxPlatform.h"

#include "app/Capabilities.h"
#include "app/WaylandDisplay.h"
#include "app/X11Display.h"
#include "foundation/Logging.h"
#include "foundation/UnusedMemory.h"
#include "linux/accessibility/ActiveDescendant.h"
#include "linux/applications/DesktopOpener.h"
#include "linux/files/InotifyFolderWatching.h"
#include "linux/files/PosixFileBookmarks.h"
#include "linux/keyring/KeychainKeyStore.h"
#include "linux/look/LinuxDesktopLook.h"
#include "linux/peers/LinuxPeerHistories.h"
#include "linux/portal/PortalBus.h"
#include "linux/portal/PortalIntroduction.h"
#include "linux/process/AppImage.h"
#include "linux/process/DBusSingleInstance.h"
#include "linux/process/MemoryReturn.h"
#include "linux/process/TimerfdDateTimer.h"
#include "linux/process/XdgLoginItem.h"
#include "linux/reader/ReaderImageCodec.h"
#include "linux/reader/ReaderTextReader.h"
#include "linux/sound/ThemeSounds.h"
#include "linux/tray/SessionTray.h"
#include "linux/tray/StatusNotifierTray.h"
#include "linux/update/AppImageUpdater.h"
#include "linux/x11/windows/XSettingsLook.h"
#include "linux/x11/windows/XlibConnection.h"
#include "settings/Preferences.h"
#include "shell/Ending.h"
#include "views/SymbolProvider.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QStandardPaths>

namespace vellumry {

namespace {

/// How long the process is visible to a portal that hangs; one that runs answers within a millisecond.
constexpr std::chrono::milliseconds portalTime{1000};

/// With what the settings manager of an X server says.
class X11DesktopLook : public LinuxDesktopLook {
public:
    X11DesktopLook(const Places& places, std::shared_ptr<XlibConnection> connection)
        : LinuxDesktopLook(places)
        , m_settings(std::move(connection), [this](const SaidLook& said) { setXSettings(said); }) {}

private:
    XSettingsLook m_settings;
};

/// `connection` is that of an X11 session, null in another one, where the display's scale does not hold that of texts.
void addLook(Platform& platform, std::shared_ptr<XlibConnection> connection,
             std::shared_ptr<PortalIntroduction> introduction) {
    LinuxDesktopLook::Places places{std::move(introduction), platform.folders.get()};
    places.configFolder = QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation);
    places.isPlasma = qEnvironmentVariable("XDG_CURRENT_DESKTOP").split(u':').contains(QLatin1String("KDE"));
    places.scalesText = connection == nullptr;
    if (connection)
        platform.look = std::make_unique<X11DesktopLook>(places, std::move(connection));
    else
        platform.look = std::make_unique<LinuxDesktopLook>(places);
}

std::unique_ptr<Opener> openerIn(const QProcessEnvironment& environment) {
    return std::make_unique<DesktopOpener>(QDBusConnection::sessionBus(),
                                           [environment](const QString& program, const QStringList& arguments) {
                                               QProcess process;
                                               process.setProgram(program);
                                               process.setArguments(arguments);
                                               process.setProcessEnvironment(environment);
                                               return process.startDetached();
                                           });
}

/// Only an AppImage of the user's own replaces itself: everything else belongs to a package manager.
void addUpdater(Platform& platform) {
#ifndef NDEBUG
    platform.updateConfiguration.isDebugBuild = true;
#endif
    platform.updateConfiguration.feedURL = QUrl(QStringLiteral(VELLUMRY_FEED_URL), QUrl::StrictMode);
    platform.updateConfiguration.publicKey = QStringLiteral(VELLUMRY_UPDATE_KEY);
    const QString program = runningAppImage();
    if (!platform.updateConfiguration.allowsUpdates() || !ProgramFile(program).isReplaceable())
        return;
    AppImageUpdater::Options options;
    options.program = program;
    options.version = QCoreApplication::applicationVersion();
    options.feed = platform.updateConfiguration.feedURL;
    options.publicKey = QByteArray::fromBase64(platform.updateConfiguration.publicKey.trimmed().toLatin1());
    options.defaults = platform.defaults.get();
    options.endProgram = &endProgram;
    platform.updater = std::make_unique<AppImageUpdater>(std::move(options));
}

} // namespace

QString readerPath() {
    const QString here = QCoreApplication::applicationDirPath();
    // Beside the program in a build folder; where both are installed, apart from what users start.
    const QString installed = here + QStringLiteral("/../libexec/vellumry/vellumry-reader");
    return QFile::exists(installed) ? QDir::cleanPath(installed) : here + QStringLiteral("/vellumry-reader");
}

OrReason<Platform> makeLinuxPlatform(DisplayKind display, const QProcessEnvironment& given) {
    Platform platform;
    platform.home = QDir::homePath();
    platform.dataHome = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation);
    const QString settings = QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation);
    platform.settingsFolder = settings + QStringLiteral("/Vellumry");
    platform.defaults = std::make_unique<UserDefaults>(platform.settingsFolder + QStringLiteral("/Vellumry.conf"));
    platform.isConfined = QFile::exists(QStringLiteral("/.flatpak-info")) || qEnvironmentVariableIsSet("SNAP");
    // The portal's settings say how windows are to look.
    const auto introduction = std::make_shared<PortalIntroduction>(portalbus::connection(), portalTime);
    introduction->begin();
    std::shared_ptr<XlibConnection> connection;
    if (auto problem = display == DisplayKind::wayland ? waylanddisplay::add(platform, introduction)
                                                       : x11display::add(platform, introduction, connection))
        return std::unexpected(std::move(*problem));
    platform.singleInstance = std::make_unique<DBusSingleInstance>();
    platform.sounds = std::make_unique<ThemeSounds>();
    platform.opener = openerIn(given);
    platform.statusItem = std::make_unique<SessionTray>(std::make_unique<StatusNotifierTray>(&symbolImage),
                                                        connection ? x11display::classicIcon(connection) : nullptr);
    platform.keyStore = std::make_unique<KeychainKeyStore>();
    const QString reader = readerPath();
    platform.findCapabilities = [reader] { return capabilities::ofSession(reader); };
    platform.images = std::make_unique<ReaderImageCodec>(reader);
    platform.textReader = std::make_unique<ReaderTextReader>(reader);
    if (auto timer = TimerfdDateTimer::create())
        platform.expiryTimer = std::move(*timer);
    else
        qCWarning(logging::process).noquote() << "secrets expire less punctually:" << timer.error().text;
    platform.bookmarks = std::make_unique<PosixFileBookmarks>();
    platform.folders = std::make_unique<InotifyFolderWatching>();
    addLook(platform, connection, introduction);
    platform.peers = std::make_unique<LinuxPeerHistories>();
    // A confined package sees an autostart folder of its own.
    if (!platform.isConfined) {
        auto loginItem = std::make_unique<XdgLoginItem>();
        loginItem->follow();
        platform.loginItem = std::move(loginItem);
    }
    addUpdater(platform);
    platform.returnMemory = [] {
        giveBackUnusedMemory();
        returnCode();
    };
    platform.tellActiveRow = &tellActiveDescendant;
    return platform;
}

} // namespace vellumry
