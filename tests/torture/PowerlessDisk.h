// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "torture/TestVfs.h"

#include <random>
#include <vector>

namespace vellumry {

/// A disk that has only what was synced, and whose power goes after so many changes: of what was not yet synced some
/// gets there, some does not, some in part, in no order; then the process ends on the spot. Its files belong to one
/// thread at a time.
class PowerlessDisk {
public:
    PowerlessDisk(unsigned seed, unsigned changesUntilTheCut)
        : m_random(seed)
        , m_changesLeft(changesUntilTheCut) {}
    [[nodiscard]] std::unique_ptr<VfsFile> open(sqlite3_file* real);
    /// The power goes now.
    [[noreturn]] void cut();

    /// How the process ends.
    static constexpr int exitCode = 88;

private:
    class File;
    void change();
    std::mt19937 m_random;
    unsigned m_changesLeft;
    std::vector<File*> m_files;
};

} // namespace vellumry
