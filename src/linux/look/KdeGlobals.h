// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "linux/look/SaidLook.h"
#include "platform/files/FolderWatching.h"

#include <QByteArray>
#include <QCoroTask>
#include <QString>
#include <functional>
#include <memory>

namespace vellumry {

/// The file in which Plasma keeps what the user chose for all programs, `kdeglobals`. Read on another thread, at the
/// start and at each change. Main thread.
class KdeGlobals {
public:
    /// Reads and follows the file in `folder`, $XDG_CONFIG_HOME. `onChanged` is called when `said` is different.
    KdeGlobals(QString folder, FolderWatching& folders, std::function<void()> onChanged);
    ~KdeGlobals();
    KdeGlobals(const KdeGlobals&) = delete;
    KdeGlobals& operator=(const KdeGlobals&) = delete;

    [[nodiscard]] const SaidLook& said() const { return m_said; }
    /// What the text of such a file says. Pure.
    [[nodiscard]] static SaidLook lookOf(const QByteArray& text);

private:
    QCoro::Task<void> read();

    QString m_file;
    std::function<void()> m_onChanged;
    SaidLook m_said;
    quint64 m_readings = 0;
    std::unique_ptr<FolderWatch> m_watch;
    std::shared_ptr<bool> m_life = std::make_shared<bool>(true);
};

} // namespace vellumry
