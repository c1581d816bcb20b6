// SPDX-License-Identifier: GPL-3.0-or-later
#include "capture/ClipboardWatcher.h"

#include "foundation/Logging.h"

#include <QPointer>
#include <algorithm>
#include <exception>

namespace vellumry {

namespace {

constexpr std::chrono::milliseconds pollInterval{250};
/// One copy of the user may reach the pasteboard as several writes.
constexpr double ignoredSeconds = 1.0;
constexpr qint64 shortestSensitiveSeconds = 10;

} // namespace

ClipboardWatcher::ClipboardWatcher(Pasteboard& pasteboard, ClipStore& store, UserDefaults& defaults,
                                   const FileBookmarks& bookmarks, ImageCodec& images, Source source, QObject* parent)
    : QObject(parent)
    , lastChangeCount(pasteboard.changeCount())
    , m_pasteboard(&pasteboard)
    , m_store(&store)
    , m_defaults(&defaults)
    , m_builder(bookmarks, images)
    , m_source(std::move(source))
    , m_copyCount(pasteboard.copyCount()) {
    m_monotonic.start();
    m_hold.setSingleShot(true);
    m_hold.setTimerType(Qt::PreciseTimer);
    connect(&m_hold, &QTimer::timeout, this, &ClipboardWatcher::deliverRead);
    connect(&m_poll, &QTimer::timeout, this, [this] { tick(clock()); });
}

ClipboardWatcher::~ClipboardWatcher() = default;

void ClipboardWatcher::start() {
    if (m_isStarted)
        return;
    m_isStarted = true;
    if (!m_pasteboard->notifiesChanges()) {
        m_poll.start(pollInterval);
        return;
    }
    m_pasteboard->onChanged = [self = QPointer(this)] {
        if (self)
            self->look(self->clock());
    };
    // A change between construction and now was not notified.
    look(clock());
}

void ClipboardWatcher::tick(Date now) {
    const QPointer self(this);
    look(now);
    if (!self)
        return;
    for (const std::shared_ptr<Copy>& copy : m_copies)
        copy->isUrgent = true;
    deliverRead();
}

void ClipboardWatcher::look(Date now) {
    const qint64 changeCount = m_pasteboard->changeCount();
    if (changeCount == lastChangeCount)
        return;
    // Ahead of every rule: what a rule refuses is not caught up with later.
    lastChangeCount = changeCount;
    countOvertaken();

    if (isHeldBack(now)) {
        m_pasteboard->settle(changeCount, false);
        return;
    }

    auto copy = std::make_shared<Copy>();
    copy->changeCount = changeCount;
    copy->now = now;
    copy->noticedAt = m_monotonic.elapsed();
    copy->copyCount = m_copyCount;
    m_copies.push_back(copy);
    SnapshotRequest request = requestFor(*copy);
    read(std::move(copy), std::move(request));
}

/// Several changes since the last look are one change to us.
void ClipboardWatcher::countOvertaken() {
    const qint64 copyCount = m_pasteboard->copyCount();
    m_overtakenCopies += std::max<qint64>(0, copyCount - m_copyCount - 1);
    m_copyCount = copyCount;
}

bool ClipboardWatcher::isHeldBack(Date now) {
    if (pausedUntil) {
        if (*pausedUntil > now)
            return true;
        pausedUntil.reset();
    }
    if (ignoringUntil) {
        if (now < *ignoringUntil)
            return true;
        ignoringUntil.reset();
    }
    if (!ignoreNextCopy)
        return false;
    ignoreNextCopy = false;
    ignoringUntil = now + ignoredSeconds;
    if (onIgnoredCopy)
        onIgnoredCopy();
    return true;
}

SnapshotRequest ClipboardWatcher::requestFor(const Copy& copy) const {
    const QStringList ignored = m_defaults->stringArray(QStringLiteral("ignoredApps")).value_or(QStringList());
    SnapshotRequest request;
    request.changeCount = copy.changeCount;
    request.source = m_source ? m_source() : SourceApp();
    request.owner = pasteboardOwner ? pasteboardOwner() : SourceApp();
    request.ignoredApps = QSet<QString>(ignored.begin(), ignored.end());
    request.now = copy.now;
    return request;
}

QCoro::Task<void> ClipboardWatcher::read(std::shared_ptr<Copy> copy, SnapshotRequest request) {
    const QPointer self(this);
    try {
        auto reading = readDraft(m_pasteboard, m_builder, std::move(request));
        std::optional<ClipDraft> draft = co_await reading;
        copy->draft = std::move(draft);
    } catch (const std::exception&) {
        // A copy that cannot be held in memory, say: it is lost, those behind it are not.
        copy->draft.reset();
        qCWarning(logging::capture) << "A copy is lost: reading it failed.";
    }
    if (!self)
        co_return;
    copy->isRead = true;
    if (!copy->draft && m_pasteboard->copyCount() > copy->copyCount)
        ++m_overtakenCopies;
    deliverRead();
}

/// A picture is opened elsewhere while a later text is read already: the history still gets them in the order of the
/// copies.
void ClipboardWatcher::deliverRead() {
    const QPointer self(this);
    bool hasDelivered = false;
    while (self && !m_copies.empty() && m_copies.front()->isRead && !isHeld()) {
        const bool isOld = isWrittenAgain();
        std::shared_ptr<Copy> copy = std::move(m_copies.front());
        m_copies.pop_front();
        hasDelivered = true;
        const bool isKept = copy->draft.has_value() && !isOld;
        const qint64 changeCount = copy->changeCount;
        if (isKept)
            deliver(std::move(copy));
        else if (self)
            m_pasteboard->settle(changeCount, false);
    }
    if (self && hasDelivered && m_copies.empty() && onSettled)
        onSettled();
}

/// True while the program of the first copy may write it once more and that matters; the timer then looks again.
bool ClipboardWatcher::isHeld() {
    const Copy& copy = *m_copies.front();
    if (!needsWholeCopies() || !m_isStarted || !m_pasteboard->notifiesChanges() || copy.isUrgent || !copy.draft)
        return false;
    RewriteWindow window(copy.noticedAt);
    if (m_copies.size() > 1)
        window.noteNext(m_copies[1]->noticedAt, m_copies[1]->isRead);
    const qint64 left = window.end() - m_monotonic.elapsed();
    if (left <= 0)
        return false;
    m_hold.start(std::chrono::milliseconds(left));
    return true;
}

/// True when the copy behind the first, which was held back, is the same once more: it then stands for both.
bool ClipboardWatcher::isWrittenAgain() const {
    if (m_copies.size() < 2 || !m_copies[0]->draft || !m_copies[1]->draft)
        return false;
    const Copy& first = *m_copies[0];
    const Copy& second = *m_copies[1];
    if (!RewriteWindow(first.noticedAt).covers(second.noticedAt))
        return false;
    const auto text = plainText(first.draft->payload.items);
    return text && text == plainText(second.draft->payload.items);
}

/// Finds out whether the history has this copy already, from a moment ago and perhaps with fewer formats.
void ClipboardWatcher::recognise(Copy& copy) {
    const auto before = std::exchange(m_delivered, std::nullopt);
    const auto text = plainText(copy.draft->payload.items);
    if (!text || !m_isStarted || !m_pasteboard->notifiesChanges()) {
        copy.identity = std::make_shared<CopyIdentity>();
        return;
    }
    // A hash, so that no text is kept for it.
    const std::size_t hash = qHash(*text, static_cast<std::size_t>(text->size()));
    copy.isRewrite = before && before->text == hash && RewriteWindow(before->noticedAt).covers(copy.noticedAt);
    copy.identity = copy.isRewrite ? before->identity : std::make_shared<CopyIdentity>();
    // Each write may have said it.
    if (copy.isRewrite && before->isSensitive)
        copy.draft->isSensitive = true;
    m_delivered = Delivered{copy.noticedAt, hash, copy.draft->isSensitive, copy.identity};
}

void ClipboardWatcher::deliver(std::shared_ptr<Copy> copy) {
    if (copy->draft->kind == ClipKind::image && !hasRoomForImages()) {
        m_pasteboard->settle(copy->changeCount, false);
        qCWarning(logging::capture) << "A picture is not kept: the disk is almost full.";
        if (onLowDisk)
            onLowDisk();
        return;
    }
    recognise(*copy);
    const QPointer self(this);
    if (onRead && !copy->isRewrite)
        onRead(*copy->draft);
    if (!self)
        return;
    refreshSensitiveLifetime();
    m_pasteboard->settle(copy->changeCount, true);
    qCInfo(logging::capture) << "A copy is taken: kind" << int(copy->draft->kind) << "bytes"
                             << copy->draft->payload.byteCount() << "sensitive" << copy->draft->isSensitive;
    add(std::move(copy));
}

void ClipboardWatcher::refreshSensitiveLifetime() {
    const qint64 seconds = std::max(shortestSensitiveSeconds, m_defaults->integer(QStringLiteral("sensitiveSeconds")));
    const auto lifetime = static_cast<double>(seconds);
    if (lifetime != m_store->sensitiveLifetime())
        m_store->setSensitiveLifetime(lifetime);
}

QCoro::Task<void> ClipboardWatcher::add(std::shared_ptr<Copy> copy) {
    // The closures as they are now: the watcher may have gone when the clip is durable.
    const auto captured = onCapture;
    const auto stored = onStored;
    auto adding = m_store->add(std::move(*copy->draft), copy->now, copy->identity);
    const ClipRef clip = co_await adding;
    if (!clip)
        co_return;
    if (stored)
        stored(clip, copy->changeCount);
    const bool hasPicture = clip->kind == ClipKind::image || clip->kind == ClipKind::file;
    if (captured && (!copy->isRewrite || hasPicture))
        captured(clip);
}

void ClipboardWatcher::pause(std::optional<double> seconds, Date now) {
    pausedUntil = seconds ? now + *seconds : distantFuture;
}

} // namespace vellumry
