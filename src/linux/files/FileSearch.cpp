// SPDX-License-Identifier: GPL-3.0-or-later
#include "linux/files/FileSearch.h"

#include <dirent.h>
#include <memory>
#include <string_view>

namespace vellumry {

namespace {

struct FolderClose {
    void operator()(DIR* folder) const { closedir(folder); }
};

} // namespace

FileSearch::FileSearch(const FileIdentity& wanted, const MountTable& mounts, Bounds bounds, Clock clock)
    : m_wanted(wanted)
    , m_mounts(mounts)
    , m_entriesLeft(bounds.entries)
    , m_clock(std::move(clock))
    , m_end(m_clock() + bounds.time) {}

bool FileSearch::isExhausted() const {
    return m_entriesLeft <= 0 || m_clock() >= m_end;
}

std::optional<QByteArray> FileSearch::inFolder(const QByteArray& folder) {
    return scan(folder, nullptr);
}

std::optional<QByteArray> FileSearch::below(const QByteArray& folder) {
    std::vector<QByteArray> folders{folder};
    for (std::size_t next = 0; next < folders.size() && !isExhausted(); ++next) {
        const QByteArray current = folders[next];
        if (auto found = scan(current, &folders))
            return found;
    }
    return std::nullopt;
}

std::optional<QByteArray> FileSearch::scan(const QByteArray& folder, std::vector<QByteArray>* folders) {
    if (!m_mounts.isLocal(folder))
        return std::nullopt;
    const std::unique_ptr<DIR, FolderClose> open(opendir(folder.constData()));
    if (!open)
        return std::nullopt;
    while (const dirent* entry = readdir(open.get())) {
        const std::string_view name = entry->d_name;
        if (name == "." || name == "..")
            continue;
        if (isExhausted())
            return std::nullopt;
        --m_entriesLeft;
        const QByteArray path = (folder == "/" ? QByteArray() : folder) + '/' + entry->d_name;
        if (entry->d_ino == m_wanted.inode && isWanted(path))
            return path;
        if (folders && entry->d_type == DT_DIR && name.front() != '.')
            folders->push_back(path);
    }
    return std::nullopt;
}

bool FileSearch::isWanted(const QByteArray& path) const {
    if (!m_mounts.isLocal(path) || (isExcluded && isExcluded(path)))
        return false;
    const auto identity = FileIdentity::of(path);
    return identity && identity->isSameFile(m_wanted);
}

} // namespace vellumry
