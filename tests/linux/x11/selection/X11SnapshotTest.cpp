// SPDX-License-Identifier: GPL-3.0-or-later
#include "capture/PasteboardSnapshot.h"
#include "foundation/UniformType.h"
#include "linux/x11/selection/X11PasteboardWorld.h"
#include "support/FakeFileBookmarks.h"
#include "support/FakeImageCodec.h"

#include <QElapsedTimer>

namespace vellumry {

namespace {

using Manner = HostileOwner::Manner;

/// A whole copy, from the owner's offer to the draft.
class X11Snapshot : public X11PasteboardWorld {
protected:
    std::optional<ClipDraft> draft(SnapshotLimits limits = {}) {
        SnapshotRequest request;
        request.changeCount = pasteboard->changeCount();
        request.limits = limits;
        return resultOf(readDraft(pasteboard.get(), DraftBuilder(bookmarks, images), request), 20'000);
    }

    /// What somebody else reads under these names once the copy is pasted.
    std::vector<QByteArray> readAgain(const ClipDraft& copy, const QByteArrayList& targets) {
        EXPECT_TRUE(pasteboard->write(copy.payload.items));
        HostileOwner& reader = peer();
        for (const QByteArray& target : targets)
            reader.ask("CLIPBOARD", target);
        EXPECT_TRUE(eventually([&] { return reader.answers.size() == std::size_t(targets.size()); }));
        std::vector<QByteArray> answers;
        for (const QByteArray& target : targets)
            answers.push_back(reader.answers[target].bytes);
        return answers;
    }

    FakeFileBookmarks bookmarks;
    FakeImageCodec images;
};

TEST_F(X11Snapshot, MoreThanAHundredMebibytesInTwoTypesIsRefusedAsAWhole) {
    HostileOwner& owner = copied({{"UTF8_STRING", QByteArray(51 << 20, 't'), Manner::increments},
                                  {"text/html", QByteArray(50 << 20, 'h'), Manner::increments},
                                  {"image/png", "never asked for"}});
    owner.chunkBytes = 1 << 20;
    EXPECT_EQ(draft(), std::nullopt);
    EXPECT_FALSE(owner.requests.contains("image/png"));
}

TEST_F(X11Snapshot, TheLimitItselfIsKept) {
    copied({{"UTF8_STRING", QByteArray(700, 't')}, {"text/html", QByteArray(300, 'h')}});
    SnapshotLimits limits;
    limits.maxTotalBytes = 1000;
    ASSERT_TRUE(draft(limits));
    limits.maxTotalBytes = 999;
    EXPECT_EQ(draft(limits), std::nullopt);
}

TEST_F(X11Snapshot, APrivateTypeOfMoreThanTwoMebibytesIsLeftOutAlone) {
    copied({{"application/x-private", QByteArray(3 << 20, 'p'), Manner::increments}, {"UTF8_STRING", "text"}});
    const auto result = draft();
    ASSERT_TRUE(result);
    EXPECT_EQ(result->payload.items.front().order, QStringList{uniformtype::utf8PlainText});
}

TEST_F(X11Snapshot, WhatIsExpensiveIsAskedForLastAndLostAlone) {
    // As an office program offers: renderings first, text behind them.
    HostileOwner& owner =
        copied({{"application/x-openoffice-bitmap;windows_formatname=\"Bitmap\"", {}, Manner::silence},
                {"image/png", "pixels"},
                {"application/pdf", {}, Manner::silence},
                {"text/rtf", "{\\rtf1 cell}"},
                {"text/html", "<b>cell</b>"},
                {"UTF8_STRING", "cell"}});
    const auto result = draft();
    ASSERT_TRUE(result);
    EXPECT_EQ(result->payload.items.front().order,
              (QStringList{uniformtype::png, uniformtype::rtf, uniformtype::html, uniformtype::utf8PlainText}));
    const QByteArrayList order{"TARGETS", "UTF8_STRING", "text/rtf", "text/html", "image/png", "application/pdf"};
    EXPECT_EQ(owner.requests.first(order.size()), order);
}

TEST_F(X11Snapshot, WhereOneRenderingIsTooLargeTheOthersAreNotAskedFor) {
    const QByteArray large(3 << 20, 'b');
    HostileOwner& owner = copied({{"image/bmp", large, Manner::increments},
                                  {"image/x-bmp", large, Manner::increments},
                                  {"application/ico", large, Manner::increments},
                                  {"image/png", "pixels"},
                                  {"application/x-private", "kept"}});
    const auto result = draft();
    ASSERT_TRUE(result);
    EXPECT_EQ(owner.requests, (QByteArrayList{"TARGETS", "image/png", "image/bmp", "application/x-private"}));
    EXPECT_EQ(result->payload.items.front().order,
              (QStringList{uniformtype::png, QStringLiteral("application/x-private")}));
}

TEST_F(X11Snapshot, AScreenThatAVirtualMachineOffersAsABitmapAloneIsKept) {
    // 1920 x 1080 pixels of four bytes, under three names and no other.
    const QByteArray bitmap(1920 * 1080 * 4 + 54, 'b');
    images.summary = {QSize(1920, 1080), QByteArray("png"), false};
    copied({{"image/bmp", bitmap, Manner::increments},
            {"image/x-bmp", bitmap, Manner::increments},
            {"image/x-MS-bmp", bitmap, Manner::increments}});
    const auto result = draft();
    ASSERT_TRUE(result);
    EXPECT_EQ(result->kind, ClipKind::image);
    EXPECT_EQ(result->title, QStringLiteral("Image 1920 × 1080"));
    EXPECT_EQ(readAgain(*result, {"image/png", "image/bmp"}), (std::vector<QByteArray>{"png", bitmap}));
}

TEST_F(X11Snapshot, FilesThatWereCutAreReadWithoutTakingThemOffTheClipboard) {
    HostileOwner& owner = copied({{"text/uri-list", "file:///tmp/a.txt\r\n"},
                                  {"x-special/gnome-copied-files", "cut\nfile:///tmp/a.txt"},
                                  {"application/x-kde-cutselection", "1"}});
    const auto result = draft();
    ASSERT_TRUE(result);
    EXPECT_EQ(result->kind, ClipKind::file);
    EXPECT_FALSE(owner.requests.contains("x-special/gnome-copied-files"));
    EXPECT_EQ(readAgain(*result, {"x-special/gnome-copied-files", "application/x-kde-cutselection"}),
              (std::vector<QByteArray>{"copy\nfile:///tmp/a.txt", "0"}));
}

TEST_F(X11Snapshot, WhatMeansNothingToOthersIsNeitherAskedForNorKept) {
    HostileOwner& owner = copied({{"GTK_TEXT_BUFFER_CONTENTS", "\x10\x20\x30"},
                                  {"HOSTNAME", "host"},
                                  {"CLIENT_WINDOW", "1"},
                                  {"LENGTH", "4"},
                                  {"SAVE_TARGETS", ""},
                                  {"chromium/x-internal-source-rfh-token", "token"},
                                  {"application/x-libreoffice-internal-id-4711", "id"},
                                  {"application/x-openoffice-link;windows_formatname=\"Link\"", "link"},
                                  {"UTF8_STRING", "text"}});
    const auto result = draft();
    ASSERT_TRUE(result);
    EXPECT_EQ(result->payload.items.front().representations,
              (std::map<QString, QByteArray>{{uniformtype::utf8PlainText, "text"}}));
    EXPECT_EQ(owner.requests, (QByteArrayList{"TARGETS", "UTF8_STRING"}));
}

} // namespace

} // namespace vellumry
