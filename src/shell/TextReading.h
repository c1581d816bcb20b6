// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "capture/text/TextReadingQueue.h"
#include "paste/ToastMessage.h"
#include "shell/Platform.h"

#include <functional>
#include <memory>

namespace vellumry {

/// The reading of text in pictures as the running program has it: the queue, with the platform behind it. Main thread.
class TextReading {
public:
    /// Both must outlive the result.
    TextReading(Platform& platform, ClipStore& store);

    [[nodiscard]] TextReadingQueue& queue() { return *m_queue; }

    /// A clip came into the history: its text is read if it is a picture.
    void take(const ClipRef& clip);
    /// Has what the history lacks read, a few seconds from now, so that it does not get in the way of the launch.
    void scheduleBacklog();

    std::function<void(const ToastMessage& message)> onToast = [](const ToastMessage&) {};

private:
    std::shared_ptr<TextRecognizer> m_recognizer;
    std::unique_ptr<TextReadingQueue> m_queue;
};

} // namespace vellumry
