// SPDX-License-Identifier: GPL-3.0-or-later
#include "history/file/ReadAhead.h"

#include <algorithm>
#include <cstring>
#include <memory>
#include <sqlite3.h>

namespace vellumry::readahead {

namespace {

/// A run of pages is read in pieces that grow: most of what a picture takes is read at once, and little is read in vain
/// behind a short text.
constexpr sqlite3_int64 firstPiece = 8 * 1024;
constexpr sqlite3_int64 largestPiece = 512 * 1024;

/// Numbers below 100 are SQLite's own.
constexpr int askWhetherRefused = 2601;

/// The real file, and what was read ahead of it.
class File {
public:
    File(std::unique_ptr<char[]> memory, bool isDatabase)
        : m_memory(std::move(memory))
        , m_isDatabase(isDatabase) {}

    [[nodiscard]] sqlite3_file* real() { return reinterpret_cast<sqlite3_file*>(m_memory.get()); }
    [[nodiscard]] const sqlite3_io_methods& methods() { return *real()->pMethods; }

    int read(void* bytes, int size, sqlite3_int64 offset) {
        const bool isNext = offset == m_next;
        m_next = offset + size;
        const bool isHere = offset >= m_begin && m_next <= m_end;
        if (!isHere) {
            if (!isNext)
                m_piece = firstPiece;
            if (!isNext || !m_isDatabase || !readPiece(size, offset))
                return readPlainly(bytes, size, offset);
        }
        std::memcpy(bytes, m_buffer.get() + (offset - m_begin), static_cast<std::size_t>(size));
        return SQLITE_OK;
    }

    /// For when somebody else may write.
    void forget() { m_begin = m_end = 0; }
    [[nodiscard]] bool hasRefused() const { return m_hasRefused; }

private:
    int readPlainly(void* bytes, int size, sqlite3_int64 offset) {
        const int result = methods().xRead(real(), bytes, size, offset);
        m_hasRefused = m_hasRefused || (result != SQLITE_OK && result != SQLITE_IOERR_SHORT_READ);
        return result;
    }

    bool readPiece(int size, sqlite3_int64 offset) {
        sqlite3_int64 fileSize = 0;
        if (methods().xFileSize(real(), &fileSize) != SQLITE_OK)
            return false;
        const sqlite3_int64 piece = std::min(m_piece, fileSize - offset);
        m_piece = std::min(m_piece * 2, largestPiece);
        if (piece < size)
            return false;
        if (!m_buffer)
            m_buffer = std::make_unique_for_overwrite<char[]>(largestPiece);
        forget();
        if (methods().xRead(real(), m_buffer.get(), static_cast<int>(piece), offset) != SQLITE_OK)
            return false;
        m_begin = offset;
        m_end = offset + piece;
        return true;
    }

