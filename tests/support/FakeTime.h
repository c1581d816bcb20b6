// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/desktop/DateTimer.h"

#include <memory>
#include <optional>
#include <utility>

namespace vellumry {

/// A clock that a test moves, with the timer that waits on it. Clock and timer may outlive it.
class FakeTime {
    struct State;

public:
    class Timer : public DateTimer {
    public:
        explicit Timer(const FakeTime& time)
            : m_state(time.m_state) {
            m_state->timer = this;
        }
        ~Timer() override {
            if (m_state->timer == this)
                m_state->timer = nullptr;
        }
        void arm(Date date) override { m_date = date; }
        void disarm() override { m_date.reset(); }

    private:
        friend class FakeTime;
        std::shared_ptr<State> m_state;
        std::optional<Date> m_date;
    };

    explicit FakeTime(Date now) { m_state->now = now; }
    [[nodiscard]] Clock clock() const {
        return [state = m_state] { return state->now; };
    }
    /// When the latest timer wakes next.
    [[nodiscard]] std::optional<Date> waitsFor() const {
        return m_state->timer ? m_state->timer->m_date : std::nullopt;
    }

    /// Time goes by, asleep or awake: what is due on the way wakes at the end.
    void pass(double seconds) {
        m_state->now += seconds;
        if (waitsFor() && *waitsFor() <= m_state->now)
            wake();
    }
    /// Somebody sets the clock: an armed timer wakes, due or not.
    void set(Date now) {
        m_state->now = now;
        if (waitsFor())
            wake();
    }

private:
    struct State {
        Date now = 0;
        Timer* timer = nullptr;
    };
    void wake() {
        m_state->timer->m_date.reset();
        m_state->timer->onWake();
    }
    std::shared_ptr<State> m_state = std::make_shared<State>();
};

} // namespace vellumry
