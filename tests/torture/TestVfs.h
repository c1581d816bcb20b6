// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <functional>
#include <memory>

struct sqlite3_file;

namespace vellumry {

/// An open file as SQLite's layer for the operating system sees it (https://www.sqlite.org/vfs.html). Passes everything
/// on to the real one; those derived from it misbehave. Results are SQLite's result codes.
class VfsFile {
public:
    explicit VfsFile(sqlite3_file* real)
        : m_real(real) {}
    virtual ~VfsFile() = default;
    VfsFile(const VfsFile&) = delete;
    VfsFile& operator=(const VfsFile&) = delete;

    virtual int read(void* bytes, int size, std::int64_t offset);
    virtual int write(const void* bytes, int size, std::int64_t offset);
    virtual int truncate(std::int64_t size);
    virtual int sync(int flags);
    virtual int size(std::int64_t* size);
    /// Before the real file is closed.
    virtual void close() {}
    [[nodiscard]] sqlite3_file* real() const { return m_real; }

private:
    sqlite3_file* m_real;
};

/// What a file system offers: some on the network have no shared memory, and SQLite then writes no log ahead.
enum class SharedMemory { offered, missing };

/// From here on every connection that this process opens gets its files from `make`.
void installTestVfs(std::function<std::unique_ptr<VfsFile>(sqlite3_file* real)> make,
                    SharedMemory sharedMemory = SharedMemory::offered);
/// From here on the real files are back. No connection may be open.
void removeTestVfs();

} // namespace vellumry
