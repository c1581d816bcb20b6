// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/display/PasteTarget.h"

#include <coroutine>
#include <functional>
#include <utility>

namespace vellumry {

/// The window in front, as far as pasting knows it. Answers at once, without suspending.
class FakePasteTarget : public PasteTarget {
public:
    bool trusted = true;
    bool secureInput = false;
    bool holdsAnswer = false; ///< `isSecureInput` answers with `answer` only
    bool focusComesBack = true;
    int trustRequests = 0;
    int focusRequests = 0;
    int presses = 0;
    std::function<void()> onPress = [] {}; ///< called at each press

    [[nodiscard]] bool isTrusted() const override { return trusted; }
    void requestTrust() override { ++trustRequests; }
    [[nodiscard]] QCoro::Task<bool> isSecureInput() override {
        Wait wait{this};
        co_await wait;
        co_return secureInput;
    }
    [[nodiscard]] QCoro::Task<bool> regainFocus() override {
        ++focusRequests;
        co_return focusComesBack;
    }
    void pressPaste() override {
        ++presses;
        onPress();
    }
    void answer() { std::exchange(m_asking, nullptr).resume(); }

private:
    struct Wait {
        FakePasteTarget* target;
        bool await_ready() const noexcept { return !target->holdsAnswer; }
        void await_suspend(std::coroutine_handle<> handle) { target->m_asking = handle; }
        void await_resume() const noexcept {}
    };

    std::coroutine_handle<> m_asking;
};

} // namespace vellumry
