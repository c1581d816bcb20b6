// SPDX-License-Identifier: GPL-3.0-or-later
#include "linux/wayland/keys/WaylandPasteKeys.h"

#include "foundation/UniformType.h"
#include "linux/wayland/selection/DataControlThread.h"
#include "linux/wayland/selection/WaylandPasteboard.h"
#include "wayland/WaylandPeer.h"

#include <QDeadlineTimer>
#include <gtest/gtest.h>
#include <string_view>

namespace vellumry {

namespace {

using namespace std::chrono_literals;

const QString hint = QStringLiteral("x-kde-passwordManagerHint");

std::vector<PasteboardItem> text(const QByteArray& utf8) {
    return {PasteboardItem{{{uniformtype::utf8PlainText, utf8}}, QStringList{uniformtype::utf8PlainText}}};
}

/// A Paste Stack of texts and the clipboard it is pasted from.
struct World {
    World() {
        board = pasteboardOfSession();
        keys = std::make_unique<WaylandPasteKeys>(board->thread());
        keys->onPress = [this](const KeyPress&, const std::shared_ptr<HeldKey>& key) {
            ++pastes;
            if (!waiting.empty()) {
                EXPECT_TRUE(board->write(text(waiting.front())));
                waiting.erase(waiting.begin());
            }
            key->letGo(HeldKey::Contents::fresh);
            expectNext();
        };
    }
    void start(std::vector<QByteArray> items) {
        waiting = std::move(items);
        ASSERT_TRUE(keys->start());
        expectNext();
        peer.until([this] { return peer.types().contains(hint); });
        pass(150ms); // the clipboard managers have read by then
    }
    void expectNext() { keys->expect(waiting.empty() ? std::nullopt : std::optional(text(waiting.front()))); }
    /// Lets time pass without a paste.
    void pass(std::chrono::milliseconds time) {
        const QDeadlineTimer deadline(time);
        peer.until([&] { return deadline.hasExpired(); });
    }

    WaylandPeer peer;
    std::unique_ptr<WaylandPasteboard> board;
    std::unique_ptr<WaylandPasteKeys> keys;
    std::vector<QByteArray> waiting;
    int pastes = 0;
};

TEST(WaylandPasteKeys, EachPasteGetsTheNextItem) {
    World world;
    world.start({"one", "two", "three"});
    for (const char* item : {"one", "two", "three"}) {
        EXPECT_EQ(world.peer.paste(), QByteArray(item));
        world.pass(200ms);
    }
    EXPECT_EQ(world.pastes, 3);
}

TEST(WaylandPasteKeys, AProgramThatKeepsWhatItHasReadOfAnOfferGetsTheNextItemToo) {
    World world;
    world.start({"one", "two", "three"});
    int changes = world.peer.changes();
    for (const char* item : {"one", "two", "three"}) {
        EXPECT_EQ(world.peer.paste(), QByteArray(item));
        if (item == std::string_view("three"))
            break;
        // A new offer: what was read of the last one counts for nothing.
        world.peer.until([&] { return world.peer.changes() > changes; });
        ++changes;
        EXPECT_EQ(world.peer.changes(), changes) << "one for each item";
    }
}

TEST(WaylandPasteKeys, APasteRightBehindTheOneBeforeCountsWhereNoManagerReads) {
    World world;
    world.start({"one", "two", "three"});
    for (int paste = 1; paste <= 3; ++paste) {
        const int changes = world.peer.changes();
        (void)world.peer.paste();
        if (paste < 3)
            world.peer.until([&] { return world.peer.changes() > changes; });
        world.peer.until([&] { return world.pastes == paste; });
    }
    EXPECT_EQ(world.pastes, 3);
}

TEST(WaylandPasteKeys, AManagerThatReadsEachNewItemTakesNone) {
    World world;
    world.waiting = {"one", "two", "three"};
    ASSERT_TRUE(world.keys->start());
    world.expectNext();
    world.peer.until([&] { return world.peer.types().contains(hint); });
    EXPECT_EQ(world.peer.paste(), QByteArray("one"));
    for (const char* item : {"one", "two", "three"}) {
        world.pass(150ms);
        const int changes = world.peer.changes();
        EXPECT_EQ(world.peer.paste(), QByteArray(item));
        if (item == std::string_view("three"))
            break;
        world.peer.until([&] { return world.peer.changes() > changes; });
        (void)world.peer.paste(); // the manager
    }
    world.peer.until([&] { return world.pastes == 3; });
}

TEST(WaylandPasteKeys, SeveralFormsReadForOnePasteCountOnce) {
    World world;
    world.start({"one", "two"});
    // Asked for at once: on a busy machine one might come long after the other.
    std::vector<Descriptor> pipes;
    for (const char* type : {"text/plain;charset=utf-8", "UTF8_STRING", "text/plain"})
        pipes.push_back(world.peer.askOnly(QString::fromLatin1(type)));
    for (const Descriptor& pipe : pipes)
        EXPECT_EQ(world.peer.pasted(pipe), QByteArray("one"));
    world.pass(200ms);
    EXPECT_EQ(world.pastes, 1);
    EXPECT_EQ(world.peer.paste(), QByteArray("two"));
}

TEST(WaylandPasteKeys, AManagerThatReadsWhatIsNewTakesNoItem) {
    World world;
    world.waiting = {"one", "two"};
    ASSERT_TRUE(world.keys->start());
    world.expectNext();
    world.peer.until([&] { return world.peer.types().contains(hint); });
    EXPECT_EQ(world.peer.paste(), QByteArray("one"));
    EXPECT_EQ(world.peer.paste(hint), QByteArray("secret"));
    world.pass(200ms);
    EXPECT_EQ(world.pastes, 0);
    EXPECT_EQ(world.peer.paste(), QByteArray("one"));
    world.pass(200ms);
    EXPECT_EQ(world.pastes, 1);
}

TEST(WaylandPasteKeys, TheLastItemStaysWhenTheStackHasEnded) {
    World world;
    world.start({"one"});
    EXPECT_EQ(world.peer.paste(), QByteArray("one"));
    world.peer.until([&] { return world.pastes == 1; });
    world.keys->stop();
    world.pass(200ms);
    EXPECT_EQ(world.peer.paste(), QByteArray("one"));
    world.pass(200ms);
    EXPECT_EQ(world.pastes, 1);
}

} // namespace

} // namespace vellumry
