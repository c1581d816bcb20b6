// SPDX-License-Identifier: GPL-3.0-or-later
#include "linux/applications/DesktopOpener.h"

#include "linux/PrivateBus.h"
#include "support/Eventually.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVirtualObject>
#include <gtest/gtest.h>

using namespace vellumry;

namespace {

/// A file manager that is asked to show files.
class FileManager : public QDBusVirtualObject {
public:
    [[nodiscard]] QString introspect(const QString&) const override { return {}; }
    bool handleMessage(const QDBusMessage& message, const QDBusConnection& connection) override {
        if (message.member() != QLatin1String("ShowItems"))
            return false;
        shown = message.arguments().value(0).toStringList();
        return connection.send(message.createReply());
    }
    QStringList shown;
};

class DesktopOpenerTest : public ::testing::Test {
protected:
    ~DesktopOpenerTest() override { QDBusConnection::disconnectFromBus(ours); }

    const QString ours = QStringLiteral("ours");
    const PrivateBus bus;
    QList<QStringList> started;
    DesktopOpener opener{QDBusConnection::connectToBus(bus.address(), ours),
                         [this](const QString& program, const QStringList& arguments) {
                             started.append(QStringList{program} + arguments);
                             return true;
                         }};
};

} // namespace

TEST_F(DesktopOpenerTest, AnAddressGoesToTheUsersProgramEncoded) {
    EXPECT_TRUE(opener.openAddress(QStringLiteral("https://example.org/a b?q=ä")));
    EXPECT_EQ(started,
              (QList<QStringList>{{QStringLiteral("xdg-open"), QStringLiteral("https://example.org/a%20b?q=%C3%A4")}}));
}

TEST_F(DesktopOpenerTest, WhatHasNoSchemeIsNotOpened) {
    EXPECT_FALSE(opener.openAddress(QStringLiteral("--help")));
    EXPECT_FALSE(opener.openAddress(QStringLiteral("/etc/passwd")));
    EXPECT_FALSE(opener.openAddress(QString()));
    EXPECT_TRUE(started.isEmpty());
}

TEST_F(DesktopOpenerTest, AProgramThatCannotBeStartedIsTold) {
    DesktopOpener without(QDBusConnection(QStringLiteral("never connected")),
                          [](const QString&, const QStringList&) { return false; });
    EXPECT_FALSE(without.openAddress(QStringLiteral("https://example.org")));
}

TEST_F(DesktopOpenerTest, FilesAreShownByTheFileManager) {
    QDBusConnection service = QDBusConnection::connectToBus(bus.address(), QStringLiteral("file manager"));
    FileManager manager;
    ASSERT_TRUE(service.registerVirtualObject(QStringLiteral("/org/freedesktop/FileManager1"), &manager));
    ASSERT_TRUE(service.registerService(QStringLiteral("org.freedesktop.FileManager1")));
    opener.showFiles({QStringLiteral("/a/one file"), QStringLiteral("/b/two")});
    EXPECT_TRUE(eventually([&] { return !manager.shown.isEmpty(); }));
    EXPECT_EQ(manager.shown, (QStringList{QStringLiteral("file:///a/one%20file"), QStringLiteral("file:///b/two")}));
    QDBusConnection::disconnectFromBus(QStringLiteral("file manager"));
}

TEST_F(DesktopOpenerTest, WithoutOneTheFoldersAreOpenedOnceEach) {
    opener.showFiles({QStringLiteral("/a/one"), QStringLiteral("/a/two"), QStringLiteral("/b c/three")});
    EXPECT_TRUE(eventually([&] { return started.size() == 2; }));
    EXPECT_EQ(started, (QList<QStringList>{{QStringLiteral("xdg-open"), QStringLiteral("file:///a")},
                                           {QStringLiteral("xdg-open"), QStringLiteral("file:///b%20c")}}));
}
