// SPDX-License-Identifier: GPL-3.0-or-later

// What the file has refused: how it is tried again.

#include "foundation/Logging.h"
#include "history/clips/HistoryWriter.h"
#include "history/file/ClipDatabase.h"

#include <QPointer>
#include <algorithm>
#include <utility>

namespace vellumry {

namespace {

using namespace std::chrono_literals;

constexpr std::chrono::milliseconds firstDelay = 1s;
constexpr std::chrono::milliseconds longestDelay = 30s;
/// A clip that can never be written must not keep the others from it; a disk that refuses so many refuses all.
constexpr int mostRefusals = 3;

} // namespace

HistoryWriter::HistoryWriter(Find find)
    : m_find(std::move(find))
    , m_delay(firstDelay) {
    m_timer.setSingleShot(true);
    connect(&m_timer, &QTimer::timeout, this, [this] { retry(); });
}

/// What the file has refused is tried once more: the reason may be over. What was copied while the file was being
/// looked through is written without the verdict.
HistoryWriter::~HistoryWriter() {
    if (!m_database || (!m_isBehind && !m_isHeld))
        return;
    std::vector<ClipDatabase::Row> rows;
    for (auto waiting = m_unsaved.constBegin(); waiting != m_unsaved.constEnd(); ++waiting) {
        const ClipRef clip = waiting->isInFlight ? nullptr : m_find(waiting.key());
        if (clip)
            rows.push_back({clip, waiting->payload, waiting->replaces});
    }
    m_database->writeLast({m_doomed.begin(), m_doomed.end()}, std::move(rows));
}

QCoro::Task<void> HistoryWriter::retry() {
    if (!m_database || m_isHeld || m_isRetrying)
        co_return;
    const QPointer<HistoryWriter> self(this);
    m_isRetrying = true;
    m_timer.stop();
    auto writing = writeAll();
    const bool isDone = co_await writing;
    if (!self)
        co_return;
    m_isRetrying = false;
    if (isDone) {
        settle();
        co_return;
    }
    m_delay = std::min(m_delay * 2, longestDelay);
    m_timer.start(m_delay);
}

QCoro::Task<bool> HistoryWriter::writeAll() {
    const QPointer<HistoryWriter> self(this);
    if (!m_doomed.isEmpty()) {
        auto deleting = deleteRows({m_doomed.begin(), m_doomed.end()});
        if (!co_await deleting || !self)
            co_return false;
    }
    int refusals = 0;
    for (const QUuid& id : m_unsaved.keys()) {
        const auto waiting = m_unsaved.constFind(id);
        if (waiting == m_unsaved.constEnd() || waiting->isInFlight)
            continue;
        auto writing = write(id);
        const bool isWritten = co_await writing;
        if (!self)
            co_return false;
        refusals += isWritten ? 0 : 1;
        if (refusals == mostRefusals)
            co_return false;
    }
    // Last: a reader may keep the log for hours, and no copy waits for that.
    if (m_mustReclaim) {
        auto reclaiming = reclaim();
        if (!co_await reclaiming || !self)
            co_return false;
    }
    co_return m_unsaved.isEmpty();
}

void HistoryWriter::failed() {
    if (!m_isRetrying && !m_timer.isActive())
        m_timer.start(m_delay);
    if (std::exchange(m_isBehind, true))
        return;
    qCWarning(logging::history) << "the history file refuses changes; they are tried again";
    onBehindChanged();
}

void HistoryWriter::settle() {
    const bool isWaiting = !m_doomed.isEmpty() ||
                           std::ranges::any_of(m_unsaved, [](const Unsaved& unsaved) { return !unsaved.isInFlight; });
    if (!isWaiting && !m_mustReclaim) {
        m_timer.stop();
        m_delay = firstDelay;
    } else if (!m_isRetrying) {
        // The file takes changes again: the others need not wait for their time.
        m_delay = firstDelay;
        m_timer.start(m_delay);
    }
    if (isWaiting || !std::exchange(m_isBehind, false))
        return;
    qCInfo(logging::history) << "the history file has taken all changes";
    onBehindChanged();
}

} // namespace vellumry
