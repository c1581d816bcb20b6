// SPDX-License-Identifier: GPL-3.0-or-later
#include "linux/wayland/WaylandSurvey.h"

#include "linux/process/ActionInterface.h"
#include "linux/process/ProcessHardening.h"
#include "linux/wayland/WaylandPointer.h"
#include "linux/wayland/keys/GlobalAccelHotKeys.h"
#include "platform/desktop/Capability.h"

#include <wayland-client.h>

namespace vellumry {

namespace {

QString desktopName() {
    return qEnvironmentVariable("XDG_CURRENT_DESKTOP").section(u':', 0, 0).toLower();
}

/// Empty when the compositor does not answer.
QStringList globalsOf(wl_display* display) {
    QStringList names;
    const auto registry = owned(wl_display_get_registry(display), &wl_registry_destroy);
    static constexpr wl_registry_listener listener{
        [](void* data, wl_registry*, quint32, const char* interface, quint32) {
            static_cast<QStringList*>(data)->append(QString::fromLatin1(interface));
        },
        [](void*, wl_registry*, quint32) {}};
    wl_registry_add_listener(registry.get(), &listener, &names);
    wl_display_roundtrip(display);
    return names;
}

} // namespace

OwnBindings ownBindingsOfSession() {
    const QString desktop = desktopName();
    QString pattern = QStringLiteral("Ctrl+Super+%1: %2");
    OwnBindings bindings;
    if (desktop == u"sway") {
        bindings.file = QStringLiteral("~/.config/sway/config");
        pattern = QStringLiteral("bindsym Ctrl+Mod4+%1 exec %2");
    } else if (desktop.startsWith(u"labwc")) {
        bindings.file = QStringLiteral("~/.config/labwc/rc.xml");
        pattern = QStringLiteral("<keybind key=\"C-W-%1\"><action name=\"Execute\" command=\"%2\"/></keybind>");
    } else if (desktop == u"hyprland") {
        bindings.file = QStringLiteral("~/.config/hypr/hyprland.conf");
        pattern = QStringLiteral("bind = CTRL SUPER, %1, exec, %2");
    }
    // Configurations name the keys by their lower-case letters, windows of settings show what is on the caps.
    const auto line = [&](const char* key, const char* action) {
        const QString name = QLatin1String(key);
        return pattern.arg(bindings.file.isEmpty() ? name.toUpper() : name, actionCommand(QLatin1String(action)));
    };
    bindings.lines = {line("v", "open-panel"), line("s", "toggle-stack")};
    return bindings;
}

OrReason<WaylandSurvey> WaylandSurvey::take() {
    if (qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY"))
        return std::unexpected(Reason{QStringLiteral("no Wayland session")});
    // What Plasma grants to the program by its desktop file is only shown to a program that it knows.
    const VisibleProcess visible;
    const auto display = owned(wl_display_connect(nullptr), &wl_display_disconnect);
    if (!display)
        return std::unexpected(Reason{QStringLiteral("no Wayland display")});
    const QStringList globals = globalsOf(display.get());
    if (globals.isEmpty())
        return std::unexpected(Reason{QStringLiteral("the compositor does not answer")});
    const auto has = [&globals](const char* interface) { return globals.contains(QLatin1String(interface)); };
    WaylandSurvey survey;
    for (const char* manager : {"zwlr_data_control_manager_v1", "ext_data_control_manager_v1"}) {
        if (has(manager))
            survey.clipboardProtocol = QString::fromLatin1(manager);
    }
    survey.hasClipboard = !survey.clipboardProtocol.isEmpty();
    survey.hasPanels = has("zwlr_layer_shell_v1");
    survey.hasPasteKey = has("org_kde_kwin_fake_input") || has("zwp_virtual_keyboard_manager_v1");
    survey.hasWindows = has("org_kde_plasma_window_management") || has("zwlr_foreign_toplevel_manager_v1");
    survey.isPlasma = has("org_kde_plasma_shell") || desktopName() == u"kde";
    return survey;
}

std::vector<Capability> WaylandSurvey::capabilities() const {
    const auto line = [](bool isThere, const QString& name, const QString& found, const QString& without) {
        return isThere ? Capability::found(name, found) : Capability::missing(name, without);
    };
    const QString permission =
        isPlasma ? QStringLiteral("; Plasma grants it to the installed program, by its desktop file") : QString();
    std::vector<Capability> lines{
        Capability::found(QStringLiteral("Wayland display")),
        line(hasClipboard, QStringLiteral("clipboard"), clipboardProtocol,
             QStringLiteral("the compositor lets no program watch it (no data control)")),
        line(hasPanels, QStringLiteral("panel"), QStringLiteral("layer shell"),
             QStringLiteral("the compositor has no layer shell: no panel above other windows")),
        line(hasPasteKey, QStringLiteral("paste key"), QString(),
             QStringLiteral("the compositor lets us press no keys: clips are copied, the paste key is yours to press") +
                 permission),
        line(hasWindows, QStringLiteral("windows"), QString(),
             QStringLiteral("the compositor does not tell which window is in front: ignored applications are not "
                            "known, terminals get Ctrl+V") +
                 permission)};
    if (isPlasma && GlobalAccelHotKeys::isThere(QDBusConnection::sessionBus())) {
        lines.push_back(Capability::found(QStringLiteral("hot keys"), QStringLiteral("KGlobalAccel")));
    } else {
        const OwnBindings bindings = ownBindingsOfSession();
        lines.push_back(Capability::without(
            QStringLiteral("hot keys"),
            QStringLiteral("yours to bind, ") +
                (bindings.file.isEmpty() ? QStringLiteral("in the compositor's settings") : bindings.file) +
                QStringLiteral(": ") + bindings.lines.join(u"; ")));
    }
    return lines;
}

} // namespace vellumry
