// SPDX-License-Identifier: GPL-3.0-or-later
#include "linux/process/MemoryReturn.h"

#include <QFile>
#include <QLocale>
#include <QUuid>
#include <gtest/gtest.h>
#include <stdexcept>

using namespace vellumry;

namespace {

/// Kilobytes of files that are mapped and present.
qint64 mappedFiles() {
    QFile status(QStringLiteral("/proc/self/status"));
    if (!status.open(QIODevice::ReadOnly))
        return -1;
    for (const QByteArray& line : status.readAll().split('\n')) {
        if (line.startsWith("RssFile:"))
            return line.mid(8).trimmed().split(' ').first().toLongLong();
    }
    return -1;
}

} // namespace

TEST(MemoryReturn, GivesCodeBackAndGoesOnWorking) {
    const QString before = QLocale(QLocale::German).toString(1234.5);
    const qint64 mapped = mappedFiles();
    ASSERT_GT(mapped, 0);
    returnCode();
    EXPECT_LT(mappedFiles(), mapped / 2);
    EXPECT_EQ(QLocale(QLocale::German).toString(1234.5), before);
    EXPECT_FALSE(QUuid::createUuid().isNull());
    EXPECT_THROW(throw std::runtime_error("unwinding reads its tables anew"), std::runtime_error);
}
