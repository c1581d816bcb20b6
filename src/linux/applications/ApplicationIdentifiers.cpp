// SPDX-License-Identifier: GPL-3.0-or-later
#include "linux/applications/ApplicationIdentifiers.h"

#include <QHash>
#include <initializer_list>

namespace vellumry::applicationids {

namespace {

struct Row {
    const char* identifier;
    std::initializer_list<const char*> linuxNames;
};

const QHash<QString, QString>& table() {
    static const QHash<QString, QString> names = [] {
        const std::initializer_list<Row> rows = {
            {"org.keepassxc.keepassxc", {"org.keepassxc.keepassxc", "keepassxc"}},
            {"com.bitwarden.desktop", {"com.bitwarden.desktop", "bitwarden", "bitwarden-desktop"}},
            {"com.1password.1password", {"1password", "com.1password.1password", "com.onepassword.onepassword"}},
            {"in.sinew.Enpass-Desktop", {"enpass", "in.sinew.enpass-desktop"}},
            {"com.lastpass.lastpassmacdesktop", {"lastpass"}},
            {"com.dashlane.dashlanephonefinal", {"dashlane"}},
            {"com.apple.keychainaccess",
             {"org.gnome.seahorse.application", "seahorse", "org.kde.kwalletmanager5", "kwalletmanager5",
              "org.kde.kwalletmanager", "kwalletmanager"}},
            {"com.apple.Passwords",
             {"org.gnome.world.secrets", "secrets", "org.gnome.passwordsafe", "keepassx", "keepass", "keepass2",
              "org.keepass.keepass", "qtpass", "org.ijhack.qtpass", "com.github.ijhack.qtpass", "me.proton.pass",
              "proton-pass", "proton pass", "nordpass", "buttercup", "pw.buttercup.desktop", "io.gopass.gopass-ui"}},
            {"com.apple.mail",
             {"thunderbird",
              "org.mozilla.thunderbird",
              "net.thunderbird.thunderbird",
              "thunderbird-default",
              "thunderbird_thunderbird",
              "betterbird",
              "evolution",
              "org.gnome.evolution",
              "geary",
              "org.gnome.geary",
              "org.kde.kmail2",
              "kmail2",
              "kmail",
              "claws-mail",
              "org.claws_mail.claws-mail",
              "sylpheed",
              "mailspring",
              "com.getmailspring.mailspring",
              "trojita",
              "org.kde.trojita",
              "balsa"}},
            {"ru.keepcoder.Telegram",
             {"org.telegram.desktop", "telegramdesktop", "telegram-desktop", "telegram",
              "telegram-desktop_telegram-desktop", "io.github.kotatogram"}},
            {"org.whispersystems.signal-desktop",
             {"signal-desktop", "signal", "org.signal.signal", "signal-desktop_signal-desktop"}},
            {"net.whatsapp.WhatsApp",
             {"whatsapp", "whatsapp-desktop", "whatsdesk", "zapzap", "com.rtosta.zapzap", "whatsapp-for-linux",
              "com.github.eneshecan.whatsappforlinux", "wasistlos", "io.github.mimbrero.whatsappdesktop"}},
            {"com.apple.MobileSMS", {"org.kde.kdeconnect.sms", "kdeconnect-sms", "org.gnome.chatty", "sm.puri.chatty"}},
            {"com.microsoft.VSCode",
             {"code", "code-oss", "codium", "vscodium", "com.visualstudio.code", "com.visualstudio.code-oss",
              "com.vscodium.codium", "code_code", "code-url-handler"}},
            {"com.sublimetext.4",
             {"sublime_text", "sublime-text", "com.sublimetext.three", "sublime_text_subl", "subl"}},
            {"dev.zed.Zed", {"dev.zed.zed", "zed", "zeditor", "dev.zed.zed-preview"}},
            {"com.todesktop.230313mzl4w4u92", {"cursor"}},
            {"dev.warp.Warp-Stable", {"dev.warp.warp", "warp-terminal", "dev.warp.warp-stable"}},
            {"com.brennhaldt.ghostty", {"com.mitchellh.ghostty", "ghostty"}},
            {"com.apple.screencaptureui",
             {"org.gnome.screenshot",
              "gnome-screenshot",
              "org.kde.spectacle",
              "spectacle",
              "org.flameshot.flameshot",
              "flameshot",
              "xfce4-screenshooter",
              "org.xfce.screenshooter",
              "org.ksnip.ksnip",
              "ksnip",
              "grim",
              "shutter",
              "org.shutter-project.shutter",
              "mate-screenshot",
              "deepin-screenshot",
              "com.github.maoschanz.screenshot",
              "scrot",
              "maim",
              "satty",
              "swappy"}},
        };
        QHash<QString, QString> result;
        for (const Row& row : rows) {
            for (const char* name : row.linuxNames)
                result.insert(QString::fromLatin1(name), QString::fromLatin1(row.identifier));
        }
        return result;
    }();
    return names;
}

} // namespace

std::optional<QString> standing(const QString& linuxName) {
    const auto found = table().constFind(linuxName.toLower());
    return found == table().cend() ? std::nullopt : std::optional(*found);
}

} // namespace vellumry::applicationids
