// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/files/TextReader.h"

#include <coroutine>
#include <deque>
#include <utility>
#include <vector>

namespace vellumry {

/// Gives the readings that it was told, in turn, at once, and remembers what it was asked; told none, it stays silent
/// until `answer`.
class FakeTextReader : public TextReader {
public:
    struct Request {
        QByteArray image;
        Mode mode;
        int maxPixelSize;
        std::chrono::milliseconds timeLimit;
        bool operator==(const Request&) const = default;
    };

    std::deque<Reading> readings;  ///< the answers, the next one in front
    std::vector<Request> requests; ///< in the order in which they came

    [[nodiscard]] QCoro::Task<Reading> read(QByteArray image, Mode mode, int maxPixelSize,
                                            std::chrono::milliseconds timeLimit) override {
        requests.push_back({std::move(image), mode, maxPixelSize, timeLimit});
        Silence silence{this};
        co_await silence;
        const Reading reading = readings.front();
        readings.pop_front();
        co_return reading;
    }

    /// True when somebody waits for an answer.
    [[nodiscard]] bool isSilent() const { return m_silent != nullptr; }
    /// Breaks the silence.
    void answer(Reading reading) {
        readings.push_back(std::move(reading));
        std::exchange(m_silent, nullptr).resume();
    }

private:
    struct Silence {
        FakeTextReader* reader;
        [[nodiscard]] bool await_ready() const { return !reader->readings.empty(); }
        void await_suspend(std::coroutine_handle<> waiting) const { reader->m_silent = waiting; }
        void await_resume() const {}
    };

    std::coroutine_handle<> m_silent;
};

} // namespace vellumry
