// SPDX-License-Identifier: GPL-3.0-or-later
#include "linux/wayland/selection/PipeReader.h"

#include "wayland/TestPipe.h"

#include <gtest/gtest.h>
#include <unistd.h>

namespace vellumry {

namespace {

using namespace std::chrono_literals;
using Instant = PipeReader::Instant;

/// One owner that writes into a pipe, at times of our own.
struct World {
    World() {
        TestPipe pipe;
        writing = std::move(pipe.writing);
        PipeReader::Request request;
        request.pipe = std::move(pipe.reading);
        request.maxBytes = 1000;
        request.silence = 90s;
        request.deadline = start + 10min;
        request.done = [this](std::optional<PipeReader::Outcome> outcome) {
            ++answers;
            given = std::move(outcome);
        };
        reader.read(std::move(request), start);
    }
    void write(const QByteArray& bytes) const {
        EXPECT_EQ(::write(writing.get(), bytes.constData(), std::size_t(bytes.size())), bytes.size());
    }
    void look(Instant now) {
        std::vector<pollfd> descriptors;
        reader.addDescriptors(descriptors);
        (void)poll(descriptors.data(), descriptors.size(), 0);
        reader.handle(descriptors, now);
        reader.expire(now);
    }

    const Instant start = std::chrono::steady_clock::now();
    PipeReader reader;
    Descriptor writing;
    int answers = 0;
    std::optional<PipeReader::Outcome> given;
};

TEST(PipeReader, WhatComesInPiecesIsOne) {
    World world;
    world.write("one ");
    world.look(world.start + 1s);
    world.write("two");
    world.look(world.start + 2s);
    EXPECT_EQ(world.answers, 0);
    world.writing.reset();
    world.look(world.start + 3s);
    ASSERT_TRUE(world.given);
    EXPECT_EQ(world.given->bytes, QByteArray("one two"));
    EXPECT_EQ(world.reader.nextDeadline(), std::nullopt);
}

TEST(PipeReader, AnOwnerThatWritesAByteAMinuteIsGivenUpAtTheEndOfTheCopysTime) {
    World world;
    for (int minute = 1; minute < 10; ++minute) {
        world.write("x");
        world.look(world.start + minute * 1min);
        EXPECT_EQ(world.answers, 0) << minute;
    }
    EXPECT_EQ(world.reader.nextDeadline(), world.start + 10min);
    world.write("x");
    world.look(world.start + 10min);
    EXPECT_EQ(world.answers, 1);
    EXPECT_FALSE(world.given);
    EXPECT_EQ(write(world.writing.get(), "x", 1), -1) << "its pipe is closed";
}

TEST(PipeReader, AnOwnerThatFallsSilentIsGivenUpSooner) {
    World world;
    world.write("x");
    world.look(world.start + 1min);
    world.look(world.start + 1min + 89s);
    EXPECT_EQ(world.answers, 0);
    world.look(world.start + 1min + 90s);
    EXPECT_EQ(world.answers, 1);
    EXPECT_FALSE(world.given);
}

TEST(PipeReader, WhatIsOnItsWayHasAWhileToCome) {
    World world;
    world.write("one ");
    world.reader.endAllAt(world.start + 100ms);
    world.write("two");
    world.writing.reset();
    world.look(world.start + 99ms);
    ASSERT_TRUE(world.given);
    EXPECT_EQ(world.given->bytes, QByteArray("one two"));
}

TEST(PipeReader, WhatDoesNotComeInThatWhileIsGivenUp) {
    World world;
    world.reader.endAllAt(world.start + 100ms);
    EXPECT_EQ(world.reader.nextDeadline(), world.start + 100ms);
    world.look(world.start + 99ms);
    EXPECT_EQ(world.answers, 0);
    world.look(world.start + 100ms);
    EXPECT_EQ(world.answers, 1);
    EXPECT_FALSE(world.given);
}

TEST(PipeReader, OneByteMoreThanIsWantedIsSaidAndNotKept) {
    World world;
    world.write(QByteArray(1000, 'x'));
    world.look(world.start);
    EXPECT_EQ(world.answers, 0);
    world.write("x");
    world.look(world.start);
    ASSERT_TRUE(world.given);
    EXPECT_TRUE(world.given->wasLarger);
    EXPECT_EQ(world.given->bytes, QByteArray());
}

} // namespace

} // namespace vellumry
