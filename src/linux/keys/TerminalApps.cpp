// SPDX-License-Identifier: GPL-3.0-or-later
#include "linux/keys/TerminalApps.h"

#include <QSet>
#include <algorithm>

namespace vellumry::terminalapps {

namespace {

const QSet<QString>& knownTerminals() {
    static const QSet<QString> known = [] {
        QSet<QString> names;
        for (const char* name : {"xterm",
                                 "uxterm",
                                 "koi8rxterm",
                                 "gnome-terminal",
                                 "gnome-terminal-server",
                                 "terminal",
                                 "xfce4-terminal",
                                 "konsole",
                                 "kitty",
                                 "alacritty",
                                 "foot",
                                 "footclient",
                                 "wezterm",
                                 "wezterm-gui",
                                 "tilix",
                                 "terminator",
                                 "urxvt",
                                 "rxvt",
                                 "rxvt-unicode",
                                 "st",
                                 "st-256color",
                                 "lxterminal",
                                 "mate-terminal",
                                 "qterminal",
                                 "terminology",
                                 "ghostty",
                                 "ptyxis",
                                 "kgx",
                                 "console",
                                 "guake",
                                 "yakuake",
                                 "tilda",
                                 "sakura",
                                 "cool-retro-term",
                                 "roxterm",
                                 "deepin-terminal",
                                 "eterm",
                                 "aterm",
                                 "mlterm",
                                 "termit",
                                 "contour",
                                 "rio",
                                 "blackbox",
                                 "lilyterm",
                                 "zutty",
                                 "kermit",
                                 "extraterm",
                                 "hyper",
                                 "tabby",
                                 "warp",
                                 "stterm",
                                 "pangoterm",
                                 "stterm-256color"})
            names.insert(QString::fromLatin1(name));
        return names;
    }();
    return known;
}

} // namespace

bool contains(const QStringList& names, const QStringList& userNames) {
    QSet<QString> added;
    QSet<QString> excluded;
    for (const QString& name : userNames) {
        const QString trimmed = name.trimmed().toLower();
        if (trimmed.startsWith(u'!'))
            excluded.insert(trimmed.mid(1));
        else
            added.insert(trimmed);
    }
    bool isTerminal = false;
    for (const QString& name : names) {
        const QString lower = name.toLower();
        for (const QString& form : {lower, lower.section(u'.', -1)}) {
            if (form.isEmpty())
                continue;
            if (excluded.contains(form))
                return false;
            isTerminal = isTerminal || added.contains(form) || knownTerminals().contains(form);
        }
    }
    return isTerminal;
}

bool looksFirst(const QStringList& names) {
    return std::any_of(names.begin(), names.end(), [](const QString& name) {
        const QString lower = name.toLower();
        return lower == u"gnome-terminal" || lower == u"gnome-terminal-server";
    });
}

} // namespace vellumry::terminalapps
