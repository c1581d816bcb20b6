// SPDX-License-Identifier: GPL-3.0-or-later
// The pasteboard with a compositor that has bad manners, none or two seats, or that goes.
#include "foundation/UniformType.h"
#include "linux/wayland/keys/CompositorKeys.h"
#include "linux/wayland/keys/WaylandKeymap.h"
#include "linux/wayland/selection/WaylandPasteboard.h"
#include "linux/wayland/windows/WaylandFocus.h"
#include "linux/wayland/windows/WaylandIdleTime.h"
#include "support/Awaited.h"
#include "wayland/FakeCompositor.h"

#include <QCoreApplication>
#include <gtest/gtest.h>

namespace vellumry {

namespace {

using namespace std::chrono_literals;

constexpr qint64 anySize = 1LL << 40;
const QStringList words{QStringLiteral("text/plain;charset=utf-8")};

struct World {
    explicit World(int seats)
        : compositor(seats) {
        PasteboardLimits limits;
        limits.silence = 50ms;
        limits.rendering = 50ms;
        limits.ownership = 2000ms;
        board = std::move(*WaylandPasteboard::create(compositor.name(), limits));
    }
    /// Whether another program's copy is seen.
    [[nodiscard]] bool sees() {
        const qint64 before = board->copyCount();
        compositor.offer(words);
        runUntil([&] { return board->copyCount() > before; });
        const auto reading = awaited(board->beginReading());
        return reading && reading->types().contains(uniformtype::utf8PlainText);
    }
    [[nodiscard]] bool writes() {
        return board->write({PasteboardItem{{{uniformtype::utf8PlainText, "ours"}}, std::nullopt}});
    }

    FakeCompositor compositor;
    std::unique_ptr<WaylandPasteboard> board;
};

TEST(HostileCompositor, WithoutASeatNothingIsSeenOrWrittenUntilOneComes) {
    World world(0);
    EXPECT_FALSE(world.writes());
    EXPECT_EQ(awaited(world.board->beginReading()), nullptr);
    world.compositor.addSeat();
    runUntil([&] { return world.compositor.devices() == 1; });
    EXPECT_TRUE(world.sees());
    EXPECT_TRUE(world.writes());
    EXPECT_FALSE(world.compositor.held().isEmpty());
}

TEST(HostileCompositor, OfTwoSeatsTheSecondIsFollowedWhenTheFirstGoes) {
    World world(2);
    EXPECT_EQ(world.compositor.devices(), 1);
    EXPECT_TRUE(world.sees());
    const qint64 before = world.board->copyCount();
    world.compositor.removeSeat();
    runUntil([&] { return world.board->copyCount() > before; });
    EXPECT_EQ(world.compositor.devices(), 1) << "the copy that stands on the other seat";
    EXPECT_TRUE(world.writes());
}

TEST(HostileCompositor, AllSeatsMayGoAndComeBack) {
    World world(1);
    EXPECT_TRUE(world.sees());
    world.compositor.removeSeat();
    runUntil([&] { return world.compositor.devices() == 0; });
    EXPECT_FALSE(world.writes());
    world.compositor.addSeat();
    runUntil([&] { return world.compositor.devices() == 1; });
    EXPECT_TRUE(world.writes());
}

TEST(HostileCompositor, WhatWasBoundWorksOnWhenItIsOfferedNoMore) {
    World world(1);
    world.compositor.withdrawManager();
    EXPECT_TRUE(world.sees());
    EXPECT_TRUE(world.writes());
}

TEST(HostileCompositor, AnOfferWhoseDataNeverComesIsGivenUp) {
    World world(1);
    ASSERT_TRUE(world.sees());
    const auto reading = awaited(world.board->beginReading());
    ASSERT_TRUE(reading);
    EXPECT_EQ(awaited(reading->data(0, uniformtype::utf8PlainText, anySize)), std::nullopt);
    EXPECT_EQ(world.compositor.asked().size(), 1U) << "it was asked, and holds the pipe for good";
    EXPECT_TRUE(world.sees()) << "the next copy is seen as ever";
}

TEST(HostileCompositor, WhenItGoesAllThatIsOpenIsAnsweredWithNothing) {
    World world(1);
    ASSERT_TRUE(world.sees());
    const auto reading = awaited(world.board->beginReading());
    ASSERT_TRUE(reading);
    const auto outcome = std::make_shared<detail::AwaitedOutcome<std::optional<QByteArray>>>();
    const auto watching = detail::watchTask(reading->data(0, uniformtype::utf8PlainText, anySize), outcome);
    world.compositor.die();
    runUntil([&] { return outcome->isDone(); });
    EXPECT_EQ(*outcome->value, std::nullopt);
    EXPECT_FALSE(world.writes());
    EXPECT_EQ(awaited(world.board->beginReading()), nullptr);
    awaited(world.board->catchUp());
}

TEST(HostileCompositor, WithoutASeatNoKeyIsPressedAndNoRestCounted) {
    const FakeCompositor compositor(0);
    const auto connection = WaylandConnection::create(compositor.name());
    ASSERT_TRUE(connection);
    EXPECT_EQ((*connection)->seat(), nullptr);
    const auto keymap = std::make_shared<WaylandKeymap>(*connection);
    EXPECT_EQ(makeCompositorKeys(*connection, keymap), nullptr);
    EXPECT_EQ(WaylandIdleTime(*connection).seconds(), 0);
    const WaylandFocus focus(WaylandWindows::create(*connection));
}

TEST(HostileCompositor, WhenItGoesTheConnectionForKeysTellsOnceAndOneToTheNextWorks) {
    FakeCompositor compositor(1);
    const auto connection = WaylandConnection::create(compositor.name());
    ASSERT_TRUE(connection);
    const auto keymap = std::make_shared<WaylandKeymap>(*connection);
    int told = 0;
    QObject::connect(connection->get(), &WaylandConnection::broke, connection->get(), [&told] { ++told; });
    compositor.die();
    runUntil([&] { return told > 0; });
    (*connection)->flush();
    (*connection)->roundTrip();
    QCoreApplication::processEvents();
    EXPECT_EQ(told, 1);
    EXPECT_TRUE(WaylandConnection::create(compositor.name()));
}

TEST(HostileCompositor, ThousandsOfTypesAreCutToThoseThatAreKnownAndAFewOthers) {
    World world(1);
    QStringList types;
    for (int index = 0; index < 3000; ++index)
        types.append(QStringLiteral("application/x-private-%1").arg(index));
    types += words;
    world.compositor.offer(types);
    runUntil([&] { return world.board->copyCount() == 1; });
    const auto reading = awaited(world.board->beginReading());
    ASSERT_TRUE(reading);
    EXPECT_TRUE(reading->types().contains(uniformtype::utf8PlainText));
    EXPECT_LE(reading->types().size(), PasteboardLimits().targetCount + 1);
}

} // namespace

} // namespace vellumry
