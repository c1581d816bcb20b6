// SPDX-License-Identifier: GPL-3.0-or-later
#include "linux/process/ActionInterface.h"

#include "linux/PrivateBus.h"
#include "linux/process/DBusSingleInstance.h"
#include "support/Eventually.h"

#include <QProcess>
#include <QScopeGuard>
#include <gtest/gtest.h>

namespace vellumry {
namespace {

TEST(ActionInterface, TheCommandThatKeysAreBoundToReachesTheRunningCopy) {
    const PrivateBus bus;
    ASSERT_TRUE(bus.isRunning());
    const QString line = bus.folder() + QStringLiteral("/line");
    const auto close = qScopeGuard([&line] { QDBusConnection::disconnectFromBus(line); });
    DBusSingleInstance instance(QDBusConnection::connectToBus(bus.address(), line));
    QStringList actions;
    instance.onAction = [&actions](const QString& action) { actions.append(action); };
    ASSERT_FALSE(instance.isAnotherCopyRunning());
    QStringList words = actionCommand(QStringLiteral("paste-pin-3")).split(u' ');
    ASSERT_EQ(words.first(), u"dbus-send");
    QProcess sender;
    const QString program = words.takeFirst();
    sender.start(program, words);
    ASSERT_TRUE(eventually([&] { return !actions.isEmpty(); }));
    EXPECT_EQ(actions, QStringList({QStringLiteral("paste-pin-3")}));
    EXPECT_TRUE(eventually([&] { return sender.state() == QProcess::NotRunning; }));
    EXPECT_EQ(sender.exitCode(), 0);
}

TEST(ActionInterface, WithoutTheToolTheProgramItselfAsks) {
    const QByteArray path = qgetenv("PATH");
    qputenv("PATH", "/nowhere");
    EXPECT_EQ(actionCommand(QStringLiteral("open-panel")), u"vellumry --action open-panel");
    qputenv("PATH", path);
}

} // namespace
} // namespace vellumry
