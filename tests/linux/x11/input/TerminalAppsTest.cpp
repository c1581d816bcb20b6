// SPDX-License-Identifier: GPL-3.0-or-later
#include "linux/keys/TerminalApps.h"

#include <gtest/gtest.h>

namespace vellumry {

TEST(TerminalApps, KnowsTerminalsByClassWhateverTheCase) {
    for (const char* name : {"XTerm", "UXTerm", "Gnome-terminal", "Xfce4-terminal", "konsole", "kitty", "Alacritty",
                             "foot", "org.wezfurlong.wezterm", "Tilix", "URxvt", "st-256color", "com.mitchellh.ghostty",
                             "org.gnome.Ptyxis", "kgx", "Guake", "yakuake", "cool-retro-term"})
        EXPECT_TRUE(terminalapps::contains({QString::fromLatin1(name)}, {})) << name;
}

TEST(TerminalApps, EditorsAndBrowsersAreNone) {
    for (const char* name : {"Mousepad", "firefox-esr", "Chromium", "org.gnome.TextEditor", "libreoffice-writer", ""})
        EXPECT_FALSE(terminalapps::contains({QString::fromLatin1(name)}, {})) << name;
}

TEST(TerminalApps, TheUserAddsAndTakesAway) {
    EXPECT_TRUE(terminalapps::contains({QStringLiteral("MyTerm")}, {QStringLiteral(" myterm ")}));
    EXPECT_FALSE(terminalapps::contains({QStringLiteral("XTerm")}, {QStringLiteral("!xterm")}));
    EXPECT_FALSE(terminalapps::contains({QStringLiteral("Editor")}, {QString(), QStringLiteral("!")}));
}

TEST(TerminalApps, SomeLookBeforeTheyPaste) {
    EXPECT_TRUE(terminalapps::looksFirst({QStringLiteral("Gnome-terminal"), QStringLiteral("gnome-terminal-server")}));
    EXPECT_FALSE(terminalapps::looksFirst({QStringLiteral("XTerm"), QStringLiteral("xterm")}));
}

} // namespace vellumry