    std::unique_ptr<char[]> m_memory;
    bool m_isDatabase;
    bool m_hasRefused = false;
    std::unique_ptr<char[]> m_buffer;
    sqlite3_int64 m_begin = 0;
    sqlite3_int64 m_end = 0;
    sqlite3_int64 m_next = -1; ///< where the last page that was asked for ends
    sqlite3_int64 m_piece = firstPiece;
};

/// What SQLite gets for a file.
struct Handle {
    sqlite3_file base;
    File* file;
};

File& fileOf(sqlite3_file* handle) {
    return *reinterpret_cast<Handle*>(handle)->file;
}

int closeFile(sqlite3_file* handle) {
    const std::unique_ptr<File> file(&fileOf(handle));
    return file->methods().xClose(file->real());
}

/// A method of the real file with the same arguments.
template <auto Method>
struct Passed;
template <typename Result, typename... Arguments, Result (*sqlite3_io_methods::*Method)(sqlite3_file*, Arguments...)>
struct Passed<Method> {
    static Result on(sqlite3_file* handle, Arguments... arguments) {
        File& file = fileOf(handle);
        return (file.methods().*Method)(file.real(), arguments...);
    }
    /// The same for one that begins or ends a transaction.
    static Result onForgetting(sqlite3_file* handle, Arguments... arguments) {
        fileOf(handle).forget();
        return on(handle, arguments...);
    }
};

sqlite3_io_methods makeMethods() {
    using M = sqlite3_io_methods;
    sqlite3_io_methods methods{};
    methods.iVersion = 2; // shared memory, but no mapping of the file itself: every byte goes through here
    methods.xClose = closeFile;
    methods.xRead = [](sqlite3_file* handle, void* bytes, int size, sqlite3_int64 offset) {
        return fileOf(handle).read(bytes, size, offset);
    };
    methods.xWrite = Passed<&M::xWrite>::onForgetting;
    methods.xTruncate = Passed<&M::xTruncate>::onForgetting;
    methods.xSync = Passed<&M::xSync>::on;
    methods.xFileSize = Passed<&M::xFileSize>::on;
    methods.xLock = Passed<&M::xLock>::onForgetting;
    methods.xUnlock = Passed<&M::xUnlock>::onForgetting;
    methods.xCheckReservedLock = Passed<&M::xCheckReservedLock>::on;
    methods.xFileControl = [](sqlite3_file* handle, int operation, void* argument) {
        if (operation != askWhetherRefused)
            return Passed<&M::xFileControl>::on(handle, operation, argument);
        *static_cast<bool*>(argument) = fileOf(handle).hasRefused();
        return SQLITE_OK;
    };
    methods.xSectorSize = Passed<&M::xSectorSize>::on;
    methods.xDeviceCharacteristics = Passed<&M::xDeviceCharacteristics>::on;
    methods.xShmMap = Passed<&M::xShmMap>::on;
    methods.xShmLock = Passed<&M::xShmLock>::onForgetting;
    methods.xShmBarrier = Passed<&M::xShmBarrier>::on;
    methods.xShmUnmap = Passed<&M::xShmUnmap>::on;
    return methods;
}

int openFile(sqlite3_vfs*, const char* name, sqlite3_file* handle, int flags, int* outFlags) {
    static const sqlite3_io_methods withSharedMemory = makeMethods();
    static const sqlite3_io_methods without = [] {
        sqlite3_io_methods methods = makeMethods();
        methods.iVersion = 1;
        return methods;
    }();
    handle->pMethods = nullptr;
    sqlite3_vfs* const system = sqlite3_vfs_find(nullptr);
    auto memory = std::make_unique<char[]>(static_cast<std::size_t>(system->szOsFile));
    auto* const real = reinterpret_cast<sqlite3_file*>(memory.get());
    const int result = system->xOpen(system, name, real, flags, outFlags);
    if (result != SQLITE_OK) {
        if (real->pMethods)
            real->pMethods->xClose(real);
        return result;
    }
    reinterpret_cast<Handle*>(handle)->file = new File(std::move(memory), (flags & SQLITE_OPEN_MAIN_DB) != 0);
    handle->pMethods = real->pMethods->iVersion >= 2 ? &withSharedMemory : &without;
    return SQLITE_OK;
}

} // namespace

const char* layer() {
    static sqlite3_vfs layer = [] {
        sqlite3_initialize();
        sqlite3_vfs made = *sqlite3_vfs_find(nullptr);
        made.zName = "ahead";
        made.pNext = nullptr;
        made.szOsFile = sizeof(Handle);
        made.xOpen = openFile;
        return made;
    }();
    static const int registered = sqlite3_vfs_register(&layer, 0);
    return registered == SQLITE_OK ? layer.zName : nullptr;
}

bool hasRefused(sqlite3* connection) {
    bool hasRefused = false;
    return sqlite3_file_control(connection, "main", askWhetherRefused, &hasRefused) == SQLITE_OK && hasRefused;
}

} // namespace vellumry::readahead
