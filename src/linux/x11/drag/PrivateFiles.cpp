// SPDX-License-Identifier: GPL-3.0-or-later
#include "linux/x11/drag/PrivateFiles.h"

#include <QFile>
#include <QStandardPaths>

namespace vellumry {

std::unique_ptr<PrivateFiles> PrivateFiles::write(const std::vector<DragSource::File>& files) {
    // Gone at the latest with the session, even when the program is killed. QTemporaryDir completes the name.
    const QString runtime = QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation);
    std::unique_ptr<PrivateFiles> written(new PrivateFiles(runtime + QStringLiteral("/vellumry-drag-")));
    if (!written->m_folder.isValid())
        return nullptr;
    for (const DragSource::File& file : files) {
        QString path = written->m_folder.filePath(file.name);
        // Two pictures may bear one name.
        for (int number = 2; QFile::exists(path); ++number)
            path = written->m_folder.filePath(QString::number(number) + u' ' + file.name);
        QFile target(path);
        if (!target.open(QIODevice::WriteOnly | QIODevice::NewOnly) || target.write(file.bytes) != file.bytes.size() ||
            !target.flush())
            return nullptr;
        written->m_paths.append(path);
    }
    return written;
}

} // namespace vellumry
