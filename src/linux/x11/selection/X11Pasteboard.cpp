// SPDX-License-Identifier: GPL-3.0-or-later
#include "linux/x11/selection/X11Pasteboard.h"

#include "foundation/Logging.h"
#include "linux/x11/selection/OfferedContents.h"
#include "linux/x11/selection/PasteboardThread.h"
#include "linux/x11/selection/X11PasteboardReading.h"

#include <atomic>

namespace vellumry {

/// Shared with the pasteboard thread, which may have a notice under way when the pasteboard goes. `pasteboard` is for
/// the main thread alone.
struct X11Pasteboard::Link {
    X11Pasteboard* pasteboard = nullptr;
    std::atomic<bool> isChangeAnnounced = false;
};

OrReason<std::unique_ptr<X11Pasteboard>> X11Pasteboard::create(const QByteArray& displayName,
                                                               const PasteboardLimits& limits) {
    auto connection = XcbConnection::create(displayName);
    if (!connection)
        return std::unexpected(std::move(connection.error()));
    std::unique_ptr<X11Pasteboard> pasteboard(new X11Pasteboard(limits));
    PasteboardEngine::Notices notices;
    notices.changed = [link = pasteboard->m_link] {
        // One notice under way speaks for all changes until it arrives.
        if (link->isChangeAnnounced.exchange(true))
            return;
        postToMain([link] {
            link->isChangeAnnounced.store(false);
            if (link->pasteboard)
                link->pasteboard->announceChange();
        });
    };
    notices.ownerGone = [link = pasteboard->m_link](qint64 held, qint64 since) {
        postToMain([link, held, since] {
            if (link->pasteboard)
                link->pasteboard->announceOwnerGone(held, since);
        });
    };
    auto engine = std::make_unique<PasteboardEngine>(std::move(*connection), limits, std::move(notices));
    auto thread = PasteboardThread::create(std::move(engine));
    if (!thread)
        return std::unexpected(std::move(thread.error()));
    pasteboard->m_thread = std::move(*thread);
    return pasteboard;
}

X11Pasteboard::X11Pasteboard(const PasteboardLimits& limits)
    : m_limits(limits)
    , m_link(std::make_shared<Link>()) {
    m_link->pasteboard = this;
}

X11Pasteboard::~X11Pasteboard() {
    m_link->pasteboard = nullptr;
}

qint64 X11Pasteboard::changeCount() const {
    return m_thread->engine().changeCount();
}

bool X11Pasteboard::wasServed() const {
    return m_thread->engine().wasServed();
}

bool X11Pasteboard::wasListed() const {
    return m_thread->engine().wasListed();
}

QCoro::Task<void> X11Pasteboard::catchUp() {
    const PendingResult<bool> result;
    m_thread->post([result](PasteboardEngine& engine, auto) { engine.catchUp(result); });
    (void)co_await result;
}

QCoro::Task<std::shared_ptr<PasteboardReading>> X11Pasteboard::beginReading() {
    const std::weak_ptr<PasteboardThread> thread = m_thread;
    const qint64 maxFileListBytes = m_limits.fileListBytes;
    if (m_ownContents && m_ownChangeCount == changeCount()) {
        std::shared_ptr<PasteboardReading> own = std::make_shared<OwnReading>(thread, m_ownContents, m_ownChangeCount);
        co_return own;
    }

    const PendingResult<std::shared_ptr<const SelectionOffer>> result;
    m_thread->post([result](PasteboardEngine& engine, auto now) { engine.readOffer(result, now); });
    const std::shared_ptr<const SelectionOffer> offer = co_await result;
    std::shared_ptr<PasteboardReading> reading;
    if (offer)
        reading = std::make_shared<ForeignReading>(thread, offer, maxFileListBytes);
    co_return reading;
}

bool X11Pasteboard::write(std::vector<PasteboardItem> items) {
    PasteboardEngine::Claim claim;
    claim.contents = OfferedContents::of(std::move(items));
    return own(std::move(claim));
}

bool X11Pasteboard::takeOver(std::vector<PasteboardItem> items) {
    PasteboardEngine::Claim claim;
    // The copy goes on as its owner left it.
    claim.contents = OfferedContents::of(std::move(items), OfferedContents::FileOperation::asCopied);
    claim.isTakeover = true;
    return own(std::move(claim));
}

void X11Pasteboard::giveUp(qint64 changeCount) {
    std::shared_ptr<const OfferedContents> contents;
    if (m_ownContents && m_ownChangeCount == changeCount)
        contents = std::move(m_ownContents);
    else if (m_primaryChangeCount == changeCount)
        contents = m_primaryContents.lock();
    if (contents)
        m_thread->post([contents](PasteboardEngine& engine, auto) { engine.disown(contents); });
}

void X11Pasteboard::markSecret(qint64 changeCount) {
    m_secretChangeCount = changeCount;
}

/// A secret that was pasted into a terminal would stay on the primary selection until somebody marks a text.
void X11Pasteboard::dropOldSecret() {
    if (m_primaryChangeCount != m_secretChangeCount || m_primaryChangeCount == changeCount())
        return;
    const std::shared_ptr<const OfferedContents> contents = m_primaryContents.lock();
    m_primaryContents.reset();
    if (contents)
        m_thread->post([contents](PasteboardEngine& engine, auto) { engine.disown(contents); });
}

void X11Pasteboard::settle(qint64 changeCount, bool wasKept) {
    m_thread->post([changeCount, wasKept](PasteboardEngine& engine, auto) { engine.settle(changeCount, wasKept); });
}

qint64 X11Pasteboard::copyCount() const {
    return m_thread->engine().copyCount();
}

bool X11Pasteboard::own(PasteboardEngine::Claim claim) {
    m_ownContents.reset();
    m_thread->post([claim](PasteboardEngine& engine, auto) { engine.claim(claim); });
    const std::optional<std::optional<qint64>> count = claim.result.waitFor(m_limits.ownership);
    if (!count || !*count) {
        // What comes too late must not stay: the caller has been told that it is not there.
        if (!claim.isTakeover)
            qCWarning(logging::x11) << "The clipboard was not written: the X server did not confirm that it is ours.";
        claim.isWithdrawn->store(true);
        m_thread->post([contents = claim.contents](PasteboardEngine& engine, auto) { engine.disown(contents); });
        return false;
    }
    m_ownContents = claim.contents;
    m_ownChangeCount = **count;
    dropOldSecret();
    return true;
}

bool X11Pasteboard::offerAsPrimary() {
    if (!m_ownContents || m_ownChangeCount != changeCount())
        return false;
    PasteboardEngine::Claim claim;
    claim.contents = m_ownContents;
    claim.isPrimary = true;
    m_thread->post([claim](PasteboardEngine& engine, auto) { engine.claim(claim); });
    const std::optional<std::optional<qint64>> count = claim.result.waitFor(m_limits.ownership);
    if (count && *count) {
        m_primaryContents = m_ownContents;
        m_primaryChangeCount = m_ownChangeCount;
        return true;
    }
    claim.isWithdrawn->store(true);
    return false;
}

void X11Pasteboard::announceChange() {
    // Contents that another program has replaced are not kept.
    if (m_ownChangeCount != changeCount())
        m_ownContents.reset();
    dropOldSecret();
    if (onChanged)
        onChanged();
}

void X11Pasteboard::announceOwnerGone(qint64 held, qint64 since) {
    // Somebody took the pasteboard while the notice was on its way.
    if (since != changeCount())
        return;
    if (onOwnerGone)
        onOwnerGone(held);
}

} // namespace vellumry
