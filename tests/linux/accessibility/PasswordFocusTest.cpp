// SPDX-License-Identifier: GPL-3.0-or-later
#include "linux/accessibility/PasswordFocus.h"

#include "linux/PrivateBus.h"
#include "support/Awaited.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusMetaType>
#include <QDBusObjectPath>
#include <QDBusVirtualObject>
#include <QMap>
#include <gtest/gtest.h>

namespace vellumry {

namespace {

constexpr quint32 active = 1U << 1;
constexpr quint32 focused = 1U << 12;
constexpr quint32 showing = 1U << 25;
constexpr quint32 passwordText = 40;
constexpr quint32 text = 61;

/// A reference to an object of an application, `(so)` on the bus.
struct Reference {
    QString name;
    QDBusObjectPath path;
};

QDBusArgument& operator<<(QDBusArgument& argument, const Reference& reference) {
    argument.beginStructure();
    argument << reference.name << reference.path;
    argument.endStructure();
    return argument;
}

const QDBusArgument& operator>>(const QDBusArgument& argument, Reference& reference) {
    argument.beginStructure();
    argument >> reference.name >> reference.path;
    argument.endStructure();
    return argument;
}

/// An accessibility bus, its registry and one application, which this process is.
class FakeAccessibility : public QDBusVirtualObject {
public:
    struct Object {
        QStringList children;
        quint32 states = 0;
        quint32 role = text;
    };
    QMap<QString, Object> objects;      ///< by path; the application is "/app"
    QStringList asked;                  ///< "member path", in their order
    std::optional<QStringList> matches; ///< what GetMatches answers; nothing: the interface is not there
    QString silentPath;                 ///< never answers
    QString address;

    QString introspect(const QString&) const override { return {}; }
    bool handleMessage(const QDBusMessage& message, const QDBusConnection& connection) override {
        const QString path = message.path();
        const QString member = message.member();
        asked.append(member + u' ' + path);
        if (path == silentPath) {
            message.setDelayedReply(true);
            return true;
        }
        const auto answer = answerTo(member, path, connection.baseService());
        return connection.send(answer.isValid() ? message.createReply(answer)
                                                : message.createErrorReply(QDBusError::UnknownInterface, member));
    }

private:
    QVariant answerTo(const QString& member, const QString& path, const QString& self) const {
        const auto references = [&self](const QStringList& paths) {
            QList<Reference> list;
            for (const QString& each : paths)
                list.append({self, QDBusObjectPath(each)});
            return QVariant::fromValue(list);
        };
        if (member == u"GetAddress")
            return address;
        if (member == u"GetChildren" && path == u"/org/a11y/atspi/accessible/root")
            return references({QStringLiteral("/app")});
        if (member == u"GetChildren")
            return references(objects.value(path).children);
        if (member == u"GetState")
            return QVariant::fromValue(QList<quint32>{objects.value(path).states, 0});
        if (member == u"GetRole")
            return objects.value(path).role;
        return member == u"GetMatches" && matches ? references(*matches) : QVariant();
    }
};

class PasswordFocusTest : public ::testing::Test {
protected:
    void SetUp() override {
        ASSERT_TRUE(bus.isRunning());
        qDBusRegisterMetaType<Reference>();
        qDBusRegisterMetaType<QList<Reference>>();
        qDBusRegisterMetaType<QList<quint32>>();
        desktop.address = bus.address();
        desktop.objects = {{QStringLiteral("/app"), {{QStringLiteral("/one"), QStringLiteral("/two")}}},
                           {QStringLiteral("/one"), {{QStringLiteral("/one/pane")}, active | showing}},
                           {QStringLiteral("/one/pane"), {{QStringLiteral("/one/field")}, showing}},
                           {QStringLiteral("/one/field"), {{}, showing | focused}},
                           {QStringLiteral("/two"), {{QStringLiteral("/two/field")}, showing}},
                           {QStringLiteral("/two/field"), {{}, showing | focused}}};
        ASSERT_TRUE(connection.isConnected());
        ASSERT_TRUE(connection.registerVirtualObject(QStringLiteral("/"), &desktop, QDBusConnection::SubPath));
    }
    void TearDown() override { QDBusConnection::disconnectFromBus(QStringLiteral("desktop")); }

    void start() {
        ASSERT_TRUE(connection.registerService(QStringLiteral("org.a11y.Bus")));
        ASSERT_TRUE(connection.registerService(QStringLiteral("org.a11y.atspi.Registry")));
    }
    void makePassword(const char* path) { desktop.objects[QString::fromLatin1(path)].role = passwordText; }
    bool isInOurs() { return awaited(focus.isIn(QCoreApplication::applicationPid())); }

    PrivateBus bus;
    FakeAccessibility desktop;
    QDBusConnection connection = QDBusConnection::connectToBus(bus.address(), QStringLiteral("desktop"));
    PasswordFocus focus{std::chrono::minutes(1)};
};

} // namespace

TEST_F(PasswordFocusTest, APasswordFieldOfTheActiveWindowCounts) {
    start();
    EXPECT_FALSE(isInOurs());
    makePassword("/one/field");
    EXPECT_TRUE(isInOurs());
    desktop.objects[QStringLiteral("/one/field")].states = showing;
    EXPECT_FALSE(isInOurs());
}

TEST_F(PasswordFocusTest, OneOfAnotherWindowCountsOnlyWhileNoneIsActive) {
    start();
    makePassword("/two/field");
    EXPECT_FALSE(isInOurs());
    desktop.objects[QStringLiteral("/one")].states = showing;
    EXPECT_TRUE(isInOurs());
}

TEST_F(PasswordFocusTest, WhatDoesNotShowIsNotSearched) {
    start();
    makePassword("/one/field");
    desktop.objects[QStringLiteral("/one/pane")].states = 0;
    EXPECT_FALSE(isInOurs());
    EXPECT_FALSE(desktop.asked.contains(QStringLiteral("GetState /one/field")));
}

TEST_F(PasswordFocusTest, AnApplicationThatSearchesItselfIsNotWalkedThrough) {
    start();
    desktop.matches = QStringList{QStringLiteral("/one/field")};
    EXPECT_TRUE(isInOurs());
    desktop.matches = QStringList();
    EXPECT_FALSE(isInOurs());
    EXPECT_FALSE(desktop.asked.contains(QStringLiteral("GetChildren /one")));
}

TEST_F(PasswordFocusTest, OtherProcessesAreLeftAlone) {
    start();
    makePassword("/one/field");
    EXPECT_FALSE(awaited(focus.isIn(1)));
    EXPECT_FALSE(awaited(focus.isIn(0)));
    EXPECT_FALSE(desktop.asked.contains(QStringLiteral("GetChildren /app")));
}

TEST_F(PasswordFocusTest, AnApplicationThatDoesNotAnswerHasNoPasswordField) {
    start();
    makePassword("/one/field");
    desktop.silentPath = QStringLiteral("/one/pane");
    PasswordFocus impatient{std::chrono::milliseconds(100)};
    EXPECT_FALSE(awaited(impatient.isIn(QCoreApplication::applicationPid())));
    EXPECT_TRUE(desktop.asked.contains(QStringLiteral("GetState /one/pane")));
}

TEST_F(PasswordFocusTest, WithoutAnAccessibilityBusNobodyIsAsked) {
    makePassword("/one/field");
    EXPECT_FALSE(isInOurs());
    EXPECT_TRUE(desktop.asked.isEmpty());
}

} // namespace vellumry
