// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "foundation/SerialExecutor.h"
#include "history/clips/ClipStore.h"
#include "transfer/ExportOutcome.h"

#include <QObject>
#include <memory>

namespace vellumry {

class ExportFolder;

/// Writes the history into a folder of ordinary files, one clip at a time, on a thread of low priority. Sensitive clips
/// stay out. Either all is there at the end, or nothing. Main thread.
class HistoryExport : public QObject {
    Q_OBJECT

public:
    /// `store` must outlive this.
    explicit HistoryExport(ClipStore& store);
    ~HistoryExport() override;

    /// To a folder that is empty or not there yet. Clips that come or go meanwhile may be in it or not.
    QCoro::Task<ExportOutcome> run(QString folder);
    void stop() { m_isStopped = true; }

    /// After each clip.
    std::function<void(const ExportOutcome& soFar)> onProgress = [](const ExportOutcome&) {};

private:
    [[nodiscard]] QCoro::Task<ExportOutcome> write(ClipRef clip, std::shared_ptr<ExportFolder> folder,
                                                   ExportOutcome outcome);
    [[nodiscard]] QCoro::Task<ExportOutcome> finish(std::shared_ptr<ExportFolder> folder, ExportOutcome outcome);

    ClipStore* m_store;
    bool m_isStopped = false;
    SerialExecutor m_writer{"export", true};
};

} // namespace vellumry
