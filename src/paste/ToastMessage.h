// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace vellumry {

/// One line of feedback that shows for a moment and takes no focus.
struct ToastMessage {
    enum class Tone : quint8 { success, info, warning };

    QString symbol; ///< name of one of the program's symbols, without its extension
    QString text;   ///< in the user's language already
    Tone tone = Tone::info;

    bool operator==(const ToastMessage&) const = default;
};

} // namespace vellumry
