// SPDX-License-Identifier: GPL-3.0-or-later
#include "paste/PasteOutcome.h"

#include <gtest/gtest.h>

namespace vellumry {

namespace {

using Tone = ToastMessage::Tone;

ToastMessage message(const char* symbol, const char* text, Tone tone) {
    return {QString::fromUtf8(symbol), QString::fromUtf8(text), tone};
}

const ToastMessage blocked =
    message("lock.doc.fill", "To paste files from Desktop, allow Vellumry in Privacy & Security → Files and Folders",
            Tone::warning);
const ToastMessage missing = message("trash.fill", "This file was deleted", Tone::warning);

} // namespace

TEST(PasteOutcome, APasteThatWorkedSaysNothing) {
    EXPECT_EQ(toastFor(PasteOutcome::pasted()), std::nullopt);
}

TEST(PasteOutcome, SaysWhatToDoWhenNoKeyWasPressed) {
    const auto press = message("doc.on.clipboard.fill", "Copied. Press ⌘V to paste", Tone::info);
    EXPECT_EQ(toastFor(PasteOutcome::copiedOnly(PasteReason::notTrusted)), press);
    EXPECT_EQ(toastFor(PasteOutcome::copiedOnly(PasteReason::directPasteOff)), press);
    EXPECT_EQ(toastFor(PasteOutcome::copiedOnly(PasteReason::targetGone)), press);
    EXPECT_EQ(toastFor(PasteOutcome::copiedOnly(PasteReason::secureInput)),
              message("lock.fill", "This field blocks pasting from apps. Press ⌘V", Tone::info));
}

TEST(PasteOutcome, SaysWhyNothingWasWritten) {
    EXPECT_EQ(toastFor(PasteOutcome::filesBlocked(QStringLiteral("Desktop"))), blocked);
    EXPECT_EQ(toastFor(PasteOutcome::fileMissing()), missing);
    EXPECT_EQ(toastFor(PasteOutcome::failed()),
              message("xmark.circle.fill", "Couldn't paste this clip", Tone::warning));
}

TEST(PasteOutcome, SaysWhatBecameOfACopy) {
    EXPECT_EQ(toastFor(CopyOutcome::copied()), message("checkmark.circle.fill", "Copied", Tone::success));
    EXPECT_EQ(toastFor(CopyOutcome::filesBlocked(QStringLiteral("Desktop"))), blocked);
    EXPECT_EQ(toastFor(CopyOutcome::fileMissing()), missing);
    EXPECT_EQ(toastFor(CopyOutcome::failed()),
              message("xmark.circle.fill", "This clip can't be copied anymore", Tone::warning));
}

} // namespace vellumry
