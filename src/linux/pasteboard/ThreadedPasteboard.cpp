// SPDX-License-Identifier: GPL-3.0-or-later
#include "linux/pasteboard/ThreadedPasteboard.h"

#include "foundation/Logging.h"
#include "foundation/SerialExecutor.h"
#include "linux/pasteboard/OfferedContents.h"
#include "linux/pasteboard/PasteboardReadings.h"

#include <atomic>

namespace vellumry {

/// Shared with the service, which may have a notice under way when the pasteboard goes. `pasteboard` is for
/// the main thread alone.
struct ThreadedPasteboard::Link {
    ThreadedPasteboard* pasteboard = nullptr;
    std::atomic<bool> isChangeAnnounced = false;
};

ThreadedPasteboard::ThreadedPasteboard(const PasteboardLimits& limits)
    : m_limits(limits)
    , m_link(std::make_shared<Link>()) {
    m_link->pasteboard = this;
}

ThreadedPasteboard::~ThreadedPasteboard() {
    m_link->pasteboard = nullptr;
}

PasteboardNotices ThreadedPasteboard::notices() {
    PasteboardNotices notices;
    notices.changed = [link = m_link] {
        // One notice under way speaks for all changes until it arrives.
        if (link->isChangeAnnounced.exchange(true))
            return;
        postToMain([link] {
            link->isChangeAnnounced.store(false);
            if (link->pasteboard)
                link->pasteboard->announceChange();
        });
    };
    notices.ownerGone = [link = m_link](qint64 held, qint64 since) {
        postToMain([link, held, since] {
            if (link->pasteboard)
                link->pasteboard->announceOwnerGone(held, since);
        });
    };
    return notices;
}

void ThreadedPasteboard::setService(std::unique_ptr<PasteboardService> service) {
    m_service = std::move(service);
}

qint64 ThreadedPasteboard::changeCount() const {
    return m_service->changeCount();
}

bool ThreadedPasteboard::wasServed() const {
    return m_service->wasServed();
}

bool ThreadedPasteboard::wasListed() const {
    return m_service->wasListed();
}

QCoro::Task<void> ThreadedPasteboard::catchUp() {
    const OneShot<bool> result;
    m_service->catchUp(result);
    (void)co_await result;
}

QCoro::Task<std::shared_ptr<PasteboardReading>> ThreadedPasteboard::beginReading() {
    const qint64 maxFileListBytes = m_limits.fileListBytes;
    if (m_ownContents && m_ownChangeCount == changeCount()) {
        const std::weak_ptr<PasteboardService> service = m_service;
        std::shared_ptr<PasteboardReading> own =
            std::make_shared<OwnReading>(m_ownContents, [service, count = m_ownChangeCount] {
                const std::shared_ptr<PasteboardService> running = service.lock();
                return running && running->changeCount() == count;
            });
        co_return own;
    }

    auto asking = m_service->readOffer();
    const std::shared_ptr<const ForeignOffer> offer = co_await asking;
    std::shared_ptr<PasteboardReading> reading;
    if (offer)
        reading = std::make_shared<ForeignReading>(offer, maxFileListBytes);
    co_return reading;
}

bool ThreadedPasteboard::write(std::vector<PasteboardItem> items) {
    PasteboardClaim claim;
    claim.contents = OfferedContents::of(std::move(items));
    return own(std::move(claim));
}

bool ThreadedPasteboard::takeOver(std::vector<PasteboardItem> items) {
    PasteboardClaim claim;
    // The copy goes on as its owner left it.
    claim.contents = OfferedContents::of(std::move(items), OfferedContents::FileOperation::asCopied);
    claim.isTakeover = true;
    return own(std::move(claim));
}

void ThreadedPasteboard::giveUp(qint64 changeCount) {
    std::shared_ptr<const OfferedContents> contents;
    if (m_ownContents && m_ownChangeCount == changeCount)
        contents = std::move(m_ownContents);
    else if (m_primaryChangeCount == changeCount)
        contents = m_primaryContents.lock();
    if (contents)
        m_service->disown(contents);
}

void ThreadedPasteboard::markSecret(qint64 changeCount) {
    m_secretChangeCount = changeCount;
}

/// A secret that was pasted into a terminal would stay on the primary selection until the user selects a text.
void ThreadedPasteboard::dropOldSecret() {
    if (m_primaryChangeCount != m_secretChangeCount || m_primaryChangeCount == changeCount())
        return;
    const std::shared_ptr<const OfferedContents> contents = m_primaryContents.lock();
    m_primaryContents.reset();
    if (contents)
        m_service->disown(contents);
}

void ThreadedPasteboard::settle(qint64 changeCount, bool wasKept) {
    m_service->settle(changeCount, wasKept);
}

qint64 ThreadedPasteboard::copyCount() const {
    return m_service->copyCount();
}

bool ThreadedPasteboard::own(PasteboardClaim claim) {
    m_ownContents.reset();
    m_service->claim(claim);
    const std::optional<qint64> count = claim.result.waitFor(m_limits.ownership).value_or(std::nullopt);
    if (!count) {
        // What comes too late must not stay: the caller has been told that it is not there.
        if (!claim.isTakeover)
            qCWarning(logging::pasteboard)
                << "The clipboard was not written: the display server did not confirm that it is ours.";
        claim.isWithdrawn->store(true);
        m_service->disown(claim.contents);
        return false;
    }
    m_ownContents = claim.contents;
    m_ownChangeCount = *count;
    dropOldSecret();
    return true;
}

bool ThreadedPasteboard::offerAsPrimary() {
    if (!m_ownContents || m_ownChangeCount != changeCount())
        return false;
    PasteboardClaim claim;
    claim.contents = m_ownContents;
    claim.isPrimary = true;
    m_service->claim(claim);
    if (claim.result.waitFor(m_limits.ownership).value_or(std::nullopt)) {
        m_primaryContents = m_ownContents;
        m_primaryChangeCount = m_ownChangeCount;
        return true;
    }
    claim.isWithdrawn->store(true);
    return false;
}

void ThreadedPasteboard::announceChange() {
    // Contents that another program has replaced are not kept.
    if (m_ownChangeCount != changeCount())
        m_ownContents.reset();
    dropOldSecret();
    if (const qint64 copies = copyCount(); std::exchange(m_copiesNoted, copies) != copies && m_ownerWatch)
        m_ownerWatch->noteCopy();
    if (onChanged)
        onChanged();
}

QCoro::Task<void> ThreadedPasteboard::announceOwnerGone(qint64 held, qint64 since) {
    const std::shared_ptr<Link> link = m_link;
    if (const std::shared_ptr<OwnerWatch> watch = m_ownerWatch) {
        auto asking = watch->hasEnded();
        const bool hasEnded = co_await asking;
        if (!hasEnded)
            co_return;
    }
    // Another program took the pasteboard while the notice was on its way.
    if (link->pasteboard != nullptr && since == changeCount() && onOwnerGone)
        onOwnerGone(held);
}

} // namespace vellumry
