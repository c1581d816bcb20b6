// SPDX-License-Identifier: GPL-3.0-or-later
#include "linux/gnome/ShellExtension.h"

#include "linux/gnome/ShellNames.h"

#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusServiceWatcher>
#include <QStandardPaths>
#include <chrono>
#include <gio/gio.h>
#include <utility>
#include <vector>

namespace vellumry {

namespace {

using namespace std::chrono_literals;

constexpr int answerMilliseconds = 5000;
/// The shell loads its files and starts it.
constexpr auto longestStart = 10s;

/// Puts the extension on the user's list, which the shell reads when it starts. False where there is no such list.
bool enterInList() {
    GSettingsSchemaSource* source = g_settings_schema_source_get_default();
    if (source == nullptr)
        return false;
    g_autoptr(GSettingsSchema) schema = g_settings_schema_source_lookup(source, "org.gnome.shell", TRUE);
    if (schema == nullptr || !g_settings_schema_has_key(schema, "enabled-extensions"))
        return false;
    g_autoptr(GSettings) settings = g_settings_new("org.gnome.shell");
    g_auto(GStrv) enabled = g_settings_get_strv(settings, "enabled-extensions");
    if (g_strv_contains(enabled, shell::extension))
        return true;
    std::vector<const char*> names(enabled, enabled + g_strv_length(enabled));
    names.push_back(shell::extension);
    names.push_back(nullptr);
    const bool isWritten = g_settings_set_strv(settings, "enabled-extensions", names.data());
    g_settings_sync();
    return isWritten;
}

} // namespace

ShellExtension::ShellExtension(QDBusConnection bus)
    : m_bus(std::move(bus)) {
    m_deadline.setSingleShot(true);
    m_deadline.setInterval(longestStart);
    connect(&m_deadline, &QTimer::timeout, this, [this] { answer(Outcome::refused); });
    auto* watcher = new QDBusServiceWatcher(QString::fromLatin1(shell::service), m_bus,
                                            QDBusServiceWatcher::WatchForRegistration, this);
    connect(watcher, &QDBusServiceWatcher::serviceRegistered, this, [this] { answer(Outcome::on); });
}

ShellExtension::~ShellExtension() = default;

bool ShellExtension::isInstalled() {
    return !QStandardPaths::locate(
                QStandardPaths::GenericDataLocation,
                QStringLiteral("gnome-shell/extensions/%1/metadata.json").arg(QString::fromLatin1(shell::extension)))
                .isEmpty();
}

void ShellExtension::switchOn(std::function<void(Outcome)> onAnswered) {
    m_onAnswered = std::move(onAnswered);
    QDBusMessage call =
        QDBusMessage::createMethodCall(QStringLiteral("org.gnome.Shell"), QStringLiteral("/org/gnome/Shell"),
                                       QStringLiteral("org.gnome.Shell.Extensions"), QStringLiteral("EnableExtension"));
    call.setArguments({QString::fromLatin1(shell::extension)});
    auto* watcher = new QDBusPendingCallWatcher(m_bus.asyncCall(call, answerMilliseconds), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this](QDBusPendingCallWatcher* finished) {
        const QDBusPendingReply<bool> reply = *finished;
        finished->deleteLater();
        hearAnswer(reply.isValid() && reply.value());
    });
}

/// A shell that has run since before the installation does not know the extension.
void ShellExtension::hearAnswer(bool isKnown) {
    if (!m_onAnswered)
        return;
    if (!isKnown)
        answer(enterInList() ? Outcome::atNextLogin : Outcome::refused);
    else if (m_bus.interface()->isServiceRegistered(QString::fromLatin1(shell::service)))
        answer(Outcome::on);
    else
        m_deadline.start();
}

void ShellExtension::answer(Outcome outcome) {
    m_deadline.stop();
    if (const auto onAnswered = std::exchange(m_onAnswered, nullptr))
        onAnswered(outcome);
}

} // namespace vellumry
