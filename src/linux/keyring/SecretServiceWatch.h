// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDBusMessage>
#include <QObject>
#include <functional>

namespace vellumry {

/// Hears when a Secret Service appears on the session bus, or when one of its collections is made, unlocked or locked.
/// Starts no service. One at a time; main thread.
class SecretServiceWatch : public QObject {
    Q_OBJECT

public:
    explicit SecretServiceWatch(std::function<void()> onChanged);
    ~SecretServiceWatch() override;

private Q_SLOTS:
    void heard(const QDBusMessage& message);

private:
    std::function<void()> m_onChanged;
};

} // namespace vellumry
