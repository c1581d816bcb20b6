// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/RendererNotices.h"

#include <QString>
#include <QtGlobal>
#include <algorithm>
#include <array>

namespace vellumry {

namespace {

constexpr std::array<QStringView, 3> notices{u"Failed to load client buffer integration: \"none\"",
                                             u"Available client buffer integrations:",
                                             u"Warning: fallback to QtQuick software backend."};

/// What writes all other messages.
QtMessageHandler handler = nullptr;

void writeOthers(QtMsgType type, const QMessageLogContext& context, const QString& message) {
    const bool isNotice =
        std::ranges::any_of(notices, [&message](QStringView notice) { return message.startsWith(notice); });
    if (!isNotice && handler != nullptr)
        handler(type, context, message);
}

} // namespace

void leaveOutRendererNotices() {
    handler = qInstallMessageHandler(&writeOthers);
}

} // namespace vellumry
