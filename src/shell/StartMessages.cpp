// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/StartMessages.h"

#include "foundation/Localisation.h"

namespace vellumry {

std::vector<ToastMessage> startMessages(const StartNews& news) {
    using Tone = ToastMessage::Tone;
    std::vector<ToastMessage> messages;
    for (const QString& problem : news.shortcutProblems)
        messages.push_back({QStringLiteral("exclamationmark.triangle.fill"), problem, Tone::warning});
    if (!news.isFirstStart)
        return messages;
    // A shortcut that does not work is not recommended; the problem names it.
    if (news.shortcutProblems.isEmpty())
        messages.push_back({QStringLiteral("doc.on.clipboard.fill"),
                            localised("Vellumry remembers what you copy. Press %1 to see it").arg(news.openPanelKeys),
                            Tone::info});
    if (news.isWaylandSession)
        messages.push_back(
            {QStringLiteral("exclamationmark.triangle.fill"),
             localised("This is a Wayland session: Vellumry sees what X11 apps copy, and what the desktop "
                       "shares with them. Some copies may be missing"),
             Tone::warning});
    return messages;
}

} // namespace vellumry
