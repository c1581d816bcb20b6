// SPDX-License-Identifier: GPL-3.0-or-later
#include "foundation/UniformType.h"
#include "linux/x11/selection/X11PasteboardWorld.h"

namespace vellumry {

namespace {

class X11ClipboardManager : public X11PasteboardWorld {
protected:
    void SetUp() override {
        X11PasteboardWorld::SetUp();
        waitForPart();
    }
    /// The part is taken a moment after the connection is made; until then the server itself refuses what is asked.
    void waitForPart() {
        HostileOwner& looking = peer();
        ASSERT_TRUE(eventually([&] { return looking.hasOwner("CLIPBOARD_MANAGER"); }));
    }
};

TEST_F(X11ClipboardManager, ASessionWithoutClipboardManagerHasOneInUs) {
    HostileOwner& quitting = peer();
    ASSERT_TRUE(eventually([&] { return quitting.hasOwner("CLIPBOARD_MANAGER"); }));
    EXPECT_EQ(targetsOf(quitting, "CLIPBOARD_MANAGER"),
              (QByteArrayList{"TARGETS", "TIMESTAMP", "MULTIPLE", "SAVE_TARGETS"}));
    EXPECT_EQ(ask(quitting, "UTF8_STRING", "CLIPBOARD_MANAGER").type, "");
}

TEST_F(X11ClipboardManager, AProgramThatQuitsHearsThatItsCopyIsKeptWhenItIs) {
    HostileOwner& quitting = copied({{"UTF8_STRING", "saved"}});
    quitting.ask("CLIPBOARD_MANAGER", "SAVE_TARGETS");
    catchUp();
    EXPECT_TRUE(eventually([&] { return quitting.requests.contains("TARGETS"); }));
    EXPECT_FALSE(quitting.answers.contains("SAVE_TARGETS"));
    pasteboard->settle(pasteboard->changeCount() - 1, true); // of an older copy
    catchUp();
    quitting.pump();
    EXPECT_FALSE(quitting.answers.contains("SAVE_TARGETS"));
    pasteboard->settle(pasteboard->changeCount(), true);
    ASSERT_TRUE(eventually([&] { return quitting.answers.contains("SAVE_TARGETS"); }));
    EXPECT_EQ(quitting.answers["SAVE_TARGETS"].type, "NULL");
    // A later request gets the same answer at once.
    EXPECT_EQ(ask(quitting, "SAVE_TARGETS", "CLIPBOARD_MANAGER").type, "NULL");
}

TEST_F(X11ClipboardManager, AProgramWhoseCopyWasNotTakenHearsSo) {
    HostileOwner& quitting = copied({{"UTF8_STRING", "refused"}});
    pasteboard->settle(pasteboard->changeCount(), false);
    EXPECT_EQ(ask(quitting, "SAVE_TARGETS", "CLIPBOARD_MANAGER").type, "");
    HostileOwner& replaced = copied({{"UTF8_STRING", "replaced"}});
    replaced.ask("CLIPBOARD_MANAGER", "SAVE_TARGETS");
    catchUp();
    copied({{"UTF8_STRING", "next"}});
    ASSERT_TRUE(eventually([&] { return replaced.answers.contains("SAVE_TARGETS"); }));
    EXPECT_EQ(replaced.answers["SAVE_TARGETS"].type, "");
}

TEST_F(X11ClipboardManager, AProgramThatQuitsIsNotKeptWaitingForLong) {
    PasteboardLimits limits;
    limits.saving = std::chrono::milliseconds(50);
    setLimits(limits);
    HostileOwner& quitting = copied({{"UTF8_STRING", "t"}});
    EXPECT_EQ(ask(quitting, "SAVE_TARGETS", "CLIPBOARD_MANAGER").type, "");
}

TEST_F(X11ClipboardManager, WhatWeHoldOurselvesIsKept) {
    ASSERT_TRUE(write({{uniformtype::utf8PlainText, "ours"}}));
    EXPECT_EQ(ask(peer(), "SAVE_TARGETS", "CLIPBOARD_MANAGER").type, "NULL");
}

TEST_F(X11ClipboardManager, AnotherClipboardManagerIsGivenWayAndReplacedWhenItEnds) {
    HostileOwner& manager = peer();
    ASSERT_TRUE(eventually([&] { return manager.hasOwner("CLIPBOARD_MANAGER"); }));
    ASSERT_TRUE(manager.own("CLIPBOARD_MANAGER", {}));
    HostileOwner& watcher = peer();
    ASSERT_TRUE(write({{uniformtype::utf8PlainText, "t"}}));
    EXPECT_TRUE(manager.owns("CLIPBOARD_MANAGER"));
    manager.leave();
    EXPECT_TRUE(eventually([&] { return watcher.hasOwner("CLIPBOARD_MANAGER"); }));
}

TEST_F(X11ClipboardManager, APresentClipboardManagerIsLeftInPlace) {
    pasteboard.reset();
    HostileOwner& manager = peer();
    ASSERT_TRUE(manager.own("CLIPBOARD_MANAGER", {}));
    pasteboard = X11Pasteboard::create(display).value();
    ASSERT_TRUE(write({{uniformtype::utf8PlainText, "t"}}));
    EXPECT_TRUE(manager.owns("CLIPBOARD_MANAGER"));
}

TEST_F(X11ClipboardManager, ThePlaceOfAnOwnerThatEndedCanBeTaken) {
    pasteboard->onOwnerGone = [this](qint64) {
        EXPECT_TRUE(pasteboard->takeOver({PasteboardItem{{{uniformtype::utf8PlainText, "kept"}}, {}}}));
    };
    copied({{"UTF8_STRING", "kept"}}).leave();
    HostileOwner& requestor = peer();
    ASSERT_TRUE(eventually([&] { return requestor.hasOwner("CLIPBOARD"); }));
    EXPECT_EQ(ask(requestor, "UTF8_STRING").bytes, "kept");
}

TEST_F(X11ClipboardManager, ACopyMadeMeanwhileIsNotTakenOver) {
    HostileOwner& faster = peer();
    std::optional<bool> tookOver;
    pasteboard->onOwnerGone = [&](qint64) {
        EXPECT_TRUE(faster.own("CLIPBOARD", {{"UTF8_STRING", "new"}}));
        tookOver = pasteboard->takeOver({PasteboardItem{{{uniformtype::utf8PlainText, "old"}}, {}}});
    };
    copied({{"UTF8_STRING", "old"}}).leave();
    ASSERT_TRUE(eventually([&] { return tookOver.has_value(); }));
    EXPECT_FALSE(*tookOver);
    EXPECT_TRUE(faster.owns("CLIPBOARD"));
}

TEST_F(X11ClipboardManager, NothingIsTakenOverWhileSomebodyOwnsIt) {
    HostileOwner& owner = copied({{"UTF8_STRING", "theirs"}});
    EXPECT_FALSE(pasteboard->takeOver({PasteboardItem{{{uniformtype::utf8PlainText, "ours"}}, {}}}));
    EXPECT_TRUE(owner.owns("CLIPBOARD"));
}

} // namespace

} // namespace vellumry
