// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "linux/files/FileIdentity.h"
#include "linux/files/MountTable.h"

#include <chrono>
#include <functional>

namespace vellumry {

/// One bounded look for a file by its identity. It reads folders, whose entries carry inode numbers, and examines only
/// the entries whose number fits. Network file systems, links and hidden folders are left alone. One thread.
class FileSearch {
public:
    struct Bounds {
        int entries = 2'000;
        std::chrono::milliseconds time{20};
    };
    using Clock = std::function<std::chrono::steady_clock::time_point()>;

    FileSearch(const FileIdentity& wanted, const MountTable& mounts, Bounds bounds,
               Clock clock = std::chrono::steady_clock::now);

    /// Names for which this says true are not examined.
    std::function<bool(const QByteArray& path)> isExcluded;

    /// The path of the wanted file among the entries of `folder`.
    [[nodiscard]] std::optional<QByteArray> inFolder(const QByteArray& folder);
    /// The same, in the folders below too, nearest first.
    [[nodiscard]] std::optional<QByteArray> below(const QByteArray& folder);
    [[nodiscard]] bool isExhausted() const;

private:
    [[nodiscard]] std::optional<QByteArray> scan(const QByteArray& folder, std::vector<QByteArray>* folders);
    [[nodiscard]] bool isWanted(const QByteArray& path) const;

    FileIdentity m_wanted;
    const MountTable& m_mounts;
    int m_entriesLeft;
    Clock m_clock;
    std::chrono::steady_clock::time_point m_end;
};

} // namespace vellumry
