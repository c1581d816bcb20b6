// SPDX-License-Identifier: GPL-3.0-or-later
#include "linux/wayland/selection/PipeWriter.h"

#include "wayland/TestPipe.h"

#include <gtest/gtest.h>
#include <unistd.h>

namespace vellumry {

namespace {

using namespace std::chrono_literals;
using Instant = PipeWriter::Instant;

constexpr qsizetype much = 1024 * 1024;

/// One program that reads what we serve, at times of our own.
struct World {
    World() {
        TestPipe pipe;
        reading = std::move(pipe.reading);
        writer.write(std::move(pipe.writing), QByteArray(much, 'x'), start);
    }
    /// How much the reader got; nothing when there is no more to come.
    std::optional<qsizetype> read(qsizetype most) {
        QByteArray bytes(most, Qt::Uninitialized);
        const ssize_t got = ::read(reading.get(), bytes.data(), std::size_t(most));
        return got == 0 ? std::nullopt : std::optional(std::max<qsizetype>(got, 0));
    }
    void look(Instant now) {
        std::vector<pollfd> descriptors;
        writer.addDescriptors(descriptors);
        (void)poll(descriptors.data(), descriptors.size(), 0);
        writer.handle(descriptors, now);
        writer.expire(now);
    }
    /// The rest that lies in the pipe, up to its end; false when the pipe has none yet.
    bool ends() {
        for (;;) {
            const auto got = read(much);
            if (!got || *got == 0)
                return !got;
        }
    }

    const Instant start = std::chrono::steady_clock::now();
    PipeWriter writer{10s};
    Descriptor reading;
};

TEST(PipeWriter, AReaderThatTakesAByteAMinuteLosesItsPipe) {
    World world;
    ASSERT_EQ(world.read(1), 1);
    world.look(world.start + 9s);
    EXPECT_NE(world.writer.nextDeadline(), std::nullopt);
    ASSERT_EQ(world.read(1), 1);
    world.look(world.start + 1min);
    EXPECT_EQ(world.writer.nextDeadline(), std::nullopt) << "nothing of it is kept";
    EXPECT_TRUE(world.ends()) << "the pipe is closed";
}

TEST(PipeWriter, AReaderThatIsSlowGetsAllOfIt) {
    World world;
    qsizetype taken = 0;
    Instant now = world.start;
    while (taken < much) {
        const auto got = world.read(32 * 1024);
        ASSERT_TRUE(got);
        taken += *got;
        now += 9s;
        world.look(now);
    }
    EXPECT_EQ(taken, much);
    EXPECT_TRUE(world.ends());
}

TEST(PipeWriter, AReaderThatGoesIsForgotten) {
    World world;
    world.reading.reset();
    world.look(world.start);
    EXPECT_EQ(world.writer.nextDeadline(), std::nullopt);
}

} // namespace

} // namespace vellumry
