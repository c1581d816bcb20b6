// SPDX-License-Identifier: GPL-3.0-or-later
#include "paste/PasteOutcome.h"

#include "foundation/Localisation.h"

namespace vellumry {

namespace {

ToastMessage blockedToast(const QString& folder) {
    return {QStringLiteral("lock.doc.fill"),
            localised("To paste files from %1, allow Vellumry in Privacy & Security → Files and Folders").arg(folder),
            ToastMessage::Tone::warning};
}

ToastMessage missingToast() {
    return {QStringLiteral("trash.fill"), localised("This file was deleted"), ToastMessage::Tone::warning};
}

ToastMessage copiedOnlyToast(PasteReason reason) {
    if (reason == PasteReason::secureInput)
        return {QStringLiteral("lock.fill"), localised("This field blocks pasting from apps. Press ⌘V"),
                ToastMessage::Tone::info};
    return {QStringLiteral("doc.on.clipboard.fill"), localised("Copied. Press ⌘V to paste"), ToastMessage::Tone::info};
}

} // namespace

std::optional<ToastMessage> toastFor(const PasteOutcome& outcome) {
    switch (outcome.kind) {
    case PasteOutcome::Case::pasted:
        return std::nullopt;
    case PasteOutcome::Case::copiedOnly:
        return copiedOnlyToast(outcome.reason);
    case PasteOutcome::Case::filesBlocked:
        return blockedToast(outcome.folder);
    case PasteOutcome::Case::fileMissing:
        return missingToast();
    case PasteOutcome::Case::failed:
        break;
    }
    return ToastMessage{QStringLiteral("xmark.circle.fill"), localised("Couldn't paste this clip"),
                        ToastMessage::Tone::warning};
}

ToastMessage toastFor(const CopyOutcome& outcome) {
    switch (outcome.kind) {
    case CopyOutcome::Case::copied:
        return {QStringLiteral("checkmark.circle.fill"), localised("Copied"), ToastMessage::Tone::success};
    case CopyOutcome::Case::filesBlocked:
        return blockedToast(outcome.folder);
    case CopyOutcome::Case::fileMissing:
        return missingToast();
    case CopyOutcome::Case::failed:
        break;
    }
    return {QStringLiteral("xmark.circle.fill"), localised("This clip can't be copied anymore"),
            ToastMessage::Tone::warning};
}

} // namespace vellumry
