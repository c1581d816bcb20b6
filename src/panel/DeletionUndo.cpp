// SPDX-License-Identifier: GPL-3.0-or-later
#include "panel/DeletionUndo.h"

#include "history/clips/ClipStore.h"

#include <utility>

namespace vellumry {

DeletionUndo::DeletionUndo(ClipStore& store)
    : m_store(&store) {
    m_timer.setSingleShot(true);
    m_timer.setTimerType(Qt::PreciseTimer);
    connect(&m_timer, &QTimer::timeout, this, &DeletionUndo::endOverdue);
}

std::shared_ptr<DeletionUndo::Deletion> DeletionUndo::begin(int count, quint64 edits) {
    auto deletion = std::make_shared<Deletion>();
    deletion->count = count;
    deletion->edits = edits;
    deletion->end = QDeadlineTimer(m_time, Qt::PreciseTimer);
    m_deletions.push_back(deletion);
    schedule();
    Q_EMIT changed();
    return deletion;
}

void DeletionUndo::arrive(const std::shared_ptr<Deletion>& deletion, RemovedClips clips) {
    deletion->clips = std::move(clips);
    if (deletion->isWanted)
        putBack(*std::exchange(deletion->clips, std::nullopt));
    else if (deletion->isOver)
        letGo(*deletion);
}

std::shared_ptr<const DeletionUndo::Deletion> DeletionUndo::last() const {
    return m_deletions.empty() ? nullptr : m_deletions.back();
}

void DeletionUndo::takeBack() {
    if (m_deletions.empty())
        return;
    const auto deletion = m_deletions.back();
    m_deletions.pop_back();
    schedule();
    if (deletion->clips)
        putBack(*std::exchange(deletion->clips, std::nullopt));
    else
        deletion->isWanted = true;
    Q_EMIT changed();
}

void DeletionUndo::putBack(const RemovedClips& clips) {
    m_store->putBack(clips);
    Q_EMIT tookBack(clips);
}

void DeletionUndo::letGo(Deletion& deletion) {
    deletion.isOver = true;
    if (auto clips = std::exchange(deletion.clips, std::nullopt))
        m_store->letGo(std::move(*clips));
}

void DeletionUndo::forget() {
    if (m_deletions.empty())
        return;
    for (const auto& deletion : std::exchange(m_deletions, {}))
        letGo(*deletion);
    m_timer.stop();
    Q_EMIT changed();
}

void DeletionUndo::endOverdue() {
    const auto before = m_deletions.size();
    while (!m_deletions.empty() && m_deletions.front()->end.hasExpired()) {
        letGo(*m_deletions.front());
        m_deletions.pop_front();
    }
    schedule();
    if (m_deletions.size() != before)
        Q_EMIT changed();
}

void DeletionUndo::schedule() {
    if (m_deletions.empty())
        m_timer.stop();
    else
        m_timer.start(std::chrono::milliseconds(m_deletions.front()->end.remainingTime()));
}

} // namespace vellumry
