// SPDX-License-Identifier: GPL-3.0-or-later
#include "torture/PowerlessDisk.h"

#include <algorithm>
#include <cstring>
#include <sqlite3.h>
#include <unistd.h>

namespace vellumry {

namespace {

constexpr std::size_t sector = 512;

/// A write, or with no bytes a new length.
struct Change {
    std::int64_t offset;
    std::vector<char> bytes;
    bool isLength;
};

} // namespace

/// The whole content in memory as SQLite sees it, and what of it is not on the disk yet.
class PowerlessDisk::File : public VfsFile {
public:
    File(PowerlessDisk* disk, sqlite3_file* real)
        : VfsFile(real)
        , m_disk(disk) {
        std::int64_t size = 0;
        if (VfsFile::size(&size) == SQLITE_OK && size > 0) {
            m_content.resize(static_cast<std::size_t>(size));
            (void)VfsFile::read(m_content.data(), static_cast<int>(size), 0);
        }
        m_disk->m_files.push_back(this);
    }

    int read(void* bytes, int size, std::int64_t offset) override {
        const auto from = std::min(static_cast<std::size_t>(offset), m_content.size());
        const auto got = std::min(static_cast<std::size_t>(size), m_content.size() - from);
        std::memcpy(bytes, m_content.data() + from, got);
        std::memset(static_cast<char*>(bytes) + got, 0, static_cast<std::size_t>(size) - got);
        return got == static_cast<std::size_t>(size) ? SQLITE_OK : SQLITE_IOERR_SHORT_READ;
    }
    int write(const void* bytes, int size, std::int64_t offset) override {
        const auto* const from = static_cast<const char*>(bytes);
        const auto end = static_cast<std::size_t>(offset + size);
        if (m_content.size() < end)
            m_content.resize(end);
        std::copy(from, from + size, m_content.begin() + offset);
        m_pending.push_back({offset, {from, from + size}, false});
        m_disk->change();
        return SQLITE_OK;
    }
    int truncate(std::int64_t size) override {
        m_content.resize(static_cast<std::size_t>(size));
        m_pending.push_back({size, {}, true});
        m_disk->change();
        return SQLITE_OK;
    }
    int sync(int flags) override {
        m_disk->change();
        for (const Change& change : m_pending)
            apply(change, change.bytes.size());
        m_pending.clear();
        return VfsFile::sync(flags);
    }
    int size(std::int64_t* size) override {
        *size = static_cast<std::int64_t>(m_content.size());
        return SQLITE_OK;
    }
    void close() override {
        for (const Change& change : m_pending)
            apply(change, change.bytes.size());
        std::erase(m_disk->m_files, this);
    }
    /// What chance lets through of what is not synced.
    void loseSome(std::mt19937& random) {
        std::shuffle(m_pending.begin(), m_pending.end(), random);
        for (const Change& change : m_pending) {
            const auto luck = random() % 8;
            if (luck < 4)
                apply(change, change.bytes.size());
            else if (luck == 4)
                apply(change, change.bytes.size() / 2 / sector * sector);
        }
    }

private:
    void apply(const Change& change, std::size_t bytes) {
        if (change.isLength)
            (void)VfsFile::truncate(change.offset);
        else if (bytes > 0)
            (void)VfsFile::write(change.bytes.data(), static_cast<int>(bytes), change.offset);
    }
    PowerlessDisk* m_disk;
    std::vector<char> m_content;
    std::vector<Change> m_pending;
};

std::unique_ptr<VfsFile> PowerlessDisk::open(sqlite3_file* real) {
    return std::make_unique<File>(this, real);
}

void PowerlessDisk::change() {
    if (m_changesLeft-- == 0)
        cut();
}

void PowerlessDisk::cut() {
    for (File* file : m_files)
        file->loseSome(m_random);
    _exit(exitCode);
}

} // namespace vellumry
