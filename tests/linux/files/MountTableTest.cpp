// SPDX-License-Identifier: GPL-3.0-or-later
#include "linux/files/MountTable.h"

#include <gtest/gtest.h>

namespace vellumry {
namespace {

constexpr auto mounts = "21 1 8:2 / / rw,relatime shared:1 - ext4 /dev/sda2 rw\n"
                        "40 21 0:44 / /home/ann/share rw shared:2 master:1 - nfs4 server:/x rw\n"
                        "41 21 0:45 / /run/user/1000/gvfs rw - fuse.gvfsd-fuse gvfsd-fuse rw\n"
                        "42 21 8:17 / /media/ann/My\\040Disk rw - fuseblk /dev/sdb1 rw\n"
                        "43 21 0:46 / /net rw - autofs systemd-1 rw\n"
                        "44 43 8:33 / /net rw - xfs /dev/sdc1 rw\n"
                        "no mount at all\n";

TEST(MountTable, NamesTheMountThatAPathLiesIn) {
    const MountTable table = MountTable::parse(mounts);
    EXPECT_EQ(table.mountPointOf("/etc/fstab"), "/");
    EXPECT_EQ(table.mountPointOf("/home/ann/share/a.txt"), "/home/ann/share");
    EXPECT_EQ(table.mountPointOf("/home/ann/shared.txt"), "/");
    EXPECT_EQ(table.mountPointOf("/media/ann/My Disk/b"), "/media/ann/My Disk");
}

TEST(MountTable, TellsNetworksAndForeignServersFromDisks) {
    const MountTable table = MountTable::parse(mounts);
    EXPECT_TRUE(table.isLocal("/home/ann/a.txt"));
    EXPECT_FALSE(table.isLocal("/home/ann/share/a.txt"));
    EXPECT_FALSE(table.isLocal("/run/user/1000/gvfs/x"));
    EXPECT_TRUE(table.isLocal("/media/ann/My Disk/b"));
}

TEST(MountTable, AnAutomounterCountsUntilItHasMounted) {
    EXPECT_TRUE(MountTable::parse(mounts).isLocal("/net/a"));
    EXPECT_FALSE(MountTable::parse("43 21 0:46 / /net rw - autofs systemd-1 rw\n").isLocal("/net/a"));
}

TEST(MountTable, WithoutATableEverythingIsNear) {
    const MountTable table = MountTable::parse("");
    EXPECT_TRUE(table.isLocal("/anything"));
    EXPECT_EQ(table.mountPointOf("/anything"), "/");
}

TEST(MountTable, ReadsTheTableOfThisProcess) {
    EXPECT_TRUE(MountTable::current().isLocal("/proc/self"));
}

} // namespace
} // namespace vellumry
