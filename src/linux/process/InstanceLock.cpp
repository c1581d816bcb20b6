// SPDX-License-Identifier: GPL-3.0-or-later
#include "linux/process/InstanceLock.h"

#include <QDir>
#include <QFile>
#include <QStandardPaths>
#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

namespace vellumry {

InstanceLock::InstanceLock(QString path)
    : m_path(std::move(path)) {}

InstanceLock::~InstanceLock() {
    if (m_descriptor >= 0)
        close(m_descriptor);
}

QString InstanceLock::defaultPath() {
    const QString name = QStringLiteral("com.vellumry.Vellumry.lock");
    // Not QStandardPaths::RuntimeLocation: it makes up a folder of its own, with a warning, where the variable is not
    // set.
    const QString runtime = qEnvironmentVariable("XDG_RUNTIME_DIR");
    if (QDir::isAbsolutePath(runtime) && QDir(runtime).exists())
        return runtime + u'/' + name;
    const QString data = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation);
    return data + QStringLiteral("/Vellumry/") + name;
}

bool InstanceLock::acquire() {
    if (m_descriptor >= 0)
        return true;
    const QByteArray path = QFile::encodeName(m_path);
    const int descriptor = open(path.constData(), O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW, 0600);
    if (descriptor < 0)
        return true;
    if (flock(descriptor, LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK) {
        close(descriptor);
        return false;
    }
    m_descriptor = descriptor;
    return true;
}

} // namespace vellumry
