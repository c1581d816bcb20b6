// SPDX-License-Identifier: GPL-3.0-or-later
#include "linux/peers/KlipperDatabaseHistory.h"

#include <QDir>
#include <QTemporaryDir>
#include <cstdlib>

using namespace vellumry;

/// The history of Klipper since Plasma 6.3: SQLite's own reading of a damaged file, and ours of what it finds there.
extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size) {
    static const QTemporaryDir place(QStringLiteral("/dev/shm/vellumry-fuzz-"));
    static const QString scratch = [] {
        QDir(place.path()).mkdir(QStringLiteral("scratch"));
        return place.filePath(QStringLiteral("scratch"));
    }();
    QFile file(place.filePath(QStringLiteral("history3.sqlite")));
    if (!file.open(QIODevice::WriteOnly) ||
        file.write(reinterpret_cast<const char*>(data), static_cast<qint64>(size)) != static_cast<qint64>(size))
        std::abort();
    file.close();
    const auto history = KlipperDatabaseHistory::open(place.path(), scratch);
    if (!history)
        std::abort(); // a file that can be read is read, whatever is in it
    while (const auto clip = (*history)->next()) {
        if (clip->isLocked && !clip->items.empty())
            std::abort();
    }
    if (!QDir(scratch).isEmpty(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot))
        std::abort(); // no copy stays behind
    return 0;
}
