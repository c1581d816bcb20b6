// SPDX-License-Identifier: GPL-3.0-or-later
#include "linux/x11/drag/DirectSave.h"

#include "foundation/FileUrl.h"

#include <QFile>

namespace vellumry::directsave {

namespace {

constexpr qint64 longestAddress = 8 * 1024;

} // namespace

void propose(XcbConnection& connection, const QString& name) {
    connection.setProperty(connection.window(), connection.atom(selectionTarget),
                           connection.atom(QStringLiteral("text/plain")), 8, name.toUtf8());
}

bool save(XcbConnection& connection, const DragSource::File& saved) {
    const auto address =
        connection.property(connection.window(), connection.atom(selectionTarget), longestAddress, false);
    const QString path = address ? fileurl::pathOf(address->bytes).value_or(QString()) : QString();
    QFile file(path);
    if (path.isEmpty() || !file.open(QIODevice::WriteOnly | QIODevice::NewOnly))
        return false;
    if (file.write(saved.bytes) == saved.bytes.size() && file.flush())
        return true;
    // A part of a picture is worse than none.
    file.close();
    QFile::remove(path);
    return false;
}

} // namespace vellumry::directsave
