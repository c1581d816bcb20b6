// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QtGlobal>
#include <chrono>

namespace vellumry {

/// What other programs may cost us at most. The defaults are what the program runs with.
struct PasteboardLimits {
    using Milliseconds = std::chrono::milliseconds;

    Milliseconds targetList{500};         ///< until the owner has said what it offers
    Milliseconds silence{1000};           ///< between two signs of life while it gives one representation
    Milliseconds rendering{5000};         ///< the same for a picture or a document, before its first byte and after
    Milliseconds copy{8000};              ///< for all representations of a copy
    Milliseconds ownership{250};          ///< until the server has confirmed that the selection is ours
    Milliseconds stalledRequestor{10000}; ///< between two chunks that a reader takes from us
    int targetCount = 1000;               ///< names looked at in one offer
    qint64 fileListBytes = 64 * 1024 * 1024;
};

} // namespace vellumry
