// SPDX-License-Identifier: GPL-3.0-or-later
#include "capture/MessageHosts.h"

#include <QSet>
#include <algorithm>
#include <array>

namespace vellumry {

namespace {

/// Web mail, then a phone's text messages, then messengers.
constexpr std::array<QStringView, 14> messageHosts{
    u"mail.google.com",     u"outlook.live.com", u"outlook.office.com", u"outlook.office365.com", u"mail.yahoo.com",
    u"mail.yahoo.co.jp",    u"mail.proton.me",   u"mail.yandex.com",    u"mail.yandex.ru",        u"app.fastmail.com",
    u"messages.google.com", u"web.whatsapp.com", u"web.telegram.org",   u"webk.telegram.org",
};

/// This host also serves everything else of its service, so there the path decides.
constexpr QStringView hostWithMailPath = u"www.icloud.com";
constexpr QStringView mailPath = u"/mail";

} // namespace

bool isMessageApp(const QString& bundleID) {
    static const QSet<QString> messageApps{
        QStringLiteral("com.apple.MobileSMS"),
        QStringLiteral("com.apple.mail"),
        QStringLiteral("com.microsoft.Outlook"),
        QStringLiteral("net.whatsapp.WhatsApp"),
        QStringLiteral("desktop.WhatsApp"),
        QStringLiteral("ru.keepcoder.Telegram"),
        QStringLiteral("org.whispersystems.signal-desktop"),
    };
    return messageApps.contains(bundleID);
}

bool isMessageURL(const QUrl& url) {
    const QString scheme = url.scheme().toLower();
    const QString host = url.host().toLower();
    if ((scheme != u"https" && scheme != u"http") || host.isEmpty())
        return false;
    if (host == hostWithMailPath)
        return url.path().toLower().startsWith(mailPath);
    return std::ranges::any_of(messageHosts, [&host](QStringView entry) {
        return host == entry || (host.endsWith(entry) && host[host.size() - entry.size() - 1] == u'.');
    });
}

} // namespace vellumry
