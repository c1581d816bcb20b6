// SPDX-License-Identifier: GPL-3.0-or-later
#include "linux/applications/DesktopEntries.h"
#include "support/Eventually.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace vellumry {

namespace {

void put(const QString& folder, const QString& path, const QByteArray& body) {
    const QString full = folder + u'/' + path;
    QDir().mkpath(full.section(u'/', 0, -2));
    QFile file(full);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("[Desktop Entry]\nType=Application\n" + body);
}

ApplicationHints withClass(const QString& name) {
    ApplicationHints hints;
    hints.className = name;
    return hints;
}

QString found(const DesktopEntryIndex& index, const ApplicationHints& hints) {
    const auto entry = index.find(hints);
    return entry.has_value() ? entry->id : QString();
}

} // namespace

TEST(DesktopEntry, NameIsInTheUsersLanguage) {
    const QByteArray file = "[Desktop Entry]\nType=Application\nName=Files\nName[de]=Dateien\nName[pt_BR]=Arquivos\n"
                            "Icon=folder\nExec=env A=b /usr/bin/files %U\n[Desktop Action x]\nName=Other\n";
    const auto name = [&](const QStringList& languages) {
        return DesktopEntry::parse(QStringLiteral("files"), file, languages)->name;
    };
    EXPECT_EQ(name({QStringLiteral("de_AT"), QStringLiteral("de")}), u"Dateien");
    EXPECT_EQ(name({QStringLiteral("pt_BR"), QStringLiteral("pt")}), u"Arquivos");
    EXPECT_EQ(name({QStringLiteral("fr")}), u"Files");
    EXPECT_EQ(name({QStringLiteral("en_GB"), QStringLiteral("en"), QStringLiteral("de")}), u"Files");
    EXPECT_EQ(DesktopEntry::parse(QStringLiteral("files"), file, {})->program, u"files");
    EXPECT_EQ(DesktopEntry::parse(QStringLiteral("files"), file, {})->icon, u"folder");
}

TEST(DesktopEntry, WhatIsNoApplicationHasNone) {
    EXPECT_FALSE(DesktopEntry::parse(QStringLiteral("x"), "[Desktop Entry]\nType=Link\nName=L\n", {}).has_value());
    EXPECT_FALSE(
        DesktopEntry::parse(QStringLiteral("x"), "[Desktop Entry]\nType=Application\nName=N\nHidden=true\n", {})
            .has_value());
    EXPECT_FALSE(DesktopEntry::parse(QStringLiteral("x"), "Type=Application\nName=N\n", {}).has_value());
    EXPECT_FALSE(DesktopEntry::parse(QStringLiteral("x"), QByteArray("\xff\xfe\0[", 4), {}).has_value());
    EXPECT_FALSE(DesktopEntry::parse(QStringLiteral("x"), {}, {}).has_value());
}

TEST(DesktopEntryIndex, TheUsersFileStandsForTheSystems) {
    const QTemporaryDir user;
    const QTemporaryDir system;
    put(user.path(), QStringLiteral("a.desktop"), "Name=Mine\n");
    put(user.path(), QStringLiteral("gone.desktop"), "Name=Gone\nHidden=true\n");
    put(system.path(), QStringLiteral("a.desktop"), "Name=Theirs\n");
    put(system.path(), QStringLiteral("gone.desktop"), "Name=Gone\n");
    put(system.path(), QStringLiteral("kde/b.desktop"), "Name=Deep\n");
    const auto index = DesktopEntryIndex::read({user.path(), system.path()}, {});
    EXPECT_EQ(index.entries().size(), 2U);
    EXPECT_EQ(index.byID(QStringLiteral("a"))->name, u"Mine");
    EXPECT_EQ(index.byID(QStringLiteral("kde-b"))->name, u"Deep");
    EXPECT_FALSE(index.byID(QStringLiteral("gone")).has_value());
}

TEST(DesktopEntryIndex, FindsAWindowsApplication) {
    const QTemporaryDir folder;
    put(folder.path(), QStringLiteral("debian-xterm.desktop"), "Name=XTerm\nStartupWMClass=XTerm\nExec=xterm\n");
    put(folder.path(), QStringLiteral("debian-uxterm.desktop"), "Name=UXTerm\nExec=uxterm\n");
    put(folder.path(), QStringLiteral("org.keepassxc.KeePassXC.desktop"), "Name=KeePassXC\nStartupWMClass=keepassxc\n");
    put(folder.path(), QStringLiteral("org.xfce.mousepad.desktop"), "Name=Mousepad\nExec=mousepad %U\n");
    put(folder.path(), QStringLiteral("thunar.desktop"), "Name=Thunar\nExec=thunar\n");
    put(folder.path(), QStringLiteral("firefox-esr.desktop"),
        "Name=Firefox\nExec=/usr/lib/firefox-esr/firefox-esr %u\n");
    const auto index = DesktopEntryIndex::read({folder.path()}, {});

    EXPECT_EQ(found(index, withClass(QStringLiteral("XTerm"))), u"debian-xterm");
    EXPECT_EQ(found(index, withClass(QStringLiteral("KeePassXC"))), u"org.keepassxc.KeePassXC");
    EXPECT_EQ(found(index, withClass(QStringLiteral("Mousepad"))), u"org.xfce.mousepad");
    EXPECT_EQ(found(index, withClass(QStringLiteral("firefox-esr"))), u"firefox-esr");
    ApplicationHints byID;
    byID.applicationID = QStringLiteral("org.xfce.Thunar");
    EXPECT_EQ(found(index, byID), u"thunar");
    ApplicationHints byProgram;
    byProgram.className = QStringLiteral("Navigator");
    byProgram.program = QStringLiteral("uxterm");
    EXPECT_EQ(found(index, byProgram), u"debian-uxterm");
    EXPECT_EQ(found(index, withClass(QStringLiteral("nobody"))), u"");
    EXPECT_EQ(found(index, {}), u"");
}

TEST(DesktopEntryIndex, TheMenusEntryComesBeforeAHelpersOfTheSameClass) {
    const QTemporaryDir folder;
    put(folder.path(), QStringLiteral("a-url-handler.desktop"), "Name=Handler\nStartupWMClass=Code\nNoDisplay=true\n");
    put(folder.path(), QStringLiteral("code.desktop"), "Name=Code\nStartupWMClass=Code\n");
    const auto index = DesktopEntryIndex::read({folder.path()}, {});
    EXPECT_EQ(found(index, withClass(QStringLiteral("Code"))), u"code");
}

TEST(DesktopEntries, ANewApplicationIsFoundAfterARefresh) {
    const QTemporaryDir folder;
    DesktopEntries entries({folder.path()}, {});
    EXPECT_TRUE(entries.index()->entries().empty());
    entries.refresh();
    EXPECT_TRUE(entries.index()->entries().empty());
    put(folder.path(), QStringLiteral("later.desktop"), "Name=Later\n");
    EXPECT_TRUE(eventually([&] {
        entries.refresh();
        return entries.index()->byID(QStringLiteral("later")).has_value();
    }));
}

} // namespace vellumry
