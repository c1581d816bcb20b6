// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "foundation/Reason.h"

#include <QDBusAbstractAdaptor>
#include <QDBusConnection>
#include <functional>

namespace vellumry {

/// What `vellumry --status` asks of the running program: one method that changes nothing, on an interface of our own
/// beside `org.freedesktop.Application`. Lives as long as the object it is attached to. Main thread.
class StatusInterface : public QDBusAbstractAdaptor {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "com.vellumry.Vellumry.Status")

public:
    explicit StatusInterface(QObject* parent);

    std::function<QString()> onReport;

public Q_SLOTS:
    /// Lines of English text; the bus knows it by this name, hence the capital.
    QString Report();
};

/// Why the running copy was not asked, or did not answer.
enum class NoStatus : quint8 { noBus, notRunning, noAnswer };

/// The report of the copy that runs in this session. Waits for it, five seconds at most; starts nothing.
[[nodiscard]] std::expected<QString, NoStatus> askForStatus(const QDBusConnection& bus);

} // namespace vellumry
