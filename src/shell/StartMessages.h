// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "paste/ToastMessage.h"

#include <QString>
#include <QStringList>
#include <vector>

namespace vellumry {

/// What there is to say at a start, besides alerts.
struct StartNews {
    bool isFirstStart = false;
    bool isWaylandSession = false;
    QString openPanelKeys;        ///< as the user reads them
    QStringList shortcutProblems; ///< a sentence each
};

/// One message after the other, the important ones first. A start that is not the first, with all shortcuts free, has
/// nothing to say.
[[nodiscard]] std::vector<ToastMessage> startMessages(const StartNews& news);

} // namespace vellumry
