// SPDX-License-Identifier: GPL-3.0-or-later
#include "linux/peers/ClipmanHistory.h"
#include "linux/peers/CopyQHistory.h"
#include "linux/peers/GPasteHistory.h"
#include "linux/peers/KlipperListHistory.h"

#include <QString>
#include <cstdlib>
#include <memory>
#include <sys/mman.h>
#include <unistd.h>

using namespace vellumry;

namespace {

/// A file in memory, for what reads its file piece by piece.
class MemoryFile {
public:
    explicit MemoryFile(const QByteArray& bytes)
        : m_descriptor(memfd_create("peer", MFD_CLOEXEC)) {
        if (m_descriptor < 0 || write(m_descriptor, bytes.constData(), static_cast<std::size_t>(bytes.size())) < 0)
            std::abort();
    }
    ~MemoryFile() { close(m_descriptor); }
    [[nodiscard]] QString path() const { return QStringLiteral("/proc/self/fd/%1").arg(m_descriptor); }

private:
    int m_descriptor;
};

void readAll(PeerReading& reading, qsizetype bytes) {
    qsizetype clips = 0;
    while (const auto clip = reading.next()) {
        if (clip->isLocked && !clip->items.empty())
            std::abort(); // a secret stays where it is
        if (++clips > bytes + 1)
            std::abort(); // each entry takes up room in the file
    }
    if (reading.next())
        std::abort(); // the end is the end
    (void)reading.isDamaged();
}

} // namespace

/// The first byte chooses the program whose file the others are.
extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size) {
    if (size == 0)
        return 0;
    const QByteArray bytes(reinterpret_cast<const char*>(data + 1), static_cast<qsizetype>(size) - 1);
    std::unique_ptr<PeerReading> reading;
    std::unique_ptr<MemoryFile> file;
    switch (data[0]) {
    case 'c':
        file = std::make_unique<MemoryFile>(bytes);
        reading = std::make_unique<CopyQHistory>(QStringList{file->path()});
        break;
    case 'g':
        reading = std::make_unique<GPasteHistory>(bytes, 0, QStringLiteral("/dev/null"));
        break;
    case 'k':
        reading = std::make_unique<KlipperListHistory>(bytes, 0);
        break;
    case 'x':
        reading = std::make_unique<ClipmanHistory>(ClipmanHistory::ofXfce(bytes, 0, {}));
        break;
    case 'w':
        reading = std::make_unique<ClipmanHistory>(ClipmanHistory::ofWayland(bytes, 0));
        break;
    default:
        return 0;
    }
    readAll(*reading, bytes.size());
    return 0;
}
