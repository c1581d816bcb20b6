// SPDX-License-Identifier: GPL-3.0-or-later
#include "linux/files/MountTable.h"

#include <QFile>
#include <algorithm>
#include <array>

namespace vellumry {

namespace {

/// `\ooo` stands for the byte with that octal number: space, tab, line feed and the backslash itself.
QByteArray unescaped(const QByteArray& text) {
    QByteArray plain;
    for (qsizetype index = 0; index < text.size(); ++index) {
        bool isNumber = false;
        const int code = text[index] == '\\' ? text.mid(index + 1, 3).toInt(&isNumber, 8) : 0;
        plain.append(isNumber ? static_cast<char>(code) : text[index]);
        index += isNumber ? 3 : 0;
    }
    return plain;
}

bool contains(const QByteArray& folder, const QByteArray& path) {
    return folder == "/" || path == folder || (path.startsWith(folder) && path.at(folder.size()) == '/');
}

bool isRemote(const QByteArray& type) {
    static constexpr std::array<const char*, 13> remote{"nfs",  "nfs4", "cifs",  "smb3",      "smbfs", "9p",    "afs",
                                                        "ceph", "coda", "ncpfs", "glusterfs", "davfs", "autofs"};
    // FUSE serves whatever a program likes; only block devices (NTFS, exFAT) are known to be near.
    return type == "fuse" || type.startsWith("fuse.") ||
           std::any_of(remote.begin(), remote.end(), [&type](const char* name) { return type == name; });
}

} // namespace

MountTable MountTable::current() {
    QFile file(QStringLiteral("/proc/self/mountinfo"));
    if (!file.open(QIODevice::ReadOnly))
        return {};
    return parse(file.readAll());
}

MountTable MountTable::parse(QByteArrayView text) {
    constexpr qsizetype pointField = 4;
    MountTable table;
    for (const QByteArray& line : text.toByteArray().split('\n')) {
        const QList<QByteArray> fields = line.split(' ');
        const qsizetype separator = fields.indexOf("-");
        if (separator <= pointField || separator + 1 >= fields.size())
            continue;
        table.m_mounts.push_back({unescaped(fields[pointField]), fields[separator + 1]});
    }
    return table;
}

const MountTable::Mount* MountTable::mountOf(const QByteArray& path) const {
    const Mount* best = nullptr;
    // A later mount at the same place hides the earlier one.
    for (const Mount& mount : m_mounts) {
        if (contains(mount.point, path) && (!best || mount.point.size() >= best->point.size()))
            best = &mount;
    }
    return best;
}

QByteArray MountTable::mountPointOf(const QByteArray& path) const {
    const Mount* mount = mountOf(path);
    return mount ? mount->point : QByteArray("/");
}

bool MountTable::isLocal(const QByteArray& path) const {
    const Mount* mount = mountOf(path);
    return !mount || !isRemote(mount->type);
}

} // namespace vellumry
