// SPDX-License-Identifier: GPL-3.0-or-later
#include "foundation/UniformType.h"
#include "linux/x11/selection/X11PasteboardWorld.h"

namespace vellumry {

namespace {

class X11PasteboardFiles : public X11PasteboardWorld {
protected:
    static PasteboardItem cutFile() {
        PasteboardItem cut = file("file:///a");
        cut.representations[QStringLiteral("x-special/gnome-copied-files")] = "cut\nfile:///a";
        cut.representations[QStringLiteral("x-special/mate-copied-files")] = "cut\nfile:///a";
        cut.representations[QStringLiteral("application/x-kde-cutselection")] = "1";
        cut.representations[uniformtype::utf8PlainText] = "name";
        return cut;
    }
};

TEST_F(X11PasteboardFiles, FilesGoOutAsOneListWithTheDesktopsCompanions) {
    ASSERT_TRUE(pasteboard->write({file("file:///a%20b"), file("file:///c")}));
    HostileOwner& requestor = peer();
    EXPECT_EQ(ask(requestor, "text/uri-list").bytes, "file:///a%20b\r\nfile:///c\r\n");
    EXPECT_EQ(ask(requestor, "x-special/gnome-copied-files").bytes, "copy\nfile:///a%20b\nfile:///c");
    EXPECT_EQ(ask(requestor, "UTF8_STRING").bytes, "/a b\n/c");
}

TEST_F(X11PasteboardFiles, FilesThatWereCutAreCopiedFromTheHistory) {
    ASSERT_TRUE(pasteboard->write({cutFile()}));
    HostileOwner& requestor = peer();
    EXPECT_EQ(ask(requestor, "x-special/gnome-copied-files").bytes, "copy\nfile:///a");
    EXPECT_EQ(ask(requestor, "x-special/mate-copied-files").bytes, "copy\nfile:///a");
    EXPECT_EQ(ask(requestor, "application/x-kde-cutselection").bytes, "0");
    EXPECT_EQ(ask(requestor, "UTF8_STRING").bytes, "name");
}

TEST_F(X11PasteboardFiles, ACutWhoseProgramEndedStaysACut) {
    pasteboard->onOwnerGone = [this](qint64) { EXPECT_TRUE(pasteboard->takeOver({cutFile()})); };
    copied({{"text/uri-list", "file:///a"}}).leave();
    HostileOwner& requestor = peer();
    ASSERT_TRUE(eventually([&] { return requestor.hasOwner("CLIPBOARD"); }));
    EXPECT_EQ(ask(requestor, "x-special/gnome-copied-files").bytes, "cut\nfile:///a");
    EXPECT_EQ(ask(requestor, "application/x-kde-cutselection").bytes, "1");
}

TEST_F(X11PasteboardFiles, AddressesElsewhereGoOutAsTheyCame) {
    ASSERT_TRUE(write({{uniformtype::url, "sftp://host/a"},
                       {QStringLiteral("text/uri-list"), "sftp://host/a\r\n"},
                       {QStringLiteral("x-special/gnome-copied-files"), "cut\nsftp://host/a"}}));
    HostileOwner& requestor = peer();
    EXPECT_EQ(ask(requestor, "text/uri-list").bytes, "sftp://host/a\r\n");
    EXPECT_EQ(ask(requestor, "x-special/gnome-copied-files").bytes, "copy\nsftp://host/a");
    EXPECT_EQ(ask(requestor, "UTF8_STRING").bytes, "sftp://host/a");
}

TEST_F(X11PasteboardFiles, KeysOfAPortalThatOpenNothingAnyMoreAreNotOffered) {
    PasteboardItem item = file("file:///a");
    item.representations[QStringLiteral("application/vnd.portal.filetransfer")] = "2342";
    item.representations[QStringLiteral("application/vnd.portal.files")] = "2342";
    item.representations[QStringLiteral("text/x-libfmqt-pid")] = "17";
    ASSERT_TRUE(pasteboard->write({item}));
    const QByteArrayList targets = targetsOf(peer());
    EXPECT_TRUE(targets.contains("text/uri-list"));
    for (const char* target :
         {"application/vnd.portal.filetransfer", "application/vnd.portal.files", "text/x-libfmqt-pid"})
        EXPECT_FALSE(targets.contains(target)) << target;
}

} // namespace

} // namespace vellumry
