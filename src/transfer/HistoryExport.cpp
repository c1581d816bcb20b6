// SPDX-License-Identifier: GPL-3.0-or-later
#include "transfer/HistoryExport.h"

#include "foundation/Logging.h"
#include "transfer/ExportFolder.h"

#include <QPointer>
#include <utility>

namespace vellumry {

namespace {

using Folder = std::shared_ptr<ExportFolder>;
using Created = std::expected<Folder, ExportFolder::Failure>;
using Written = std::expected<void, ExportFolder::Failure>;

ExportOutcome::Result resultOf(ExportFolder::Failure failure) {
    switch (failure) {
    case ExportFolder::Failure::notEmpty:
        return ExportOutcome::Result::notEmpty;
    case ExportFolder::Failure::noRoom:
        return ExportOutcome::Result::noRoom;
    case ExportFolder::Failure::refused:
        break;
    }
    return ExportOutcome::Result::refused;
}

Created create(const QString& path) {
    auto folder = ExportFolder::create(path);
    if (!folder)
        return std::unexpected(folder.error());
    return Folder(std::move(*folder));
}

ImportEntry entryOf(const Clip& clip, ClipPayload payload) {
    ImportEntry entry;
    entry.payload = std::move(payload);
    entry.provenance = {clip.createdAt, clip.lastUsedAt, clip.isPinned, clip.pinOrder};
    entry.source = {clip.sourceBundleID, clip.sourceAppName};
    entry.title = clip.title.toString();
    entry.isScreenshot = clip.isScreenshot;
    return entry;
}

} // namespace

HistoryExport::HistoryExport(ClipStore& store)
    : m_store(&store) {}

HistoryExport::~HistoryExport() = default;

QCoro::Task<ExportOutcome> HistoryExport::run(QString path) {
    const QPointer<HistoryExport> self(this);
    ExportOutcome outcome;
    m_isStopped = false;
    std::function<Created()> creating = [path] { return create(path); };
    auto beginning = m_writer.run(std::move(creating));
    Created created = co_await beginning;
    if (!created)
        outcome.result = resultOf(created.error());
    if (!self || !created)
        co_return outcome;
    Folder folder = std::exchange(*created, nullptr);
    const std::vector<ClipRef> clips = m_store->clips();
    for (const ClipRef& clip : clips) {
        auto writing = write(clip, folder, outcome);
        outcome = co_await writing;
        if (!self)
            co_return outcome;
        if (outcome.result != ExportOutcome::Result::done)
            break;
    }
    auto finishing = finish(std::move(folder), outcome);
    outcome = co_await finishing;
    qCInfo(logging::transfer) << "an export has ended: clips" << outcome.clips << "secrets" << outcome.secrets
                              << "unreadable" << outcome.unreadable << "result" << int(outcome.result);
    co_return outcome;
}

/// The outcome so far with what became of this clip.
QCoro::Task<ExportOutcome> HistoryExport::write(ClipRef clip, std::shared_ptr<ExportFolder> folder,
                                                ExportOutcome outcome) {
    if (clip->isSensitive()) {
        ++outcome.secrets;
        co_return outcome;
    }
    const QPointer<HistoryExport> self(this);
    auto reading = m_store->payload(clip->id);
    std::optional<ClipPayload> payload = co_await reading;
    if (!self)
        co_return outcome;
    if (m_isStopped) {
        outcome.result = ExportOutcome::Result::stopped;
        co_return outcome;
    }
    if (!payload) {
        // One that was deleted meanwhile is no loss.
        outcome.unreadable += m_store->find(clip->id) ? 1 : 0;
        co_return outcome;
    }
    const auto entry = std::make_shared<const ImportEntry>(entryOf(*clip, std::move(*payload)));
    std::function<Written()> writing = [folder, entry] { return folder->write(*entry); };
    auto ending = m_writer.run(std::move(writing));
    const Written written = co_await ending;
    if (!self)
        co_return outcome;
    if (!written) {
        outcome.result = resultOf(written.error());
        co_return outcome;
    }
    ++outcome.clips;
    onProgress(outcome);
    co_return outcome;
}

/// Closes what is complete and takes away what is not, which may last as long as its making.
QCoro::Task<ExportOutcome> HistoryExport::finish(std::shared_ptr<ExportFolder> folder, ExportOutcome outcome) {
    const bool isComplete = outcome.result == ExportOutcome::Result::done;
    std::function<Written()> finishing = [last = std::move(folder), isComplete]() mutable {
        const Written finished = isComplete ? last->finish() : Written();
        last.reset();
        return finished;
    };
    auto ending = m_writer.run(std::move(finishing));
    const Written finished = co_await ending;
    if (!finished)
        outcome.result = resultOf(finished.error());
    co_return outcome;
}

} // namespace vellumry
