// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/desktop/SoftwareUpdater.h"

namespace vellumry {

/// An updater that finds what a test says.
class FakeSoftwareUpdater : public SoftwareUpdater {
public:
    int starts = 0;
    int checks = 0;
    bool isReady = true; ///< to check
    bool downloads = true;
    std::optional<Date> lastChecked;

    void start() override { ++starts; }
    [[nodiscard]] bool canCheck() const override { return isReady; }
    void check() override { ++checks; }
    [[nodiscard]] std::optional<Date> lastCheck() const override { return lastChecked; }
    [[nodiscard]] bool automaticallyDownloads() const override { return downloads; }
    void setAutomaticallyDownloads(bool value) override { downloads = value; }
};

} // namespace vellumry
