// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace vellumry {

/// A file whose lock one process holds until it ends, however it ends. One thread.
class InstanceLock {
public:
    explicit InstanceLock(QString path);
    InstanceLock(const InstanceLock&) = delete;
    InstanceLock& operator=(const InstanceLock&) = delete;
    ~InstanceLock();

    /// `com.vellumry.Vellumry.lock` in the session's runtime folder, else in the folder that the history lies in.
    [[nodiscard]] static QString defaultPath();

    /// False when another process, or another lock of this one, holds it. A file that cannot be made locks nothing.
    [[nodiscard]] bool acquire();

private:
    QString m_path;
    int m_descriptor = -1;
};

} // namespace vellumry
