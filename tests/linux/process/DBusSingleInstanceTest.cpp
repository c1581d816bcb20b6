// SPDX-License-Identifier: GPL-3.0-or-later
#include "linux/process/DBusSingleInstance.h"

#include "linux/PrivateBus.h"
#include "support/Awaited.h"

#include <QFile>
#include <gtest/gtest.h>

namespace vellumry {
namespace {

/// The running copy, on a connection of its own, since the process's own one outlives the bus of a test.
class FirstCopy {
public:
    explicit FirstCopy(const PrivateBus& bus)
        : m_name(bus.folder())
        , instance(QDBusConnection::connectToBus(bus.address(), m_name)) {}
    ~FirstCopy() { QDBusConnection::disconnectFromBus(m_name); }

private:
    QString m_name;

public:
    DBusSingleInstance instance;
};

/// Runs a second copy to its end while this process answers; its exit code.
int startSecondCopy() {
    QProcess copy;
    copy.start(QStringLiteral(VELLUMRY_SECOND_COPY), QStringList());
    runUntil([&copy] { return copy.state() == QProcess::NotRunning; });
    return copy.exitStatus() == QProcess::NormalExit ? copy.exitCode() : -1;
}

/// Calls a method of the running copy as a desktop would.
bool callApplication(const QString& method, const QStringList& arguments) {
    QProcess process;
    process.start(QStringLiteral("gdbus"),
                  QStringList{QStringLiteral("call"), QStringLiteral("--session"),
                              QStringLiteral("--dest=com.vellumry.Vellumry"),
                              QStringLiteral("--object-path=/com/vellumry/Vellumry"),
                              QStringLiteral("--method=org.freedesktop.Application.") + method} +
                      arguments);
    runUntil([&process] { return process.state() == QProcess::NotRunning; });
    return process.exitCode() == 0;
}

TEST(DBusSingleInstance, TheFirstCopyRuns) {
    const PrivateBus bus;
    ASSERT_TRUE(bus.isRunning());
    FirstCopy first(bus);
    EXPECT_FALSE(first.instance.isAnotherCopyRunning());
    EXPECT_FALSE(first.instance.isAnotherCopyRunning()) << "asking again changes nothing";
}

TEST(DBusSingleInstance, ASecondStartReopensTheFirstAndEnds) {
    const PrivateBus bus;
    FirstCopy first(bus);
    int reopened = 0;
    first.instance.onReopen = [&reopened] { ++reopened; };
    ASSERT_FALSE(first.instance.isAnotherCopyRunning());
    EXPECT_EQ(startSecondCopy(), 1);
    EXPECT_EQ(reopened, 1);
    EXPECT_EQ(startSecondCopy(), 1);
    EXPECT_EQ(reopened, 2);
}

TEST(DBusSingleInstance, OnceTheFirstHasEndedTheNextStartRuns) {
    const PrivateBus bus;
    {
        FirstCopy first(bus);
        ASSERT_FALSE(first.instance.isAnotherCopyRunning());
    }
    EXPECT_EQ(startSecondCopy(), 0);
}

TEST(DBusSingleInstance, ActionsArriveByName) {
    const PrivateBus bus;
    FirstCopy first(bus);
    QStringList actions;
    first.instance.onAction = [&actions](const QString& action) { actions.append(action); };
    ASSERT_FALSE(first.instance.isAnotherCopyRunning());
    EXPECT_TRUE(callApplication(QStringLiteral("ActivateAction"),
                                {QStringLiteral("open-panel"), QStringLiteral("[]"), QStringLiteral("{}")}));
    EXPECT_TRUE(callApplication(QStringLiteral("ActivateAction"),
                                {QStringLiteral("toggle-stack"), QStringLiteral("[<'x'>]"), QStringLiteral("{}")}));
    EXPECT_EQ(actions, QStringList({QStringLiteral("open-panel"), QStringLiteral("toggle-stack")}));
}

TEST(DBusSingleInstance, ActivateAndOpenReopen) {
    const PrivateBus bus;
    FirstCopy first(bus);
    int reopened = 0;
    first.instance.onReopen = [&reopened] { ++reopened; };
    ASSERT_FALSE(first.instance.isAnotherCopyRunning());
    EXPECT_TRUE(callApplication(QStringLiteral("Activate"), {QStringLiteral("{}")}));
    EXPECT_TRUE(callApplication(QStringLiteral("Open"), {QStringLiteral("['file:///tmp/x']"), QStringLiteral("{}")}));
    EXPECT_EQ(reopened, 2);
}

TEST(DBusSingleInstance, WithoutABusTheLockKeepsTheSecondCopyOut) {
    const PrivateBus bus;
    qputenv("DBUS_SESSION_BUS_ADDRESS", "unix:path=" + bus.folder().toLocal8Bit() + "/nobody");
    QProcess first;
    first.start(QStringLiteral(VELLUMRY_SECOND_COPY), {QStringLiteral("hold")});
    ASSERT_TRUE(first.waitForReadyRead());
    EXPECT_EQ(startSecondCopy(), 1);
    first.kill();
    first.waitForFinished();
    EXPECT_EQ(startSecondCopy(), 0) << "the lock of a killed copy is gone";
}

TEST(DBusSingleInstance, ACopyOnTheBusStaysOutWhereOneRunsWithoutIt) {
    const PrivateBus bus;
    InstanceLock held(InstanceLock::defaultPath());
    ASSERT_TRUE(held.acquire());
    EXPECT_EQ(startSecondCopy(), 1);
}

TEST(InstanceLock, StandsInTheRuntimeFolderElseBesideTheHistory) {
    const PrivateBus bus;
    EXPECT_EQ(InstanceLock::defaultPath(), bus.folder() + QStringLiteral("/runtime/com.vellumry.Vellumry.lock"));
    qunsetenv("XDG_RUNTIME_DIR");
    EXPECT_EQ(InstanceLock::defaultPath(), bus.folder() + QStringLiteral("/data/Vellumry/com.vellumry.Vellumry.lock"));
}

TEST(InstanceLock, AFileThatCannotBeMadeKeepsNobodyOut) {
    InstanceLock lock(QStringLiteral("/proc/no/such/folder/lock"));
    EXPECT_TRUE(lock.acquire());
}

} // namespace
} // namespace vellumry
