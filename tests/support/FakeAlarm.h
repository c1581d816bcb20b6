// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/Alarm.h"

#include <optional>
#include <utility>

namespace vellumry {

/// An alarm by a clock that a test moves.
class FakeAlarm : public Alarm {
public:
    void ring(std::chrono::milliseconds delay, std::function<void()> action) override {
        m_left = delay;
        m_action = std::move(action);
    }
    void cancel() override {
        m_left.reset();
        m_action = nullptr;
    }

    /// Time goes by; what is due rings.
    void pass(std::chrono::milliseconds time) {
        if (!m_left)
            return;
        *m_left -= time;
        if (*m_left > std::chrono::milliseconds::zero())
            return;
        m_left.reset();
        std::exchange(m_action, nullptr)();
    }
    [[nodiscard]] bool isWaiting() const { return m_left.has_value(); }

private:
    std::optional<std::chrono::milliseconds> m_left;
    std::function<void()> m_action;
};

} // namespace vellumry
