// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "linux/wayland/Descriptor.h"

#include <csignal>
#include <fcntl.h>
#include <gtest/gtest.h>
#include <unistd.h>

namespace vellumry {

/// A pipe between two programs: what reads from it does not wait. A writer whose reader is gone is told so by an error,
/// as on the pasteboard's thread, and is not ended by a signal.
struct TestPipe {
    TestPipe() {
        std::signal(SIGPIPE, SIG_IGN);
        int ends[2] = {-1, -1};
        EXPECT_EQ(pipe2(ends, O_CLOEXEC), 0);
        reading = Descriptor(ends[0]);
        writing = Descriptor(ends[1]);
        EXPECT_EQ(fcntl(reading.get(), F_SETFL, O_NONBLOCK), 0);
    }

    Descriptor reading;
    Descriptor writing;
};

} // namespace vellumry
