// SPDX-License-Identifier: GPL-3.0-or-later
#include "history/clips/HistoryWriter.h"

#include "history/file/Attempts.h"

#include <QPointer>
#include <algorithm>
#include <utility>

namespace vellumry {

void HistoryWriter::setDatabase(std::shared_ptr<ClipDatabase> database) {
    m_database = std::move(database);
    m_mustReclaim = m_mustReclaim || m_database->foundLog();
    // Where nothing else is tried, the log is emptied behind the start.
    if (m_mustReclaim && !m_timer.isActive())
        m_timer.start(m_delay);
}

void HistoryWriter::abandon() {
    m_database.reset();
    m_isHeld = false;
    m_unsaved.removeIf([](const auto& entry) { return !entry.value().payload; });
    for (Unsaved& unsaved : m_unsaved)
        unsaved.replaces = QUuid();
}

QSet<QUuid> HistoryWriter::rowsToGo() const {
    QSet<QUuid> rows = m_doomed;
    for (const Unsaved& unsaved : m_unsaved) {
        if (!unsaved.replaces.isNull())
            rows.insert(unsaved.replaces);
    }
    return rows;
}

void HistoryWriter::replaceRows(const QHash<QUuid, QUuid>& replaced, const std::vector<QUuid>& unwanted) {
    for (auto entry = replaced.begin(); entry != replaced.end(); ++entry) {
        // A file that we did not write may hold one content twice.
        const QUuid earlier = std::exchange(m_unsaved[entry.key()].replaces, entry.value());
        if (!earlier.isNull())
            m_doomed.insert(earlier);
    }
    m_doomed.unite(QSet<QUuid>(unwanted.begin(), unwanted.end()));
    m_mustReclaim = m_mustReclaim || !unwanted.empty();
}

QCoro::Task<void> HistoryWriter::insert(QUuid id, ClipPayload payload) {
    Unsaved& unsaved = m_unsaved[id];
    dispose(std::exchange(unsaved.payload, std::make_shared<ClipPayload>(std::move(payload))));
    ++unsaved.version;
    m_doomed.remove(id); // put back before its row could be deleted
    if (!m_database || m_isHeld)
        co_return;
    auto writing = write(id);
    co_await writing;
}

QCoro::Task<bool> HistoryWriter::write(QUuid id) {
    const QPointer<HistoryWriter> self(this);
    const ClipRef clip = m_find(id);
    if (!clip) {
        dispose(m_unsaved.take(id).payload);
        co_return true;
    }
    m_unsaved[id].isInFlight = true;
    const Unsaved sent = m_unsaved.value(id);
    auto writing =
        attempted(sent.payload ? m_database->insert(clip, sent.payload, sent.replaces) : m_database->updateRow(clip));
    const bool isWritten = co_await writing;
    if (!self)
        co_return isWritten;
    const auto now = m_unsaved.find(id);
    // A later copy of the same content has its own turn, and a clip that went has none.
    if (now != m_unsaved.end() && now->payload == sent.payload) {
        now->isInFlight = false;
        if (isWritten && now->version == sent.version) {
            m_unsaved.erase(now);
        } else if (isWritten) {
            now->payload.reset();
            now->replaces = QUuid();
        }
    }
    if (isWritten) {
        dispose(sent.payload);
        settle();
    } else {
        failed();
    }
    co_return isWritten;
}

QCoro::Task<std::optional<ClipPayload>> HistoryWriter::payload(QUuid id) {
    if (const auto waiting = unsavedPayload(id))
        co_return *waiting;
    if (!m_database)
        co_return std::nullopt;
    auto reading = attemptedPayload(m_database->payload(id));
    co_return co_await reading;
}

std::shared_ptr<const ClipPayload> HistoryWriter::unsavedPayload(const QUuid& id) const {
    const auto found = m_unsaved.constFind(id);
    return found == m_unsaved.constEnd() ? nullptr : found->payload;
}

bool HistoryWriter::mustWait(const QUuid& id) {
    if (!m_database)
        return true;
    const auto waiting = m_unsaved.find(id);
    const bool isWaiting = waiting != m_unsaved.end() && !waiting->isInFlight;
    if (isWaiting || m_isHeld)
        ++m_unsaved[id].version;
    return isWaiting || m_isHeld;
}

QCoro::Task<void> HistoryWriter::update(QUuid id, QCoro::Task<bool> writing) {
    const QPointer<HistoryWriter> self(this);
    const bool isWritten = co_await writing;
    if (isWritten || !self || !m_find(id))
        co_return;
    ++m_unsaved[id].version;
    failed();
}

QCoro::Task<void> HistoryWriter::updateUsed(ClipRef clip) {
    if (mustWait(clip->id))
        co_return;
    auto updating = update(clip->id, attempted(m_database->updateUsed(clip->id, clip->lastUsedAt)));
    co_await updating;
}

QCoro::Task<void> HistoryWriter::updatePinned(ClipRef clip, bool isRescued) {
    if (mustWait(clip->id))
        co_return;
    // Both are queued before the first wait: the store may be gone behind it.
    auto pinning = update(clip->id, attempted(m_database->updatePinned(clip->id, clip->pinOrder)));
    if (!isRescued) {
        co_await pinning;
        co_return;
    }
    auto rescuing = update(clip->id, attempted(m_database->updateExpiry(clip->id, std::nullopt)));
    co_await pinning;
    co_await rescuing;
}

QCoro::Task<void> HistoryWriter::updateMeta(ClipRef clip) {
    if (mustWait(clip->id))
        co_return;
    auto updating = update(clip->id, attempted(m_database->updateMeta(clip)));
    co_await updating;
}

QCoro::Task<void> HistoryWriter::remove(std::vector<QUuid> ids, bool mustReclaim) {
    const QPointer<HistoryWriter> self(this);
    for (std::size_t i = 0, count = ids.size(); i < count; ++i) {
        const Unsaved unsaved = m_unsaved.take(ids[i]);
        if (!unsaved.replaces.isNull())
            ids.push_back(unsaved.replaces);
    }
    if (!m_database)
        co_return;
    if (m_isHeld) {
        m_doomed.unite(QSet<QUuid>(ids.begin(), ids.end()));
        m_mustReclaim = m_mustReclaim || mustReclaim;
        co_return;
    }
    auto deleting = deleteRows(std::move(ids));
    co_await deleting;
    if (!self || !mustReclaim)
        co_return;
    auto reclaiming = reclaim();
    co_await reclaiming;
}

QCoro::Task<void> HistoryWriter::removeAllOf(std::function<std::vector<QUuid>()> ids) {
    const QPointer<HistoryWriter> self(this);
    if (!m_database)
        co_return;
    if (m_isHeld) {
        auto removing = remove(ids(), true);
        co_await removing;
        co_return;
    }
    const auto listed = std::make_shared<std::vector<QUuid>>();
    auto list = [ids = std::move(ids), listed] {
        *listed = ids();
        return *listed;
    };
    auto deleting = attempted(m_database->deleteAllOf(std::move(list)));
    const bool isDeleted = co_await deleting;
    if (!self)
        co_return;
    if (!isDeleted) {
        m_doomed.unite(QSet<QUuid>(listed->begin(), listed->end()));
        failed();
    }
    auto reclaiming = reclaim();
    co_await reclaiming;
}

QCoro::Task<bool> HistoryWriter::deleteRows(std::vector<QUuid> ids) {
    const QPointer<HistoryWriter> self(this);
    auto deleting = attempted(m_database->deleteAll(ids));
    const bool isDeleted = co_await deleting;
    if (!self)
        co_return isDeleted;
    for (const QUuid& id : ids) {
        if (isDeleted || m_find(id)) // or it was put back meanwhile
            m_doomed.remove(id);
        else
            m_doomed.insert(id);
    }
    isDeleted ? settle() : failed();
    co_return isDeleted;
}

QCoro::Task<bool> HistoryWriter::reclaim() {
    const QPointer<HistoryWriter> self(this);
    m_mustReclaim = false;
    auto reclaiming = attempted(m_database->reclaimSpace());
    const bool isReclaimed = co_await reclaiming;
    if (!self)
        co_return isReclaimed;
    if (isReclaimed) {
        settle();
    } else {
        m_mustReclaim = true;
        if (!m_timer.isActive())
            m_timer.start(m_delay);
    }
    co_return isReclaimed;
}

QCoro::Task<void> HistoryWriter::letGo(std::shared_ptr<const void> thing) {
    if (!m_database)
        co_return;
    m_database->dispose(std::move(thing));
    if (m_isHeld) {
        m_mustReclaim = true;
        co_return;
    }
    auto reclaiming = reclaim();
    co_await reclaiming;
}

void HistoryWriter::forgetGone() {
    m_unsaved.removeIf([this](const auto& entry) {
        if (m_find(entry.key()))
            return false;
        if (!entry.value().replaces.isNull())
            m_doomed.insert(entry.value().replaces);
        return true;
    });
}

/// The last owner of many bytes takes a while to overwrite them: the history's thread does that. To wake it costs more
/// than a few.
void HistoryWriter::dispose(std::shared_ptr<ClipPayload> payload) {
    constexpr qint64 few = 16'384;
    if (payload && m_database && payload->byteCount() > few)
        m_database->dispose(std::move(payload));
}

} // namespace vellumry
