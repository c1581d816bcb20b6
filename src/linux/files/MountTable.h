// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <vector>

namespace vellumry {

/// The mounted file systems, as the kernel lists them (proc(5), mountinfo). Asking it touches none of them: a hung
/// server or an automounter is never woken. A value; any thread.
class MountTable {
public:
    /// The table of this process, as it is now; empty when there is none.
    [[nodiscard]] static MountTable current();
    /// Reads the text of a `mountinfo` file; lines that are none are left out.
    [[nodiscard]] static MountTable parse(QByteArrayView text);

    /// Where the file system of `path`, an absolute path without links, is mounted; "/" when nothing better is known.
    [[nodiscard]] QByteArray mountPointOf(const QByteArray& path) const;
    /// True when looking at `path` stays on this machine: its file system is no network's, no automounter's and none
    /// that a program serves from afar.
    [[nodiscard]] bool isLocal(const QByteArray& path) const;

private:
    struct Mount {
        QByteArray point;
        QByteArray type;
    };
    [[nodiscard]] const Mount* mountOf(const QByteArray& path) const;

    std::vector<Mount> m_mounts;
};

} // namespace vellumry
