// SPDX-License-Identifier: GPL-3.0-or-later

// What other programs copy: that there is something new, and reading it.

#include "linux/wayland/selection/DataControlEngine.h"

#include "foundation/Logging.h"
#include "foundation/UniformType.h"
#include "linux/pasteboard/TargetCoding.h"

#include <QSet>
#include <utility>

namespace vellumry {

namespace {

/// Plasma's keeper offers again what went with its owner, and says so by this.
const QString replacesEmpty = QStringLiteral("application/x-kde-onlyReplaceEmpty");

/// Each name once; those of types that are not known up to `limit`. What they are called for X11 programs alone means
/// nothing more here and stays out where the offer has the MIME types too.
QStringList targetsOf(const QStringList& mimeTypes, int limit) {
    QStringList targets;
    QSet<QString> seen;
    int unknown = 0;
    for (const QString& type : mimeTypes) {
        if (seen.contains(type) || (!uniformtype::isKnownTarget(type) && ++unknown > limit))
            continue;
        seen.insert(type);
        targets.append(type);
    }
    return targets;
}

} // namespace

void DataControlEngine::handleSelection(std::unique_ptr<SelectionControl::Offer> offer) {
    // A source is cancelled before what took its place is told of.
    if (offer && m_clipboard.source && offer->mimeTypes() == m_clipboard.types) {
        m_offer.reset();
        m_targets.clear();
        // Clipboard managers are notified now.
        m_readings.noteOffer(std::chrono::steady_clock::now());
        if (!std::exchange(m_wasAnnounced, true))
            noteChange(false);
        return;
    }
    const bool wasForeign = m_offer != nullptr;
    m_offer = std::move(offer);
    m_targets.clear();
    // What the owner before was asked for may be on its way, or in the pipe: a program may copy and quit, and on a busy
    // machine the next copy comes before the last one was taken in.
    m_reader.endAllAt(std::chrono::steady_clock::now() + m_limits.farewell);
    if (m_offer && m_offer->isTooLong()) {
        qCWarning(logging::wayland) << "A copy is not kept: its program offers too many types.";
        m_offer.reset();
        noteChange(true);
        return;
    }
    if (m_offer) {
        m_targets = targetsOf(m_offer->mimeTypes(), m_limits.targetCount);
        // The echo of a copy that was seen.
        if (!m_targets.contains(replacesEmpty))
            noteChange(true);
        return;
    }
    // Else it is what stood there before our own comes.
    if (m_wasAnnounced)
        m_clipboard = Holding();
    const qint64 held = changeCount();
    noteChange(false);
    if (wasForeign && m_hasStarted) {
        m_goneSince = held + 1;
        m_notices.ownerGone(held, held + 1);
    }
}

void DataControlEngine::noteChange(bool isForeign) {
    if (!m_hasStarted)
        return;
    m_goneSince.reset();
    m_changeCount.fetch_add(1, std::memory_order_acq_rel);
    if (isForeign)
        m_copyCount.fetch_add(1, std::memory_order_acq_rel);
    m_notices.changed();
}

void DataControlEngine::readOffer(const OfferResult& result, Instant now) const {
    if (m_ended || !m_offer) {
        result.deliver(nullptr);
        return;
    }
    result.deliver(std::make_shared<OfferedTypes>(OfferedTypes{changeCount(), now + m_limits.copy, m_targets}));
}

void DataControlEngine::read(const OfferedTypes& offer, const QString& target, const QString& uniformType,
                             qint64 maxBytes, const BytesResult& result, Instant now) {
    if (m_ended || !m_offer || offer.changeCount != changeCount() || offer.deadline <= now ||
        !m_targets.contains(target)) {
        result.deliver(nullptr);
        return;
    }
    PipeReader::Request request;
    request.pipe = m_offer->receive(target);
    if (!request.pipe.isOpen()) {
        result.deliver(nullptr);
        return;
    }
    request.maxBytes = maxBytes;
    request.silence = targetcoding::isMadeOnDemand(target) ? m_limits.rendering : m_limits.silence;
    request.deadline = offer.deadline;
    request.done = [result, target, uniformType](std::optional<PipeReader::Outcome> outcome) {
        std::shared_ptr<GivenBytes> given;
        if (outcome) {
            std::optional<QByteArray> bytes = std::move(outcome->bytes);
            if (!uniformType.isEmpty() && !outcome->wasLarger)
                bytes = targetcoding::decode(uniformType, target, QString(), *bytes);
            if (bytes)
                given = std::make_shared<GivenBytes>(GivenBytes{std::move(*bytes), outcome->wasLarger});
        }
        result.deliver(given);
    };
    m_reader.read(std::move(request), now);
}

} // namespace vellumry
