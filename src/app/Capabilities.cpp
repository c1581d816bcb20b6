// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/Capabilities.h"

#include "linux/sound/ThemeSounds.h"
#include "linux/x11/windows/WaylandSession.h"
#include "linux/x11/windows/XWindowProperties.h"
#include "linux/x11/windows/XlibConnection.h"
#include "reader/LanguageData.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QFileInfo>

namespace vellumry::capabilities {

namespace {

constexpr int busMilliseconds = 1000;

Capability extension(const char* name, bool isThere, const char* without) {
    return isThere ? Capability::found(QString::fromLatin1(name))
                   : Capability::missing(QString::fromLatin1(name),
                                         QStringLiteral("the X server lacks it: ") + QString::fromLatin1(without));
}

Capability windowManager(XlibConnection& connection) {
    const QString name = QStringLiteral("window manager");
    const auto windows = windowproperties::numbers(connection, connection.root(), "_NET_SUPPORTING_WM_CHECK");
    if (windows.empty() || !windowproperties::exists(connection, windows.front()))
        return Capability::without(name,
                                   QStringLiteral("none, or one that does not say so: the focus is handled by us"));
    return Capability::found(name, windowproperties::text(connection, windows.front(), "_NET_WM_NAME"));
}

QDBusMessage asked(const QDBusConnection& bus, const QString& method, const QVariantList& arguments) {
    QDBusMessage call =
        QDBusMessage::createMethodCall(QStringLiteral("org.freedesktop.DBus"), QStringLiteral("/org/freedesktop/DBus"),
                                       QStringLiteral("org.freedesktop.DBus"), method);
    call.setArguments(arguments);
    return bus.call(call, QDBus::Block, busMilliseconds);
}

/// Whether the service runs or the bus would start it; nothing is started here.
Capability keyring(const QDBusConnection& bus) {
    const QString name = QStringLiteral("keyring");
    const QString service = QStringLiteral("org.freedesktop.secrets");
    const auto without = [&name](const char* why) {
        return Capability::missing(name, QString::fromLatin1(why) + QStringLiteral(": the history is in memory only"));
    };
    if (!bus.isConnected())
        return without("no session bus");
    if (asked(bus, QStringLiteral("NameHasOwner"), {service}).arguments().value(0).toBool())
        return Capability::found(name, QStringLiteral("a Secret Service runs"));
    const QDBusMessage startable = asked(bus, QStringLiteral("ListActivatableNames"), {});
    if (startable.arguments().value(0).toStringList().contains(service))
        return Capability::found(name, QStringLiteral("a Secret Service is started when it is needed"));
    return without("no Secret Service on the bus");
}

Capability tray(const QDBusConnection& bus) {
    const QString name = QStringLiteral("tray");
    const QString watcher = QStringLiteral("org.kde.StatusNotifierWatcher");
    if (bus.isConnected() && asked(bus, QStringLiteral("NameHasOwner"), {watcher}).arguments().value(0).toBool())
        return Capability::found(name);
    return Capability::without(name, QStringLiteral("no StatusNotifierWatcher: the menu is reached from the panel, or "
                                                    "in a tray of the older kind"));
}

Capability reader(const QString& path) {
    const QString name = QStringLiteral("picture reader");
    if (QFileInfo(path).isExecutable())
        return Capability::found(name);
    return Capability::missing(name, QStringLiteral("vellumry-reader does not stand beside the program: no thumbnails, "
                                                    "no text of pictures"));
}

Capability languages() {
    const QString name = QStringLiteral("text recognition");
    for (const QString& folder : languagedata::folders()) {
        QStringList found = languagedata::languagesIn(folder);
        found.removeAll(QStringLiteral("osd"));
        found.removeAll(QStringLiteral("equ"));
        if (!found.isEmpty())
            return Capability::found(name, QStringLiteral("language data: ") + found.join(QStringLiteral(", ")));
    }
    return Capability::without(name, QStringLiteral("no language data of Tesseract: pictures are not read"));
}

Capability sounds() {
    const QString name = QStringLiteral("sounds");
    if (ThemeSounds::hasLibrary())
        return Capability::found(name, QStringLiteral("libcanberra"));
    return Capability::without(name, QStringLiteral("libcanberra is not installed: pastes are silent"));
}

} // namespace

std::vector<Capability> ofDisplay(const OrReason<std::shared_ptr<XlibConnection>>& connection) {
    const QString name = QStringLiteral("X11 display");
    if (!connection)
        return {Capability::missing(name, connection.error().text)
                    .serving({Feature::capture, Feature::shortcuts, Feature::paste, Feature::stack})};
    XlibConnection& server = **connection;
    const bool isBridge = isWaylandSession(server);
    return {Capability::found(name, isBridge ? QStringLiteral("Xwayland: what native Wayland programs copy may not "
                                                              "arrive, and keys are pressed in X11 programs only")
                                             : QString()),
            extension("XTest", server.hasTestExtension(), "clips are copied, the paste key is yours to press")
                .serving({Feature::paste}),
            extension("XInput2", server.inputExtension().has_value(), "no shortcuts, no Paste Stack")
                .serving({Feature::shortcuts, Feature::stack}),
            extension("XFixes", server.fixesEvents().has_value(), "the clipboard cannot be watched")
                .serving({Feature::capture}),
            extension("XKB", server.keyboardEvents().has_value(), "a change of layout is not noticed"),
            windowManager(server)};
}

std::vector<Capability> ofSession(const QString& readerPath) {
    const QDBusConnection bus = QDBusConnection::sessionBus();
    const QString busName = QStringLiteral("session bus");
    return {bus.isConnected() ? Capability::found(busName)
                              : Capability::missing(busName, QStringLiteral("none: a second start is told by a lock "
                                                                            "alone, no actions from outside")),
            keyring(bus).serving({Feature::keyring}),
            tray(bus).serving({Feature::tray}),
            reader(readerPath).serving({Feature::reading}),
            languages().serving({Feature::reading}),
            sounds()};
}

} // namespace vellumry::capabilities
