// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QList>

namespace vellumry::childprocesses {

/// The processes that this one has started and not collected, by number.
[[nodiscard]] inline QList<QByteArray> children() {
    QList<QByteArray> numbers;
    for (const QString& task : QDir(QStringLiteral("/proc/self/task")).entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
        QFile list(QStringLiteral("/proc/self/task/%1/children").arg(task));
        if (list.open(QIODevice::ReadOnly))
            numbers += list.readAll().simplified().split(' ');
    }
    numbers.removeAll(QByteArray());
    return numbers;
}

/// The most memory that process `number` has had, in megabytes; 0 when it is gone.
[[nodiscard]] inline int mostMegabytes(const QByteArray& number) {
    QFile file(QStringLiteral("/proc/%1/status").arg(QString::fromLatin1(number)));
    if (!file.open(QIODevice::ReadOnly))
        return 0;
    const QByteArray status = file.readAll();
    const qsizetype start = status.indexOf("VmHWM:");
    return start < 0 ? 0 : status.sliced(start + 6).trimmed().split(' ').first().toInt() / 1024;
}

} // namespace vellumry::childprocesses
