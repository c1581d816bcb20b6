// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "linux/x11/selection/HostileOwner.h"
#include "linux/x11/selection/X11Pasteboard.h"

#include <QProcess>
#include <functional>
#include <gtest/gtest.h>
#include <memory>
#include <vector>

namespace vellumry {

/// A pasteboard on an X server of the test's own, with other clients that the test plays.
class X11PasteboardWorld : public ::testing::Test {
protected:
    void SetUp() override;
    void TearDown() override;

    /// Another client of the server; it works while the test waits.
    HostileOwner& peer();
    /// As the free function, and the peers work meanwhile.
    [[nodiscard]] bool eventually(const std::function<bool()>& condition, int milliseconds = 60000);
    /// Waits until the pasteboard has noticed a change since `count`.
    [[nodiscard]] bool waitForChange(qint64 count);
    /// Until all that the server has to tell of the time before the call is known to the pasteboard.
    void catchUp();
    /// The pasteboard once more, with other limits.
    void setLimits(const PasteboardLimits& limits);
    /// A peer owns the clipboard with `offers`, and the pasteboard knows.
    HostileOwner& copied(std::vector<HostileOwner::Offer> offers);

    /// What `requestor` is given for a target.
    HostileOwner::Answer ask(HostileOwner& requestor, const QByteArray& target,
                             const QByteArray& selection = "CLIPBOARD");
    /// The names that `requestor` is told are offered.
    QByteArrayList targetsOf(HostileOwner& requestor, const QByteArray& selection = "CLIPBOARD");
    bool write(std::map<QString, QByteArray> representations) {
        return pasteboard->write({PasteboardItem{std::move(representations), std::nullopt}});
    }
    static PasteboardItem file(const QByteArray& url);

    /// The result of an operation; fails the test when it does not come in time.
    template <typename T>
    T resultOf(QCoro::Task<T> task, int milliseconds = 60000) {
        const auto result = std::make_shared<std::optional<T>>();
        keep(std::move(task), result);
        EXPECT_TRUE(eventually([result] { return result->has_value(); }, milliseconds));
        return result->has_value() ? std::move(**result) : T();
    }
    std::shared_ptr<PasteboardReading> reading() { return resultOf(pasteboard->beginReading()); }

    QByteArray display;
    std::unique_ptr<X11Pasteboard> pasteboard;

private:
    template <typename T>
    static QCoro::Task<> keep(QCoro::Task<T> task, std::shared_ptr<std::optional<T>> result) {
        T value = co_await task;
        result->emplace(std::move(value));
    }

    QProcess m_server;
    std::vector<std::unique_ptr<HostileOwner>> m_peers;
};

/// Bytes that repeat nowhere near, so that a lost or doubled chunk shows.
[[nodiscard]] QByteArray patternOf(qsizetype size);

} // namespace vellumry
