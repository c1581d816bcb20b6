// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "foundation/OneShot.h"
#include "foundation/Reason.h"

#include <QByteArray>
#include <QUrl>
#include <chrono>
#include <functional>

class QNetworkAccessManager;

namespace vellumry {

/// A file of another machine, of which we decide how long and how much. Follows no redirection, keeps no cookies and
/// no cache. Main thread.
struct BoundedDownload {
    QUrl url;
    qint64 mostBytes = 0;
    bool isExact = false;                                        ///< fewer bytes than `mostBytes` are a failure too
    std::chrono::milliseconds silence{std::chrono::seconds(30)}; ///< longest time without a byte
    std::chrono::milliseconds limit{std::chrono::minutes(1)};    ///< for all of it
    /// Takes what comes, in order; false ends it.
    std::function<bool(const QByteArray& bytes)> take;

    /// Begins it. Nothing of it is called any more when `network` goes; the result then never comes.
    [[nodiscard]] OneShot<OrReason<qint64>> start(QNetworkAccessManager& network) const;
};

} // namespace vellumry
