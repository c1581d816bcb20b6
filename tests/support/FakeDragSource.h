// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/display/DragSource.h"

#include <utility>

namespace vellumry {

/// A display whose windows take what is dragged, or do not; what was dragged is kept.
class FakeDragSource : public DragSource {
public:
    bool begin(Content dragged, std::function<void(End)> onEnd) override {
        if (!allows)
            return false;
        ++begun;
        content = std::move(dragged);
        m_onEnd = std::move(onEnd);
        return true;
    }
    void move() override { ++moves; }
    void release() override { end(takes ? End::dropped : End::refused); }
    void cancel() override { end(End::refused); }

    bool allows = true;
    bool takes = true;
    int begun = 0;
    int moves = 0;
    Content content;

private:
    void end(End end) {
        if (const auto onEnd = std::exchange(m_onEnd, nullptr))
            onEnd(end);
    }
    std::function<void(End)> m_onEnd;
};

} // namespace vellumry
