// SPDX-License-Identifier: GPL-3.0-or-later
#include "linux/PrivateBus.h"

#include <QDir>
#include <QFile>
#include <csignal>
#include <sys/prctl.h>

namespace vellumry {

namespace {

constexpr int patienceMilliseconds = 60'000;

constexpr auto configuration = R"(<!DOCTYPE busconfig PUBLIC "-//freedesktop//DTD D-Bus Bus Configuration 1.0//EN"
 "http://www.freedesktop.org/standards/dbus/1.0/busconfig.dtd">
<busconfig>
  <type>session</type>
  <listen>unix:path=%1/bus</listen>
  <auth>EXTERNAL</auth>
  <policy context="default">
    <allow send_destination="*" eavesdrop="true"/>
    <allow eavesdrop="true"/>
    <allow own="*"/>
  </policy>
</busconfig>
)";

void prepare(QProcess& process) {
    // A test that dies takes them along.
    process.setChildProcessModifier([] { prctl(PR_SET_PDEATHSIG, SIGKILL); });
    process.setStandardErrorFile(QProcess::nullDevice());
}

} // namespace

PrivateBus::PrivateBus() {
    for (const char* folder : {"data", "config", "runtime", "home"})
        QDir(m_folder.path()).mkdir(QString::fromLatin1(folder));
    const QByteArray root = QFile::encodeName(m_folder.path());
    QFile::setPermissions(m_folder.filePath(QStringLiteral("runtime")),
                          QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    qputenv("XDG_DATA_HOME", root + "/data");
    qputenv("XDG_CONFIG_HOME", root + "/config");
    qputenv("XDG_RUNTIME_DIR", root + "/runtime");
    qputenv("HOME", root + "/home");
    qunsetenv("DISPLAY");
    qunsetenv("WAYLAND_DISPLAY");
    // Nobody listens there unless the bus starts.
    qputenv("DBUS_SESSION_BUS_ADDRESS", "unix:path=" + root + "/bus");

    QFile file(m_folder.filePath(QStringLiteral("bus.conf")));
    if (!file.open(QIODevice::WriteOnly))
        return;
    file.write(QString::fromLatin1(configuration).arg(m_folder.path()).toUtf8());
    file.close();
    prepare(m_bus);
    m_bus.start(QStringLiteral("dbus-daemon"), {QStringLiteral("--nofork"), QStringLiteral("--print-address=1"),
                                                QStringLiteral("--config-file=") + file.fileName()});
    QByteArray address;
    while (!address.contains('\n') && m_bus.waitForReadyRead(patienceMilliseconds))
        address += m_bus.readAllStandardOutput();
    m_address = QString::fromLatin1(address.trimmed());
}

PrivateBus::~PrivateBus() {
    setKeyringHanging(false);
    end(m_keyring);
    end(m_bus);
}

void PrivateBus::end(QProcess& process) {
    if (process.state() == QProcess::NotRunning)
        return;
    process.terminate();
    if (!process.waitForFinished(patienceMilliseconds))
        process.kill();
    process.waitForFinished();
}

bool PrivateBus::startKeyring() {
    prepare(m_keyring);
    m_keyring.setStandardOutputFile(QProcess::nullDevice());
    m_keyring.start(QStringLiteral("gnome-keyring-daemon"), {QStringLiteral("--foreground"), QStringLiteral("--unlock"),
                                                             QStringLiteral("--components=secrets")});
    m_keyring.write("\n");
    m_keyring.waitForBytesWritten(patienceMilliseconds);
    m_keyring.closeWriteChannel();
    return output(QStringLiteral("gdbus"), {QStringLiteral("wait"), QStringLiteral("--session"),
                                            QStringLiteral("--timeout=60"), QStringLiteral("org.freedesktop.secrets")})
        .has_value();
}

void PrivateBus::setKeyringHanging(bool isHanging) {
    if (m_keyring.state() == QProcess::Running)
        kill(static_cast<pid_t>(m_keyring.processId()), isHanging ? SIGSTOP : SIGCONT);
}

std::optional<QByteArray> PrivateBus::output(const QString& program, const QStringList& arguments,
                                             const QByteArray& input) {
    QProcess process;
    prepare(process);
    process.start(program, arguments);
    process.write(input);
    process.closeWriteChannel();
    if (!process.waitForFinished(patienceMilliseconds) || process.exitStatus() != QProcess::NormalExit ||
        process.exitCode() != 0)
        return std::nullopt;
    return process.readAllStandardOutput();
}

bool PrivateBus::manageKeyring(const char* command) {
    return output(QStringLiteral("/usr/bin/python3"),
                  {QStringLiteral(VELLUMRY_KEYRING_SCRIPT), QString::fromLatin1(command)})
        .has_value();
}

} // namespace vellumry
