// SPDX-License-Identifier: GPL-3.0-or-later
#include "capture/MessageHosts.h"

#include <gtest/gtest.h>

namespace vellumry {
namespace {

bool isMessage(const char* url) {
    return isMessageURL(QUrl(QString::fromUtf8(url)));
}

TEST(IsMessageURL, KnowsMailAndMessengerHosts) {
    for (const char* host :
         {"mail.google.com", "outlook.live.com", "outlook.office.com", "outlook.office365.com", "mail.yahoo.com",
          "mail.yahoo.co.jp", "mail.proton.me", "mail.yandex.com", "mail.yandex.ru", "app.fastmail.com",
          "messages.google.com", "web.whatsapp.com", "web.telegram.org", "webk.telegram.org"})
        EXPECT_TRUE(isMessageURL(QUrl(QStringLiteral("https://") + QLatin1String(host) + QStringLiteral("/x"))))
            << host;
}

TEST(IsMessageURL, CountsSubdomainsAndNoLookAlikes) {
    EXPECT_TRUE(isMessage("https://de.mail.yahoo.com/"));
    EXPECT_TRUE(isMessage("HTTP://MAIL.GOOGLE.COM/"));
    EXPECT_FALSE(isMessage("https://notmail.google.com/"));
    EXPECT_FALSE(isMessage("https://mail.google.com.example.org/"));
    EXPECT_FALSE(isMessage("https://google.com/mail"));
}

TEST(IsMessageURL, NeedsAWebSchemeAndAHost) {
    EXPECT_FALSE(isMessage("ftp://mail.google.com/"));
    EXPECT_FALSE(isMessage("mail.google.com"));
    EXPECT_FALSE(isMessage("https:///mail"));
    EXPECT_FALSE(isMessageURL(QUrl()));
}

TEST(IsMessageURL, SharedHostCountsUnderItsMailPathOnly) {
    EXPECT_TRUE(isMessage("https://www.icloud.com/mail"));
    EXPECT_TRUE(isMessage("https://www.icloud.com/Mail/inbox"));
    EXPECT_FALSE(isMessage("https://www.icloud.com/photos"));
    EXPECT_FALSE(isMessage("https://www.icloud.com/"));
    EXPECT_FALSE(isMessage("https://x.www.icloud.com/mail"));
}

TEST(IsMessageApp, KnowsSevenPrograms) {
    for (const char* id : {"com.apple.MobileSMS", "com.apple.mail", "com.microsoft.Outlook", "net.whatsapp.WhatsApp",
                           "desktop.WhatsApp", "ru.keepcoder.Telegram", "org.whispersystems.signal-desktop"})
        EXPECT_TRUE(isMessageApp(QString::fromUtf8(id))) << id;
    EXPECT_FALSE(isMessageApp(QStringLiteral("com.apple.Mail")));
    EXPECT_FALSE(isMessageApp(QString()));
}

} // namespace
} // namespace vellumry
