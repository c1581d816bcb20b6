// SPDX-License-Identifier: GPL-3.0-or-later
#include "torture/FailingDisk.h"

#include <sqlite3.h>

namespace vellumry {

class FailingDisk::File : public VfsFile {
public:
    File(FailingDisk* disk, sqlite3_file* real)
        : VfsFile(real)
        , m_disk(disk) {}

    int read(void* bytes, int size, std::int64_t offset) override {
        return m_disk->isNext(400) ? SQLITE_IOERR_READ : VfsFile::read(bytes, size, offset);
    }
    int write(const void* bytes, int size, std::int64_t offset) override {
        if (m_disk->isNext(40)) {
            (void)VfsFile::write(bytes, size / 2, offset);
            return SQLITE_FULL;
        }
        if (m_disk->isNext(40))
            return SQLITE_FULL;
        return m_disk->isNext(40) ? SQLITE_IOERR_WRITE : VfsFile::write(bytes, size, offset);
    }
    int truncate(std::int64_t size) override {
        return m_disk->isNext(10) ? SQLITE_IOERR_TRUNCATE : VfsFile::truncate(size);
    }
    int sync(int flags) override { return m_disk->isNext(20) ? SQLITE_IOERR_FSYNC : VfsFile::sync(flags); }

private:
    FailingDisk* m_disk;
};

bool FailingDisk::isNext(unsigned oneIn) {
    if (!m_isFailing || m_random() % oneIn != 0)
        return false;
    ++m_failures;
    return true;
}

std::unique_ptr<VfsFile> FailingDisk::open(sqlite3_file* real) {
    return std::make_unique<File>(this, real);
}

} // namespace vellumry
