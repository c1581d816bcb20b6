// SPDX-License-Identifier: GPL-3.0-or-later
#include "history/file/ReadAhead.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <memory>
#include <sqlite3.h>
#include <utility>

namespace vellumry::readahead {

namespace {

/// What is read at once. SQLite's check goes through a tree from its end to its beginning, but through the pages of one
/// picture forwards: a few blocks are kept, so that each is read about once.
constexpr sqlite3_int64 blockSize = 128 * 1024;
constexpr std::size_t blockCount = 8;

/// Numbers below 100 are SQLite's own.
constexpr int askWhetherRefused = 2601;

/// A part of the file of which something was asked for lately.
struct Block {
    sqlite3_int64 begin = -1;
    sqlite3_int64 end = -1;  ///< no greater than `begin` for one that is read page by page
    sqlite3_int64 asked = 0; ///< bytes
    int lent = 0;            ///< pages that SQLite looks at where they lie
    char* bytes = nullptr;
};

/// The real file, and what was read ahead of it.
class File {
public:
    File(std::unique_ptr<char[]> memory, bool isDatabase)
        : m_memory(std::move(memory))
        , m_isDatabase(isDatabase) {}

    [[nodiscard]] sqlite3_file* real() { return reinterpret_cast<sqlite3_file*>(m_memory.get()); }
    [[nodiscard]] const sqlite3_io_methods& methods() { return *real()->pMethods; }

    int read(void* bytes, int size, sqlite3_int64 offset) {
        if (!m_isDatabase)
            return readPlainly(bytes, size, offset);
        const Block* const block = ask(size, offset);
        if (!block)
            return readPlainly(bytes, size, offset);
        std::memcpy(bytes, block->bytes + (offset - block->begin), static_cast<std::size_t>(size));
        return SQLITE_OK;
    }

    /// The bytes where they lie, until they are given back; null where they must be read.
    char* lend(int size, sqlite3_int64 offset) {
        Block* const block = m_isDatabase ? ask(size, offset) : nullptr;
        if (!block)
            return nullptr;
        ++block->lent;
        return block->bytes + (offset - block->begin);
    }
    void takeBack(const char* bytes) {
        const auto isOf = [bytes](const Block& block) {
            return block.bytes && bytes >= block.bytes && bytes < block.bytes + blockSize;
        };
        if (const auto block = std::ranges::find_if(m_blocks, isOf); block != m_blocks.end())
            --block->lent;
    }

    /// Behind a lock, where another process may write.
    void forget() {
        for (Block& block : m_blocks)
            block.begin = block.end = -1;
        m_fileSize = -1;
    }
    [[nodiscard]] bool hasRefused() const { return m_hasRefused; }

private:
    int readPlainly(void* bytes, int size, sqlite3_int64 offset) {
        const int result = methods().xRead(real(), bytes, size, offset);
        m_hasRefused = m_hasRefused || (result != SQLITE_OK && result != SQLITE_IOERR_SHORT_READ);
        return result;
    }

    /// The block that has these bytes; null for bytes that are to be read by themselves.
    Block* ask(int size, sqlite3_int64 offset) {
        const sqlite3_int64 begin = offset - offset % blockSize;
        const auto found = std::ranges::find(m_blocks, begin, &Block::begin);
        if (found != m_blocks.end())
            std::rotate(m_blocks.begin(), found, found + 1);
        else if (!replaceOldest(begin))
            return nullptr;
        Block& block = m_blocks.front();
        block.asked += size;
        return offset + size <= block.end ? &block : nullptr;
    }

    /// Puts a block from `begin` on in front; false when every block is lent.
    bool replaceOldest(sqlite3_int64 begin) {
        const auto oldest =
            std::find_if(m_blocks.rbegin(), m_blocks.rend(), [](const Block& block) { return block.lent == 0; });
        if (oldest == m_blocks.rend())
            return false;
        std::rotate(m_blocks.begin(), oldest.base() - 1, oldest.base());
        Block& block = m_blocks.front();
        // What is gone through now is read as the block was that goes: at once, if a third of that was asked for. Page
        // by page that much takes as long.
        const bool isWorthIt = block.begin < 0 || 3 * block.asked >= blockSize;
        block.begin = block.end = begin;
        block.asked = 0;
        if (isWorthIt)
            readWhole(block);
        return true;
    }

    void readWhole(Block& block) {
        if (m_fileSize < 0 && methods().xFileSize(real(), &m_fileSize) != SQLITE_OK)
            return;
        const sqlite3_int64 size = std::min(blockSize, m_fileSize - block.begin);
        if (size <= 0)
            return;
        if (!m_memoryOfBlocks)
            allocateBlocks();
        if (methods().xRead(real(), block.bytes, static_cast<int>(size), block.begin) == SQLITE_OK)
            block.end = block.begin + size;
    }

    void allocateBlocks() {
        m_memoryOfBlocks = std::make_unique_for_overwrite<char[]>(blockCount * blockSize);
        char* bytes = m_memoryOfBlocks.get();
        for (Block& block : m_blocks)
            block.bytes = std::exchange(bytes, bytes + blockSize);
    }

    std::unique_ptr<char[]> m_memory;
    bool m_isDatabase;
    bool m_hasRefused = false;
    std::unique_ptr<char[]> m_memoryOfBlocks;
    std::array<Block, blockCount> m_blocks; ///< the latest first
    sqlite3_int64 m_fileSize = -1;
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
    methods.iVersion = 3;
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
        if (operation == SQLITE_FCNTL_MMAP_SIZE)
            return SQLITE_OK; // the file itself is not mapped: every byte goes through here
        if (operation != askWhetherRefused)
            return Passed<&M::xFileControl>::on(handle, operation, argument);
        *static_cast<bool*>(argument) = fileOf(handle).hasRefused();
        return SQLITE_OK;
    };
    methods.xFetch = [](sqlite3_file* handle, sqlite3_int64 offset, int size, void** bytes) {
        *bytes = fileOf(handle).lend(size, offset);
        return SQLITE_OK;
    };
    methods.xUnfetch = [](sqlite3_file* handle, sqlite3_int64, void* bytes) {
        if (bytes)
            fileOf(handle).takeBack(static_cast<const char*>(bytes));
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
