// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "torture/TestVfs.h"

#include <random>

namespace vellumry {

/// A disk that now and then is full, breaks off in the middle of a write, or reports an error instead of a success. Its
/// files belong to one thread at a time.
class FailingDisk {
public:
    explicit FailingDisk(unsigned seed)
        : m_random(seed) {}
    [[nodiscard]] std::unique_ptr<VfsFile> open(sqlite3_file* real);
    /// Nothing fails until it is switched on.
    void setFailing(bool isFailing) { m_isFailing = isFailing; }
    /// How many calls have failed.
    [[nodiscard]] int failures() const { return m_failures; }

private:
    class File;
    [[nodiscard]] bool isNext(unsigned oneIn);
    std::mt19937 m_random;
    bool m_isFailing = false;
    int m_failures = 0;
};

} // namespace vellumry
