// SPDX-License-Identifier: GPL-3.0-or-later
#include "torture/TestVfs.h"

#include <sqlite3.h>
#include <stdexcept>

namespace vellumry {

namespace {

std::function<std::unique_ptr<VfsFile>(sqlite3_file*)> makeFile;
sqlite3_vfs* realVfs = nullptr;
sqlite3_vfs testVfs;
SharedMemory shared = SharedMemory::offered;

/// What SQLite gets for a file; the real one's memory follows it.
struct Handle {
    sqlite3_file base;
    VfsFile* file;
    [[nodiscard]] sqlite3_file* real() { return reinterpret_cast<sqlite3_file*>(this + 1); }
};

Handle& handleOf(sqlite3_file* file) {
    return *reinterpret_cast<Handle*>(file);
}

sqlite3_file* realOf(sqlite3_file* file) {
    return handleOf(file).real();
}

int closeFile(sqlite3_file* file) {
    Handle& handle = handleOf(file);
    handle.file->close();
    delete handle.file;
    return handle.real()->pMethods->xClose(handle.real());
}

sqlite3_io_methods makeMethods() {
    sqlite3_io_methods methods{};
    methods.iVersion = 2; // shared memory, but no mapping of the file itself: every byte goes through here
    methods.xClose = closeFile;
    methods.xRead = [](sqlite3_file* file, void* bytes, int size, sqlite3_int64 offset) {
        return handleOf(file).file->read(bytes, size, offset);
    };
    methods.xWrite = [](sqlite3_file* file, const void* bytes, int size, sqlite3_int64 offset) {
        return handleOf(file).file->write(bytes, size, offset);
    };
    methods.xTruncate = [](sqlite3_file* file, sqlite3_int64 size) { return handleOf(file).file->truncate(size); };
    methods.xSync = [](sqlite3_file* file, int flags) { return handleOf(file).file->sync(flags); };
    methods.xFileSize = [](sqlite3_file* file, sqlite3_int64* size) {
        std::int64_t bytes = 0;
        const int result = handleOf(file).file->size(&bytes);
        *size = bytes;
        return result;
    };
    methods.xLock = [](sqlite3_file* file, int lock) { return realOf(file)->pMethods->xLock(realOf(file), lock); };
    methods.xUnlock = [](sqlite3_file* file, int lock) { return realOf(file)->pMethods->xUnlock(realOf(file), lock); };
    methods.xCheckReservedLock = [](sqlite3_file* file, int* result) {
        return realOf(file)->pMethods->xCheckReservedLock(realOf(file), result);
    };
    methods.xFileControl = [](sqlite3_file* file, int operation, void* argument) {
        return realOf(file)->pMethods->xFileControl(realOf(file), operation, argument);
    };
    methods.xSectorSize = [](sqlite3_file* file) { return realOf(file)->pMethods->xSectorSize(realOf(file)); };
    methods.xDeviceCharacteristics = [](sqlite3_file* file) {
        return realOf(file)->pMethods->xDeviceCharacteristics(realOf(file));
    };
    methods.xShmMap = [](sqlite3_file* file, int page, int size, int extend, void volatile** memory) {
        return realOf(file)->pMethods->xShmMap(realOf(file), page, size, extend, memory);
    };
    methods.xShmLock = [](sqlite3_file* file, int offset, int count, int flags) {
        return realOf(file)->pMethods->xShmLock(realOf(file), offset, count, flags);
    };
    methods.xShmBarrier = [](sqlite3_file* file) { realOf(file)->pMethods->xShmBarrier(realOf(file)); };
    methods.xShmUnmap = [](sqlite3_file* file, int remove) {
        return realOf(file)->pMethods->xShmUnmap(realOf(file), remove);
    };
    return methods;
}

int openFile(sqlite3_vfs*, const char* name, sqlite3_file* file, int flags, int* outFlags) {
    static const sqlite3_io_methods withShared = makeMethods();
    static const sqlite3_io_methods without = [] {
        sqlite3_io_methods methods = makeMethods();
        methods.iVersion = 1;
        return methods;
    }();
    Handle& handle = handleOf(file);
    handle.base.pMethods = nullptr;
    const int result = realVfs->xOpen(realVfs, name, handle.real(), flags, outFlags);
    if (result != SQLITE_OK)
        return result;
    handle.file = makeFile(handle.real()).release();
    handle.base.pMethods = shared == SharedMemory::offered ? &withShared : &without;
    return SQLITE_OK;
}

} // namespace

int VfsFile::read(void* bytes, int size, std::int64_t offset) {
    return m_real->pMethods->xRead(m_real, bytes, size, offset);
}

int VfsFile::write(const void* bytes, int size, std::int64_t offset) {
    return m_real->pMethods->xWrite(m_real, bytes, size, offset);
}

int VfsFile::truncate(std::int64_t size) {
    return m_real->pMethods->xTruncate(m_real, size);
}

int VfsFile::sync(int flags) {
    return m_real->pMethods->xSync(m_real, flags);
}

int VfsFile::size(std::int64_t* size) {
    sqlite3_int64 bytes = 0;
    const int result = m_real->pMethods->xFileSize(m_real, &bytes);
    *size = bytes;
    return result;
}

void installTestVfs(std::function<std::unique_ptr<VfsFile>(sqlite3_file*)> make, SharedMemory sharedMemory) {
    makeFile = std::move(make);
    shared = sharedMemory;
    realVfs = sqlite3_vfs_find("unix");
    testVfs = *realVfs;
    testVfs.zName = "torture";
    testVfs.pNext = nullptr;
    testVfs.szOsFile = static_cast<int>(sizeof(Handle)) + realVfs->szOsFile;
    testVfs.xOpen = openFile;
    if (sqlite3_vfs_register(&testVfs, 1) != SQLITE_OK)
        throw std::runtime_error("SQLite takes no other layer for its files.");
}

void removeTestVfs() {
    sqlite3_vfs_unregister(&testVfs);
    sqlite3_vfs_register(realVfs, 1);
}

} // namespace vellumry
