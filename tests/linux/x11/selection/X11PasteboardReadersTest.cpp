// SPDX-License-Identifier: GPL-3.0-or-later
#include "foundation/UniformType.h"
#include "linux/x11/selection/X11PasteboardWorld.h"

#include <QProcess>

namespace vellumry {

namespace {

using X11PasteboardReaders = X11PasteboardWorld;

TEST_F(X11PasteboardReaders, LargeContentsGoOutInIncrementsToManyAtOnce) {
    const QByteArray bytes = patternOf(20 * 1024 * 1024 + 5);
    ASSERT_TRUE(write({{uniformtype::png, bytes}}));
    std::vector<HostileOwner*> requestors;
    for (int i = 0; i < 4; ++i) {
        requestors.push_back(&peer());
        requestors.back()->ask("CLIPBOARD", "image/png");
    }
    for (HostileOwner* requestor : requestors) {
        ASSERT_TRUE(eventually([&] { return requestor->answers.contains("image/png"); }));
        EXPECT_TRUE(requestor->answers["image/png"].wasIncremental);
        EXPECT_EQ(requestor->answers["image/png"].bytes, bytes);
    }
}

TEST_F(X11PasteboardReaders, ATransferInProgressSurvivesTheNextCopy) {
    const QByteArray bytes = patternOf(8 * 1024 * 1024);
    ASSERT_TRUE(write({{uniformtype::png, bytes}}));
    HostileOwner& requestor = peer();
    requestor.ask("CLIPBOARD", "image/png");
    EXPECT_TRUE(eventually([this] { return pasteboard->wasServed(); }));
    copied({{"UTF8_STRING", "other"}});
    ASSERT_TRUE(eventually([&] { return requestor.answers.contains("image/png"); }));
    EXPECT_EQ(requestor.answers["image/png"].bytes, bytes);
}

TEST_F(X11PasteboardReaders, SeveralTargetsAreServedInOneRequest) {
    const QByteArray large = patternOf(1 << 20);
    ASSERT_TRUE(write({{uniformtype::utf8PlainText, "t"}, {uniformtype::png, large}}));
    HostileOwner& requestor = peer();
    requestor.askForMany("CLIPBOARD", {"UTF8_STRING", "image/tiff", "image/png"});
    ASSERT_TRUE(eventually([&] { return requestor.answers.contains("image/png"); }));
    EXPECT_EQ(requestor.answers["UTF8_STRING"].bytes, "t");
    EXPECT_EQ(requestor.answers["image/png"].bytes, large);
    EXPECT_EQ(requestor.answers["image/tiff"].type, "");
}

TEST_F(X11PasteboardReaders, RequestorsThatVanishOrStallCostOthersNothing) {
    ASSERT_TRUE(write({{uniformtype::utf8PlainText, "t"}, {uniformtype::png, patternOf(1 << 20)}}));
    HostileOwner& requestor = peer();
    for (int i = 0; i < 50; ++i) {
        requestor.askAndVanish("CLIPBOARD", "image/png");
        requestor.askAndVanish("CLIPBOARD", "UTF8_STRING");
    }
    requestor.askAndStall("CLIPBOARD", "image/png");
    EXPECT_EQ(ask(requestor, "UTF8_STRING").bytes, "t");
    EXPECT_EQ(ask(peer(), "image/png").bytes.size(), 1 << 20);
}

TEST_F(X11PasteboardReaders, AStalledTransferEndsAndTheNextIsServed) {
    PasteboardLimits limits;
    limits.stalledRequestor = std::chrono::milliseconds(50);
    pasteboard = X11Pasteboard::create(display, limits).value();
    ASSERT_TRUE(write({{uniformtype::png, patternOf(1 << 20)}}));
    HostileOwner& requestor = peer();
    requestor.askAndStall("CLIPBOARD", "image/png");
    EXPECT_TRUE(eventually([&] { return requestor.isWatched(); }));
    // The transfer is over when nobody waits for the next chunk to be taken.
    EXPECT_TRUE(eventually([&] { return !requestor.isWatched(); }));
    EXPECT_EQ(ask(requestor, "image/png").bytes, patternOf(1 << 20));
}

TEST_F(X11PasteboardReaders, ManyReadersOfOneProgramThatStallKeepNoOtherWaiting) {
    ASSERT_TRUE(write({{uniformtype::png, patternOf(1 << 20)}}));
    HostileOwner& honest = peer();
    honest.ask("CLIPBOARD", "image/png");
    HostileOwner& stalling = peer();
    for (int i = 0; i < 300; ++i)
        stalling.askAndStall("CLIPBOARD", "image/png");
    catchUp();
    EXPECT_EQ(ask(peer(), "image/png").bytes.size(), 1 << 20);
    ASSERT_TRUE(eventually([&] { return honest.answers.contains("image/png"); }));
    EXPECT_EQ(honest.answers["image/png"].bytes.size(), 1 << 20);
}

TEST_F(X11PasteboardReaders, OthersAreServedWhileTheMainThreadIsBusy) {
    ASSERT_TRUE(write({{uniformtype::utf8PlainText, "busy"}}));
    // The main thread does nothing but wait for the other process: no event loop runs.
    QProcess reader;
    reader.start(QStringLiteral("xclip"),
                 {QStringLiteral("-display"), QString::fromUtf8(display), QStringLiteral("-selection"),
                  QStringLiteral("clipboard"), QStringLiteral("-o")});
    ASSERT_TRUE(reader.waitForFinished(60000));
    EXPECT_EQ(reader.readAllStandardOutput(), "busy");
    catchUp();
    EXPECT_TRUE(pasteboard->wasServed());
}

TEST_F(X11PasteboardReaders, WhatWasServedIsKnownForThePresentContentsOnly) {
    ASSERT_TRUE(write({{uniformtype::utf8PlainText, "one"}}));
    HostileOwner& requestor = peer();
    // The requestor has its answer a moment before it is noted.
    targetsOf(requestor);
    catchUp();
    EXPECT_FALSE(pasteboard->wasServed());
    ask(requestor, "UTF8_STRING");
    catchUp();
    EXPECT_TRUE(pasteboard->wasServed());
    ASSERT_TRUE(write({{uniformtype::utf8PlainText, "two"}}));
    EXPECT_FALSE(pasteboard->wasServed());
    EXPECT_EQ(ask(requestor, "UTF8_STRING").bytes, "two");
}

/// A clipboard manager or a remote desktop beside us reads everything at once; that is no paste.
TEST_F(X11PasteboardReaders, OnlyTheProgramWithTheKeyboardCountsAsServed) {
    HostileOwner& target = peer();
    HostileOwner& manager = peer();
    ASSERT_TRUE(target.takeFocus());
    ASSERT_TRUE(write({{uniformtype::utf8PlainText, "one"}}));
    targetsOf(manager);
    EXPECT_EQ(ask(manager, "UTF8_STRING").bytes, "one");
    catchUp();
    EXPECT_FALSE(pasteboard->wasListed());
    EXPECT_FALSE(pasteboard->wasServed());
    targetsOf(target);
    catchUp();
    EXPECT_TRUE(pasteboard->wasListed());
    EXPECT_FALSE(pasteboard->wasServed());
    EXPECT_EQ(ask(target, "UTF8_STRING").bytes, "one");
    catchUp();
    EXPECT_TRUE(pasteboard->wasServed());
    // The same for what a terminal takes from the primary selection.
    ASSERT_TRUE(write({{uniformtype::utf8PlainText, "two"}}));
    ASSERT_TRUE(pasteboard->offerAsPrimary());
    ask(manager, "UTF8_STRING", "PRIMARY");
    catchUp();
    EXPECT_FALSE(pasteboard->wasServed());
    ask(target, "UTF8_STRING", "PRIMARY");
    catchUp();
    EXPECT_TRUE(pasteboard->wasServed());
}

} // namespace

} // namespace vellumry
