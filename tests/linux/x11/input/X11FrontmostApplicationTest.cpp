// SPDX-License-Identifier: GPL-3.0-or-later
#include "linux/x11/windows/X11FrontmostApplication.h"

#include "linux/x11/input/XClient.h"
#include "linux/x11/input/XSession.h"
#include "linux/x11/windows/X11PanelSurface.h"
#include "support/Eventually.h"

#include <QCoreApplication>
#include <QFile>
#include <QTemporaryDir>
#include <QWindow>
#include <gtest/gtest.h>

namespace vellumry {

namespace {

class X11FrontmostApplicationTest : public ::testing::Test {
protected:
    void SetUp() override {
        ASSERT_NE(connection, nullptr);
        put("debian-xterm.desktop", "Name=XTerm\nStartupWMClass=XTerm\n");
        put("org.keepassxc.KeePassXC.desktop", "Name=KeePassXC\nStartupWMClass=keepassxc\n");
    }
    void put(const char* name, const QByteArray& body) {
        QFile file(folder.filePath(QString::fromLatin1(name)));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write("[Desktop Entry]\nType=Application\n" + body);
    }

    QTemporaryDir folder;
    std::shared_ptr<XlibConnection> connection = XlibConnection::create().value();
    std::shared_ptr<DesktopEntries> entries =
        std::make_shared<DesktopEntries>(QStringList{folder.path()}, QStringList());
};

SourceApp app(const char* id, const char* name) {
    return {QString::fromLatin1(id), QString::fromLatin1(name)};
}

} // namespace

TEST_F(X11FrontmostApplicationTest, TheActiveWindowsDesktopFileNamesIt) {
    X11FrontmostApplication frontmost(connection, entries);
    EXPECT_EQ(frontmost.current(), SourceApp());
    XClient terminal;
    ASSERT_TRUE(terminal.open("xterm", "XTerm"));
    EXPECT_TRUE(eventually([&] { return frontmost.current() == app("debian-xterm", "XTerm"); }));
    XClient passwords;
    ASSERT_TRUE(passwords.open("keepassxc", "KeePassXC"));
    EXPECT_TRUE(eventually([&] { return frontmost.current() == app("org.keepassxc.keepassxc", "KeePassXC"); }));
    terminal.focus();
    EXPECT_TRUE(eventually([&] { return frontmost.current() == app("debian-xterm", "XTerm"); }));
}

TEST_F(X11FrontmostApplicationTest, WithoutADesktopFileTheWindowClassDoes) {
    XClient editor;
    ASSERT_TRUE(editor.open("edit", "HomeMade"));
    XClient passwords;
    X11FrontmostApplication frontmost(connection, entries);
    EXPECT_TRUE(eventually([&] { return frontmost.current() == app("HomeMade", "HomeMade"); }));
    ASSERT_TRUE(passwords.open("bitwarden", "Bitwarden"));
    EXPECT_TRUE(eventually([&] { return frontmost.current() == app("com.bitwarden.desktop", "Bitwarden"); }));
}

TEST_F(X11FrontmostApplicationTest, WindowsOfThisProcessNeverCount) {
    X11FrontmostApplication frontmost(connection, entries);
    XClient terminal;
    ASSERT_TRUE(terminal.open("xterm", "XTerm"));
    EXPECT_TRUE(eventually([&] { return frontmost.current() == app("debian-xterm", "XTerm"); }));
    XClient settings;
    ASSERT_TRUE(settings.open("vellumry", "vellumry", long(QCoreApplication::applicationPid())));
    XClient editor;
    EXPECT_TRUE(eventually([&] { return frontmost.current() == app("debian-xterm", "XTerm"); }));
    ASSERT_TRUE(editor.open("edit", "HomeMade"));
    EXPECT_TRUE(eventually([&] { return frontmost.current() == app("HomeMade", "HomeMade"); }));
}

TEST_F(X11FrontmostApplicationTest, UnderThePanelTheApplicationStaysInFront) {
    X11FrontmostApplication frontmost(connection, entries);
    XClient terminal;
    ASSERT_TRUE(terminal.open("xterm", "XTerm"));
    EXPECT_TRUE(eventually([&] { return frontmost.current() == app("debian-xterm", "XTerm"); }));
    X11PanelSurface surface(connection, std::make_shared<X11Focus>(connection));
    QWindow panel;
    surface.adopt(&panel);
    surface.present(&panel, QRect(300, 200, 200, 100));
    EXPECT_TRUE(eventually([&] { return panel.isActive(); }));
    EXPECT_EQ(frontmost.current(), app("debian-xterm", "XTerm"));
    surface.dismiss(&panel);
}

TEST_F(X11FrontmostApplicationTest, AClosedApplicationIsNoLongerInFront) {
    X11FrontmostApplication frontmost(connection, entries);
    XClient terminal;
    ASSERT_TRUE(terminal.open("xterm", "XTerm"));
    EXPECT_TRUE(eventually([&] { return frontmost.current() == app("debian-xterm", "XTerm"); }));
    terminal.close();
    EXPECT_TRUE(eventually([&] { return frontmost.current() == SourceApp(); }));
}

TEST_F(X11FrontmostApplicationTest, ThePasteboardsOwnerIsKnownWhenItHasHidden) {
    X11FrontmostApplication frontmost(connection, entries);
    EXPECT_EQ(frontmost.pasteboardOwner(), SourceApp());
    XClient passwords;
    ASSERT_TRUE(passwords.open("keepassxc", "KeePassXC"));
    passwords.own("CLIPBOARD");
    const SourceApp vault = app("org.keepassxc.keepassxc", "KeePassXC");
    EXPECT_TRUE(eventually([&] { return frontmost.pasteboardOwner() == vault; }));
    passwords.hide();
    XClient terminal;
    ASSERT_TRUE(terminal.open("xterm", "XTerm"));
    EXPECT_TRUE(eventually([&] { return frontmost.current() == app("debian-xterm", "XTerm"); }));
    EXPECT_EQ(frontmost.pasteboardOwner(), vault);
    passwords.disown("CLIPBOARD");
    EXPECT_TRUE(eventually([&] { return frontmost.pasteboardOwner() == SourceApp(); }));
}

TEST_F(X11FrontmostApplicationTest, AnOwnerWithoutAWindowSaysNothing) {
    X11FrontmostApplication frontmost(connection, entries);
    XClient terminal;
    ASSERT_TRUE(terminal.open("xterm", "XTerm"));
    XClient tool;
    tool.own("CLIPBOARD");
    EXPECT_TRUE(eventually([&] { return frontmost.current() == app("debian-xterm", "XTerm"); }));
    EXPECT_EQ(frontmost.pasteboardOwner(), SourceApp());
    tool.disown("CLIPBOARD");
}

} // namespace vellumry
