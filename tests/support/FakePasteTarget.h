// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/PasteTarget.h"

#include <functional>

namespace vellumry {

/// The window in front, as far as pasting knows it. Answers at once, without suspending.
class FakePasteTarget : public PasteTarget {
public:
    bool trusted = true;
    bool secureInput = false;
    bool focusComesBack = true;
    int trustRequests = 0;
    int focusRequests = 0;
    int presses = 0;
    std::function<void()> onPress = [] {}; ///< called at each press

    [[nodiscard]] bool isTrusted() const override { return trusted; }
    void requestTrust() override { ++trustRequests; }
    [[nodiscard]] bool isSecureInput() const override { return secureInput; }
    [[nodiscard]] QCoro::Task<bool> regainFocus() override {
        ++focusRequests;
        co_return focusComesBack;
    }
    void pressPaste() override {
        ++presses;
        onPress();
    }
};

} // namespace vellumry
