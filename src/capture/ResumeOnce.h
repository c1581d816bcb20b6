// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <coroutine>
#include <memory>
#include <optional>
#include <utility>

namespace vellumry {

/// An outcome that several may bring and the first one does; what the others bring is dropped. Copies are one and the
/// same. Awaited once, on the thread that all of them call on.
template <typename Outcome>
class ResumeOnce {
public:
    /// Resumes who waits, or keeps the outcome for who will.
    void resume(Outcome outcome) const {
        if (m_state->outcome)
            return;
        m_state->outcome = std::move(outcome);
        if (m_state->waiting)
            std::exchange(m_state->waiting, nullptr).resume();
    }

    [[nodiscard]] bool await_ready() const noexcept { return m_state->outcome.has_value(); }
    void await_suspend(std::coroutine_handle<> waiting) const { m_state->waiting = waiting; }
    [[nodiscard]] Outcome await_resume() const { return *m_state->outcome; }

private:
    struct State {
        std::optional<Outcome> outcome;
        std::coroutine_handle<> waiting;
    };
    /// Behind a pointer: the compiler may await a copy.
    std::shared_ptr<State> m_state = std::make_shared<State>();
};

} // namespace vellumry
