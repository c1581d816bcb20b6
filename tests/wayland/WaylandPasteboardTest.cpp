// SPDX-License-Identifier: GPL-3.0-or-later
#include "linux/wayland/selection/WaylandPasteboard.h"

#include "foundation/UniformType.h"
#include "wayland/WaylandPeer.h"

#include <gtest/gtest.h>

namespace vellumry {

namespace {

using namespace std::chrono_literals;

constexpr qint64 anySize = 1LL << 40;
const QString plain = QStringLiteral("text/plain;charset=utf-8");

struct World {
    explicit World(const PasteboardLimits& limits = {}) {
        board = pasteboardOfSession(limits);
        board->onChanged = [this] { ++notices; };
        board->onOwnerGone = [this](qint64 count) { orphaned = count; };
    }
    /// What is read of the clipboard under a type.
    std::optional<QByteArray> read(const QString& type = uniformtype::utf8PlainText) {
        const auto reading = begin();
        return reading ? dataOf(*reading, type) : std::nullopt;
    }
    std::shared_ptr<PasteboardReading> begin() { return finished(board->beginReading()); }
    std::optional<QByteArray> dataOf(PasteboardReading& reading, const QString& type) {
        auto items = finished(reading.itemTypes());
        return finished(reading.data(0, type, anySize));
    }
    /// Both sides run until the task is done.
    template <typename Value>
    Value finished(QCoro::Task<Value> task) {
        const auto outcome = std::make_shared<detail::AwaitedOutcome<Value>>();
        const auto watching = detail::watchTask(std::move(task), outcome);
        peer.until([&] { return outcome->isDone(); });
        return *std::move(outcome->value);
    }
    void copied(const std::map<QString, std::optional<QByteArray>>& contents) {
        const qint64 before = board->copyCount();
        peer.copy(contents);
        peer.until([&] { return board->copyCount() > before; });
    }
    static std::vector<PasteboardItem> text(const QByteArray& utf8) {
        return {PasteboardItem{{{uniformtype::utf8PlainText, utf8}}, QStringList{uniformtype::utf8PlainText}}};
    }

