// SPDX-License-Identifier: GPL-3.0-or-later
#include "capture/ClipboardWatcher.h"

#include <QPointer>
#include <algorithm>

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
    , m_source(std::move(source)) {
    m_monotonic.start();
    connect(&m_timer, &QTimer::timeout, this, [this] {
        m_schedule.ticked();
        tick(currentDate());
    });
}

ClipboardWatcher::~ClipboardWatcher() = default;

void ClipboardWatcher::start() {
    if (m_isStarted)
        return;
    m_isStarted = true;
    if (!m_pasteboard->notifiesChanges()) {
        m_timer.start(pollInterval);
        return;
    }
    m_timer.setSingleShot(true);
    m_timer.setTimerType(Qt::PreciseTimer);
    m_pasteboard->onChanged = [self = QPointer(this)] {
        if (self)
            self->scheduleTick();
    };
    // A change between construction and now was told to nobody.
    if (m_pasteboard->changeCount() != lastChangeCount)
        scheduleTick();
}

void ClipboardWatcher::scheduleTick() {
    const qint64 now = m_monotonic.elapsed();
    m_timer.start(std::chrono::milliseconds(m_schedule.notified(now) - now));
}

void ClipboardWatcher::tick(Date now) {
    const qint64 changeCount = m_pasteboard->changeCount();
    if (changeCount == lastChangeCount)
        return;
    // Ahead of every rule: what a rule refuses is not caught up with later.
    lastChangeCount = changeCount;

    if (isHeldBack(now))
        return;

    auto copy = std::make_shared<Copy>(Copy{changeCount, now, false, std::nullopt});
    m_copies.push_back(copy);
    SnapshotRequest request = requestFor(*copy);
    read(std::move(copy), std::move(request));
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
    request.ignoredApps = QSet<QString>(ignored.begin(), ignored.end());
    request.now = copy.now;
    return request;
}

QCoro::Task<void> ClipboardWatcher::read(std::shared_ptr<Copy> copy, SnapshotRequest request) {
    const QPointer self(this);
    auto reading = readDraft(m_pasteboard, m_builder, std::move(request));
    std::optional<ClipDraft> draft = co_await reading;
    copy->draft = std::move(draft);
    copy->isRead = true;
    if (self)
        self->deliverRead();
}

/// A picture is opened elsewhere while a later text is read already: the history still gets them in the order of the
/// copies.
void ClipboardWatcher::deliverRead() {
    const QPointer self(this);
    while (self && !m_copies.empty() && m_copies.front()->isRead) {
        std::shared_ptr<Copy> copy = std::move(m_copies.front());
        m_copies.pop_front();
        if (copy->draft)
            deliver(std::move(copy));
    }
    if (self && m_copies.empty() && onSettled)
        onSettled();
}

void ClipboardWatcher::deliver(std::shared_ptr<Copy> copy) {
    if (copy->draft->kind == ClipKind::image && !hasRoomForImages()) {
        if (onLowDisk)
            onLowDisk();
        return;
    }
    if (onRead)
        onRead(*copy->draft);
    refreshSensitiveLifetime();
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
    auto adding = m_store->add(std::move(*copy->draft), copy->now);
    const ClipRef clip = co_await adding;
    if (!clip)
        co_return;
    if (stored)
        stored(clip, copy->changeCount);
    if (captured)
        captured(clip);
}

void ClipboardWatcher::pause(std::optional<double> seconds, Date now) {
    pausedUntil = seconds ? now + *seconds : distantFuture;
}

} // namespace vellumry
