// SPDX-License-Identifier: GPL-3.0-or-later
#include "linux/wayland/selection/PipeReader.h"

#include <csignal>
#include <fcntl.h>
#include <gtest/gtest.h>
#include <unistd.h>

namespace vellumry {

namespace {

using namespace std::chrono_literals;
using Instant = PipeReader::Instant;

/// One owner that writes into a pipe, at times of our own.
struct World {
    World() {
        std::signal(SIGPIPE, SIG_IGN); // as on the pasteboard's thread
        int ends[2] = {-1, -1};
        EXPECT_EQ(pipe2(ends, O_CLOEXEC), 0);
        fcntl(ends[0], F_SETFL, O_NONBLOCK);
        writing = Descriptor(ends[1]);
        PipeReader::Request request;
        request.pipe = Descriptor(ends[0]);
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
