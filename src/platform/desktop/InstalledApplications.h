// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QCoroTask>
#include <QString>
#include <vector>

namespace vellumry {

/// An application that the user has, as menus show it.
struct InstalledApplication {
    QString identifier{};  ///< as `SourceApp::bundleID` would have it
    QString name{};        ///< in the user's language
    QString iconPath{};    ///< of a picture file; empty when there is none
    QString windowClass{}; ///< what its windows call themselves, as far as it is known

    bool operator==(const InstalledApplication&) const = default;
};

/// The applications on this computer. Main thread.
class InstalledApplications {
public:
    virtual ~InstalledApplications() = default;
    /// Those that menus show, by name, each identifier once. Reads the disk on another thread; empty when there is
    /// nothing to read.
    [[nodiscard]] virtual QCoro::Task<std::vector<InstalledApplication>> list() = 0;
};

} // namespace vellumry
