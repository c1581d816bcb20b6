// SPDX-License-Identifier: GPL-3.0-or-later
#include "paste/SurvivingCopy.h"

#include "history/clips/ClipStore.h"
#include "paste/PasteboardWriter.h"
#include "platform/display/Pasteboard.h"

#include <QPointer>
#include <QTimer>
#include <chrono>
#include <utility>

namespace vellumry {

SurvivingCopy::SurvivingCopy(ClipStore& store, Pasteboard& pasteboard, QObject* parent)
    : QObject(parent)
    , m_store(&store)
    , m_pasteboard(&pasteboard) {
    m_pasteboard->onOwnerGone = [this](qint64 changeCount) {
        m_orphaned = changeCount;
        if (m_stored && m_stored->changeCount == changeCount)
            takeOver(*m_stored);
    };
    connect(m_store, &ClipStore::clipsChanged, this, &SurvivingCopy::followHistory);
}

SurvivingCopy::~SurvivingCopy() {
    m_pasteboard->onOwnerGone = nullptr;
}

void SurvivingCopy::noteStored(const ClipRef& clip, qint64 changeCount) {
    m_stored = Copy{changeCount, clip->id, clip->isSensitive()};
    // It was read in time, but its owner went before it was in the file.
    if (m_orphaned == changeCount)
        takeOver(*m_stored);
}

void SurvivingCopy::noteWritten(std::optional<QUuid> clip, bool isSensitive) {
    const qint64 changeCount = m_pasteboard->changeCount();
    m_kept.reset();
    if (!isSensitive)
        return;
    m_pasteboard->markSecret(changeCount);
    if (clip) {
        m_kept = Copy{changeCount, *clip, isSensitive};
        return;
    }
    // No clip will tell when its time is over.
    const std::chrono::duration<double> lifetime(m_store->sensitiveLifetime());
    QTimer::singleShot(std::chrono::ceil<std::chrono::milliseconds>(lifetime), this,
                       [this, changeCount] { m_pasteboard->giveUp(changeCount); });
}

QCoro::Task<void> SurvivingCopy::takeOver(Copy copy) {
    const QPointer<SurvivingCopy> self(this);
    const qint64 leftAt = m_pasteboard->changeCount();
    auto loading = m_store->payload(copy.clip);
    const std::optional<ClipPayload> payload = co_await loading;
    if (!self || !payload || m_pasteboard->changeCount() != leftAt)
        co_return;
    // Deleted while it was being read.
    const ClipRef clip = m_store->find(copy.clip);
    if (!clip || !PasteboardWriter::takeOver(payload->items, *m_pasteboard))
        co_return;
    m_kept = Copy{m_pasteboard->changeCount(), clip->id, clip->isSensitive()};
}

void SurvivingCopy::followHistory() {
    if (!m_kept)
        return;
    if (m_kept->changeCount != m_pasteboard->changeCount()) {
        m_kept.reset();
        return;
    }
    if (const ClipRef clip = m_store->find(m_kept->clip)) {
        m_kept->isSensitive = clip->isSensitive();
        return;
    }
    const Copy gone = *std::exchange(m_kept, std::nullopt);
    if (gone.isSensitive)
        m_pasteboard->giveUp(gone.changeCount);
}

} // namespace vellumry
