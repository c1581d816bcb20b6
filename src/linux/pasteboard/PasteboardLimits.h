// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QtGlobal>
#include <chrono>

namespace vellumry {

/// What other programs may cost us at most. The defaults are what the program runs with.
struct PasteboardLimits {
    using Milliseconds = std::chrono::milliseconds;

    Milliseconds targetList{8000};        ///< until the owner has said what it offers
    Milliseconds copy{8000};              ///< then, for all representations of a copy
    Milliseconds rendering{5000};         ///< between two signs of life while it gives a text, a picture, a document
    Milliseconds silence{1000};           ///< the same for a private type
    Milliseconds farewell{100};           ///< on Wayland, for what the owner before the present one was asked for
    Milliseconds saving{2000};            ///< until a program that quits hears whether its copy is kept
    Milliseconds ownership{250};          ///< until the server has confirmed that the selection is ours
    Milliseconds stalledRequestor{10000}; ///< between two chunks that a reader takes from us
    Milliseconds owedAnswers{1000};       ///< that the end waits for what the window manager owes us
    int targetCount = 1000; ///< private types taken from one offer; known ones are taken whatever their number
    qint64 fileListBytes = 64 * 1024 * 1024;
};

} // namespace vellumry
