// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/QtNotices.h"

#include <QString>
#include <QtGlobal>
#include <algorithm>
#include <array>

namespace vellumry {

namespace {

constexpr std::array<QStringView, 5> notices{
    // There is no GL, which is our own choice.
    u"Failed to load client buffer integration: \"none\"",
    u"Available client buffer integrations:",
    u"Warning: fallback to QtQuick software backend.",
    // Portals look at the program's files, which it hides. It makes itself known on a connection of its own (Qt 6.11).
    u"Failed to register with host portal",
    u"dbus reply error: [ \"org.freedesktop.DBus.Error.AccessDenied\" ] \"Portal operation not allowed",
};

/// What writes all other messages.
QtMessageHandler handler = nullptr;

void writeOthers(QtMsgType type, const QMessageLogContext& context, const QString& message) {
    const bool isNotice =
        std::ranges::any_of(notices, [&message](QStringView notice) { return message.startsWith(notice); });
    if (!isNotice && handler != nullptr)
        handler(type, context, message);
}

} // namespace

void leaveOutQtNotices() {
    handler = qInstallMessageHandler(&writeOthers);
}

} // namespace vellumry
