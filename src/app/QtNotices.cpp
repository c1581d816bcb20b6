// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/QtNotices.h"

#include <QString>
#include <QtGlobal>
#include <algorithm>
#include <array>

namespace vellumry {

namespace {

constexpr std::array<QStringView, 9> notices{
    // There is no GL, which is our own choice.
    u"Failed to load client buffer integration: \"none\"",
    u"Available client buffer integrations:",
    u"Warning: fallback to QtQuick software backend.",
    // GNOME tells of each window that loses the keyboard once more, when its surface is gone.
    u"virtual void QtWaylandClient::QWaylandTextInputv3::zwp_text_input_v3_leave",
    // Screen readers' library asks for a connection without the bus between, and takes the refusal for an answer.
    u"AtSpiAdaptor::applicationInterface does not implement \"GetApplicationBusAddress\"",
    // They ask for rows that have gone meanwhile, dozens for a deletion, and to be told what Qt cannot tell (Qt 6.8).
    u"Could not find accessible on path:",
    u"Subscription string not handled:",
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
