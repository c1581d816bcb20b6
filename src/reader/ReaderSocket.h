// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <chrono>
#include <optional>

/// Whole messages over a stream socket, with a descriptor beside them. Blocking calls with a deadline. Any thread.
namespace vellumry::readersocket {

using Clock = std::chrono::steady_clock;

/// Owns a file descriptor. Not copied; -1 is none.
class Descriptor {
public:
    explicit Descriptor(int number = -1)
        : m_number(number) {}
    Descriptor(Descriptor&& other) noexcept
        : m_number(other.release()) {}
    Descriptor& operator=(Descriptor&& other) noexcept;
    ~Descriptor();

    [[nodiscard]] int get() const { return m_number; }
    [[nodiscard]] bool isValid() const { return m_number >= 0; }
    [[nodiscard]] int release();

private:
    int m_number;
};

struct Message {
    QByteArray bytes;
    Descriptor attached;
};

/// Sends `bytes` with `attached` beside the first of them (-1: nothing). False when the other side is gone or does not
/// read.
[[nodiscard]] bool send(int socket, const QByteArray& bytes, int attached, Clock::time_point deadline);

/// Receives one message, without its length. Nothing at the deadline, at the end of the stream, and for a message that
/// says to be longer than `maxBytes`.
[[nodiscard]] std::optional<Message> receive(int socket, quint32 maxBytes, Clock::time_point deadline);

/// Waits until something can be received. False at the deadline; true at the end of the stream too.
[[nodiscard]] bool waitForInput(int socket, Clock::time_point deadline);

} // namespace vellumry::readersocket
