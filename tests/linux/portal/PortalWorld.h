// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "linux/PrivateBus.h"
#include "linux/portal/PortalLink.h"
#include "linux/portal/ScriptedPortal.h"
#include "support/Awaited.h"

#include <gtest/gtest.h>
#include <memory>

namespace vellumry {

/// A bus with a portal on it, and our link to it.
class PortalWorld : public ::testing::Test {
protected:
    PortalWorld() {
        EXPECT_TRUE(bus.isRunning());
        portal.begin();
        connect({});
    }
    ~PortalWorld() override {
        link.reset();
        introduction.reset();
        QDBusConnection::disconnectFromBus(QStringLiteral("link"));
    }

    void connect(const PortalLink::Options& options) {
        link.reset();
        introduction.reset();
        QDBusConnection::disconnectFromBus(QStringLiteral("link"));
        introduction = std::make_shared<PortalIntroduction>(
            QDBusConnection::connectToBus(bus.address(), QStringLiteral("link")), std::chrono::seconds(60));
        link = std::make_shared<PortalLink>(introduction, options);
    }

    PrivateBus bus;
    ScriptedPortal portal{bus.address()};
    std::shared_ptr<PortalIntroduction> introduction;
    std::shared_ptr<PortalLink> link;
};

} // namespace vellumry