    WaylandPeer peer;
    std::unique_ptr<WaylandPasteboard> board;
    int notices = 0;
    std::optional<qint64> orphaned;
};

TEST(WaylandPasteboard, ACopyOfAnotherProgramIsToldAndRead) {
    World world;
    const qint64 before = world.board->changeCount();
    world.copied({{plain, QByteArray("grüß")}, {QStringLiteral("text/html"), QByteArray("<b>x</b>")}});
    EXPECT_EQ(world.board->changeCount(), before + 1);
    world.peer.until([&] { return world.notices > 0; });
    EXPECT_EQ(world.read(), QByteArray("grüß"));
    EXPECT_EQ(world.read(uniformtype::html), QByteArray("<b>x</b>"));
}

TEST(WaylandPasteboard, WhatStandsThereAtTheStartIsReadAndNotTold) {
    WaylandPeer early;
    early.copyText("before");
    World world;
    EXPECT_EQ(world.board->copyCount(), 0);
    const auto reading = awaited(world.board->beginReading());
    ASSERT_TRUE(reading);
    EXPECT_TRUE(reading->types().contains(uniformtype::utf8PlainText));
}

TEST(WaylandPasteboard, FiftyMegabytesComeBackByteForByte) {
    World world;
    QByteArray large(50 * 1024 * 1024, '\0');
    for (qsizetype i = 0; i < large.size(); ++i)
        large[i] = char(i * 31 % 251);
    ASSERT_TRUE(world.board->write({PasteboardItem{{{uniformtype::png, large}}, std::nullopt}}));
    EXPECT_TRUE(world.peer.paste(QStringLiteral("image/png")) == large);
}

TEST(WaylandPasteboard, OurOwnWriteIsServedAndNoCopyOfAnothers) {
    World world;
    const qint64 before = world.board->changeCount();
    ASSERT_TRUE(world.board->write(World::text("ours")));
    EXPECT_EQ(world.peer.paste(), QByteArray("ours"));
    EXPECT_EQ(world.board->changeCount(), before + 1);
    EXPECT_EQ(world.board->copyCount(), 0);
    EXPECT_TRUE(world.board->wasServed());
    EXPECT_EQ(world.read(), QByteArray("ours"));
    world.copied({{plain, QByteArray("theirs")}});
    EXPECT_EQ(world.read(), QByteArray("theirs"));
}

TEST(WaylandPasteboard, WritesOneAfterTheOtherLeaveTheLast) {
    World world;
    for (const char* text : {"one", "two", "three"})
        ASSERT_TRUE(world.board->write(World::text(text)));
    EXPECT_EQ(world.peer.paste(), QByteArray("three"));
    EXPECT_EQ(world.board->copyCount(), 0);
    EXPECT_FALSE(world.orphaned);
}

TEST(WaylandPasteboard, AnOwnerThatNeverGivesCostsItselfOnly) {
    PasteboardLimits limits;
    limits.rendering = 50ms;
    World world(limits);
    world.copied({{QStringLiteral("image/png"), std::nullopt}, {plain, QByteArray("given")}});
    EXPECT_EQ(world.read(uniformtype::png), std::nullopt);
    EXPECT_EQ(world.read(), QByteArray("given"));
}

TEST(WaylandPasteboard, ATextThatIsOnItsWayWhenTheNextCopyComesIsRead) {
    PasteboardLimits limits;
    limits.farewell = 60s;
    World world(limits);
    world.copied({{plain, std::nullopt}});
    const auto reading = world.begin();
    auto items = world.finished(reading->itemTypes());
    auto text = reading->data(0, uniformtype::utf8PlainText, anySize);
    const auto outcome = std::make_shared<detail::AwaitedOutcome<std::optional<QByteArray>>>();
    const auto watching = detail::watchTask(std::move(text), outcome);
    world.peer.until([&] { return world.peer.sends() == 1; });
    WaylandPeer next;
    const qint64 before = world.board->copyCount();
    next.copyText("next");
    world.peer.until([&] { return world.board->copyCount() > before; });
    world.peer.answerLate("first");
    world.peer.until([&] { return outcome->isDone(); });
    EXPECT_EQ(*outcome->value, QByteArray("first"));
}

TEST(WaylandPasteboard, MoreThanIsWantedIsNotTaken) {
    World world;
    world.copied({{plain, QByteArray(4096, 'x')}});
    const auto reading = world.begin();
    EXPECT_EQ(world.finished(reading->data(0, uniformtype::utf8PlainText, 1000)), std::nullopt);
    EXPECT_TRUE(reading->wasLarger());
}

TEST(WaylandPasteboard, AReaderThatNeverReadsKeepsNobodyWaiting) {
    World world;
    ASSERT_TRUE(world.board->write(World::text(QByteArray(8 * 1024 * 1024, 'x'))));
    std::vector<Descriptor> stalled;
    for (int i = 0; i < 300; ++i)
        stalled.push_back(world.peer.askOnly(plain));
    EXPECT_EQ(world.peer.paste().size(), 8 * 1024 * 1024);
}

TEST(WaylandPasteboard, TheTextIsFoundAmongThousandsOfTypes) {
    World world;
    std::map<QString, std::optional<QByteArray>> contents;
    for (int i = 0; i < 3000; ++i)
        contents[QStringLiteral("application/x-private-%1").arg(i)] = QByteArray("x");
    contents[plain] = QByteArray("found");
    world.copied(contents);
    EXPECT_EQ(world.read(), QByteArray("found"));
    EXPECT_LE(world.begin()->types().size(), PasteboardLimits().targetCount + 1);
}

TEST(WaylandPasteboard, AConcealedCopyIsSeenWithoutAnyReading) {
    World world;
    world.copied({{plain, QByteArray("secret")}, {QStringLiteral("x-kde-passwordManagerHint"), QByteArray("secret")}});
    const auto reading = world.begin();
    EXPECT_TRUE(reading->types().contains(uniformtype::concealed));
    EXPECT_EQ(world.finished(reading->data(0, uniformtype::concealed, anySize)), std::nullopt);
    EXPECT_LE(world.peer.sends(), world.peer.keepersReadings());
}

TEST(WaylandPasteboard, ACopyWhoseProgramWentCanBeTakenOver) {
    World world;
    world.copied({{plain, QByteArray("orphan")}});
    const qint64 held = world.board->changeCount();
    world.peer.letGo();
    world.peer.until([&] { return world.orphaned.has_value(); });
    EXPECT_EQ(world.orphaned, held);
    EXPECT_TRUE(world.board->takeOver(World::text("orphan")));
    EXPECT_EQ(world.peer.paste(), QByteArray("orphan"));
}

TEST(WaylandPasteboard, ACopyOfAnothersIsNeverTakenOver) {
    World world;
    world.copied({{plain, QByteArray("first")}});
    world.peer.letGo();
    world.peer.until([&] { return world.orphaned.has_value(); });
    world.copied({{plain, QByteArray("second")}});
    EXPECT_FALSE(world.board->takeOver(World::text("first")));
    EXPECT_EQ(world.read(), QByteArray("second"));
}

TEST(WaylandPasteboard, WhatIsGivenUpIsGone) {
    World world;
    ASSERT_TRUE(world.board->write(World::text("secret")));
    world.board->giveUp(world.board->changeCount());
    world.peer.until([&] { return world.peer.types().isEmpty(); });
    EXPECT_FALSE(world.orphaned);
}

TEST(WaylandPasteboard, ThePrimarySelectionIsOffered) {
    World world;
    EXPECT_FALSE(world.board->offerAsPrimary());
    ASSERT_TRUE(world.board->write(World::text("ours")));
    EXPECT_TRUE(world.board->offerAsPrimary());
}

} // namespace

} // namespace vellumry
