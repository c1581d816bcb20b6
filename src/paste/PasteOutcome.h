// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "paste/ToastMessage.h"

#include <QString>
#include <optional>

namespace vellumry {

/// Why a clip went to the pasteboard only.
enum class PasteReason : quint8 {
    notTrusted = 0,     ///< we may not press keys in this session
    secureInput = 1,    ///< a password field has the focus, or another program holds the keyboard
    directPasteOff = 2, ///< the user wants it so
    targetGone = 3      ///< the window that the user was typing in did not get its focus back
};

/// What became of a paste.
struct PasteOutcome {
    enum class Case : quint8 {
        pasted,       ///< written, and the keys were pressed
        copiedOnly,   ///< written, no key was pressed
        filesBlocked, ///< the system would refuse the files; nothing was written
        fileMissing,  ///< no file of a file clip exists any more; nothing was written
        failed        ///< no payload, or the pasteboard refused
    };

    Case kind = Case::failed;
    PasteReason reason{}; ///< with `copiedOnly`
    QString folder;       ///< with `filesBlocked`: the place that is blocked, as the user knows it

    [[nodiscard]] static PasteOutcome pasted() { return {Case::pasted, {}, {}}; }
    [[nodiscard]] static PasteOutcome copiedOnly(PasteReason reason) { return {Case::copiedOnly, reason, {}}; }
    [[nodiscard]] static PasteOutcome filesBlocked(QString folder) {
        return {Case::filesBlocked, {}, std::move(folder)};
    }
    [[nodiscard]] static PasteOutcome fileMissing() { return {Case::fileMissing, {}, {}}; }
    [[nodiscard]] static PasteOutcome failed() { return {Case::failed, {}, {}}; }

    bool operator==(const PasteOutcome&) const = default;
};

/// What became of a copy without a paste.
struct CopyOutcome {
    enum class Case : quint8 { copied, filesBlocked, fileMissing, failed };

    Case kind = Case::failed;
    QString folder; ///< with `filesBlocked`

    [[nodiscard]] static CopyOutcome copied() { return {Case::copied, {}}; }
    [[nodiscard]] static CopyOutcome filesBlocked(QString folder) { return {Case::filesBlocked, std::move(folder)}; }
    [[nodiscard]] static CopyOutcome fileMissing() { return {Case::fileMissing, {}}; }
    [[nodiscard]] static CopyOutcome failed() { return {Case::failed, {}}; }

    bool operator==(const CopyOutcome&) const = default;
};

/// What the user is told; nothing for a paste that worked, since it shows by itself.
[[nodiscard]] std::optional<ToastMessage> toastFor(const PasteOutcome& outcome);
[[nodiscard]] ToastMessage toastFor(const CopyOutcome& outcome);

} // namespace vellumry
