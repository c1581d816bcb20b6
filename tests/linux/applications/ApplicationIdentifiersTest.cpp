// SPDX-License-Identifier: GPL-3.0-or-later
#include "linux/applications/ApplicationIdentifiers.h"

#include <gtest/gtest.h>
#include <map>

namespace vellumry {

TEST(ApplicationIdentifiers, KnownApplicationsStandUnderTheNamesOfTheLists) {
    const std::map<QString, QString> expected = {
        {QStringLiteral("org.keepassxc.KeePassXC"), QStringLiteral("org.keepassxc.keepassxc")},
        {QStringLiteral("keepassxc"), QStringLiteral("org.keepassxc.keepassxc")},
        {QStringLiteral("Bitwarden"), QStringLiteral("com.bitwarden.desktop")},
        {QStringLiteral("1Password"), QStringLiteral("com.1password.1password")},
        {QStringLiteral("enpass"), QStringLiteral("in.sinew.Enpass-Desktop")},
        {QStringLiteral("org.telegram.desktop"), QStringLiteral("ru.keepcoder.Telegram")},
        {QStringLiteral("TelegramDesktop"), QStringLiteral("ru.keepcoder.Telegram")},
        {QStringLiteral("Signal"), QStringLiteral("org.whispersystems.signal-desktop")},
        {QStringLiteral("org.gnome.Geary"), QStringLiteral("com.apple.mail")},
        {QStringLiteral("thunderbird"), QStringLiteral("com.apple.mail")},
        {QStringLiteral("Code"), QStringLiteral("com.microsoft.VSCode")},
        {QStringLiteral("org.gnome.seahorse.Application"), QStringLiteral("com.apple.keychainaccess")},
        {QStringLiteral("org.kde.spectacle"), QStringLiteral("com.apple.screencaptureui")},
    };
    for (const auto& [name, identifier] : expected)
        EXPECT_EQ(applicationids::standing(name), identifier) << name.toStdString();
}

TEST(ApplicationIdentifiers, OthersKeepTheirOwn) {
    EXPECT_EQ(applicationids::standing(QStringLiteral("org.gnome.Terminal")), std::nullopt);
    EXPECT_EQ(applicationids::standing(QStringLiteral("firefox-esr")), std::nullopt);
    EXPECT_EQ(applicationids::standing(QString()), std::nullopt);
}

} // namespace vellumry
