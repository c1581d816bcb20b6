// SPDX-License-Identifier: GPL-3.0-or-later
#include "linux/process/StatusInterface.h"

#include "linux/PrivateBus.h"
#include "linux/process/DBusSingleInstance.h"
#include "support/Awaited.h"

#include <gtest/gtest.h>
#include <thread>

namespace vellumry {
namespace {

/// A connection of its own to the bus of the test.
class Line {
public:
    Line(const PrivateBus& bus, const char* name)
        : m_name(bus.folder() + QLatin1String(name))
        , connection(QDBusConnection::connectToBus(bus.address(), m_name)) {}
    ~Line() { QDBusConnection::disconnectFromBus(m_name); }

private:
    QString m_name;

public:
    QDBusConnection connection;
};

/// What `question` answers, asked by another thread while this one answers.
template <typename Question>
auto whileWeAnswer(Question question) {
    std::optional<std::invoke_result_t<Question>> answer;
    std::atomic<bool> isDone = false;
    std::thread asking([&] {
        answer = question();
        isDone = true;
    });
    runUntil([&isDone] { return isDone.load(); });
    asking.join();
    return *answer;
}

TEST(StatusInterface, TheRunningCopyAnswersWithItsReport) {
    const PrivateBus bus;
    const Line ours(bus, "ours");
    const Line others(bus, "others");
    DBusSingleInstance instance(ours.connection);
    instance.onStatus = [] { return QStringLiteral("all is well\n"); };
    ASSERT_FALSE(instance.isAnotherCopyRunning());
    const auto answer = whileWeAnswer([&others] { return askForStatus(others.connection); });
    ASSERT_TRUE(answer.has_value());
    EXPECT_EQ(*answer, QStringLiteral("all is well\n"));
}

TEST(StatusInterface, WhereNothingRunsNobodyIsStarted) {
    const PrivateBus bus;
    const Line others(bus, "others");
    const auto answer = askForStatus(others.connection);
    ASSERT_FALSE(answer.has_value());
    EXPECT_EQ(answer.error(), NoStatus::notRunning);
}

TEST(StatusInterface, WithoutABusNobodyIsAsked) {
    const auto answer = askForStatus(QDBusConnection(QStringLiteral("never connected")));
    ASSERT_FALSE(answer.has_value());
    EXPECT_EQ(answer.error(), NoStatus::noBus);
}

TEST(StatusInterface, AnActionReachesTheRunningCopyByName) {
    const PrivateBus bus;
    const Line ours(bus, "ours");
    const Line others(bus, "others");
    EXPECT_FALSE(DBusSingleInstance::askForAction(others.connection, QStringLiteral("pause")));
    DBusSingleInstance instance(ours.connection);
    QStringList actions;
    instance.onAction = [&actions](const QString& action) { actions.append(action); };
    ASSERT_FALSE(instance.isAnotherCopyRunning());
    EXPECT_TRUE(whileWeAnswer(
        [&others] { return DBusSingleInstance::askForAction(others.connection, QStringLiteral("pause")); }));
    EXPECT_EQ(actions, QStringList{QStringLiteral("pause")});
}

} // namespace
} // namespace vellumry
