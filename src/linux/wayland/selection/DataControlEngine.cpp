// SPDX-License-Identifier: GPL-3.0-or-later
#include "linux/wayland/selection/DataControlEngine.h"

#include "foundation/Logging.h"
#include "foundation/UniformType.h"
#include "linux/pasteboard/TargetCoding.h"
#include "linux/wayland/selection/ManagerHint.h"

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

DataControlEngine::DataControlEngine(std::unique_ptr<SelectionControl> control, PasteboardLimits limits,
                                     PasteboardNotices notices)
    : m_control(std::move(control))
    , m_limits(limits)
    , m_notices(std::move(notices))
    , m_writer(limits.stalledRequestor) {
    m_control->onSelection = [this](std::unique_ptr<SelectionControl::Offer> offer) {
        handleSelection(std::move(offer));
    };
}

void DataControlEngine::start() {
    (void)m_control->roundTrip();
    m_hasStarted = true;
}

void DataControlEngine::end() {
    m_ended = true;
    finishClaim(std::nullopt);
    for (const OneShot<bool>& waiting : std::exchange(m_catchUps, {}))
        waiting.deliver(false);
    m_offer.reset();
    m_reader.endAll();
}

// Owning

void DataControlEngine::claim(PasteboardClaim claim) {
    const bool isPossible = !m_ended && m_control->hasDevice() && !claim.isWithdrawn->load() &&
                            (!claim.isPrimary || m_control->hasPrimary());
    // Another program's copy that we have not heard of yet is lost to a takeover: the protocol has no "only if".
    if (!isPossible || (claim.isTakeover && m_goneSince != changeCount())) {
        claim.result.deliver(std::nullopt);
        return;
    }
    settleClaim(claim);
}

void DataControlEngine::settleClaim(const PasteboardClaim& claim) {
    if (claim.isPrimary) {
        const auto before = hold(m_primary, claim.contents);
        m_control->setPrimarySelection(m_primary.source.get());
        m_control->sync([this, claim] {
            claim.result.deliver(m_primary.contents == claim.contents ? std::optional(changeCount()) : std::nullopt);
        });
        return;
    }
    if (m_readings.isCounting() && canSwap(*claim.contents)) {
        m_clipboard.contents = claim.contents;
        claim.result.deliver(changeCount());
        return;
    }
    finishClaim(std::nullopt);
    takeClipboard(claim.contents);
    m_unconfirmed = claim;
    m_control->sync([this, number = ++m_claimNumber] {
        if (number != m_claimNumber || !m_unconfirmed)
            return;
        const bool isOurs = m_clipboard.contents == m_unconfirmed->contents;
        // A compositor that keeps quiet about our own selections.
        if (isOurs && !std::exchange(m_wasAnnounced, true)) {
            m_offer.reset();
            noteChange(false);
        }
        finishClaim(isOurs ? std::optional(changeCount()) : std::nullopt);
    });
}

void DataControlEngine::takeClipboard(std::shared_ptr<const OfferedContents> contents) {
    const auto before = hold(m_clipboard, std::move(contents));
    m_wasServed.store(false, std::memory_order_release);
    m_wasAnnounced = false;
    m_readings.noteOffer(std::chrono::steady_clock::now());
    m_control->setSelection(m_clipboard.source.get());
}

QStringList DataControlEngine::offeredTypes(const OfferedContents& contents) const {
    QStringList types = contents.targets();
    if (m_readings.isCounting() && !types.contains(managerHint))
        types.append(managerHint);
    return types;
}

/// Only as long as the compositor has not given the clipboard to another client.
bool DataControlEngine::canSwap(const OfferedContents& contents) const {
    return m_clipboard.source && m_clipboard.types == offeredTypes(contents);
}

void DataControlEngine::finishClaim(std::optional<qint64> count) {
    if (m_unconfirmed)
        m_unconfirmed->result.deliver(count);
    m_unconfirmed.reset();
}

std::unique_ptr<SelectionControl::Source> DataControlEngine::hold(Holding& holding,
                                                                  std::shared_ptr<const OfferedContents> contents) {
    auto before = std::move(holding.source);
    if (before) {
        before->onSend = nullptr;
        before->onCancelled = nullptr;
    }
    holding.types = offeredTypes(*contents);
    holding.contents = std::move(contents);
    holding.source = m_control->makeSource(holding.types);
    holding.source->onSend = [this, &holding](const QString& type, Descriptor pipe) {
        serve(holding, type, std::move(pipe));
    };
    holding.source->onCancelled = [&holding] { holding = Holding(); };
    return before;
}

void DataControlEngine::serve(const Holding& holding, const QString& mimeType, Descriptor pipe) {
    const Instant now = std::chrono::steady_clock::now();
    std::optional<QByteArray> bytes = holding.contents ? holding.contents->data(mimeType) : std::nullopt;
    if (!bytes && mimeType == managerHint)
        bytes = QByteArrayLiteral("secret");
    if (!bytes)
        return;
    if (&holding == &m_clipboard || holding.contents == m_clipboard.contents)
        m_wasServed.store(true, std::memory_order_release);
    m_writer.write(std::move(pipe), *bytes, now);
    if (&holding == &m_clipboard && !holding.source->isForKeeper)
        m_readings.noteReading(mimeType, now);
}

// Counting

void DataControlEngine::startCounting(std::function<void()> onPaste) {
    m_readings.start(std::move(onPaste));
}

void DataControlEngine::stopCounting() {
    m_readings.stop();
    m_expected.reset();
}

void DataControlEngine::expect(std::shared_ptr<const OfferedContents> contents, Instant now) {
    m_expected = m_readings.isCounting() ? std::move(contents) : nullptr;
    offerExpected(now);
}

void DataControlEngine::offerExpected(Instant now) {
    if (m_ended || !m_expected || now < m_readings.pasteEnd() || !m_control->hasDevice())
        return;
    auto contents = std::exchange(m_expected, nullptr);
    // Many programs (Qt, GTK 3, Chromium) keep what they have read of an offer, and would paste it once more.
    if (!wasServed() && canSwap(*contents))
        m_clipboard.contents = std::move(contents);
    else
        takeClipboard(std::move(contents));
}

void DataControlEngine::disown(const std::shared_ptr<const OfferedContents>& contents) {
    if (m_ended || !contents)
        return;
    if (m_clipboard.contents == contents) {
        m_control->setSelection(nullptr);
        m_clipboard = Holding();
    }
    if (m_primary.contents == contents) {
        m_control->setPrimarySelection(nullptr);
        m_primary = Holding();
    }
}

void DataControlEngine::catchUp(OneShot<bool> result) {
    if (m_ended) {
        result.deliver(false);
        return;
    }
    m_catchUps.push_back(std::move(result));
    m_control->sync([this] {
        const OneShot<bool> waiting = m_catchUps.front();
        m_catchUps.erase(m_catchUps.begin());
        waiting.deliver(true);
    });
}

// Following

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
    m_reader.endAll();
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

// Reading

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

// Pipes

void DataControlEngine::addDescriptors(std::vector<pollfd>& descriptors) const {
    m_reader.addDescriptors(descriptors);
    m_writer.addDescriptors(descriptors);
}

void DataControlEngine::handle(const std::vector<pollfd>& descriptors, Instant now) {
    m_reader.handle(descriptors, now);
    m_writer.handle(descriptors, now);
}

void DataControlEngine::expire(Instant now) {
    m_reader.expire(now);
    m_writer.expire(now);
    offerExpected(now);
}

std::optional<DataControlEngine::Instant> DataControlEngine::nextDeadline() const {
    std::optional<Instant> next;
    const std::optional<Instant> offering =
        m_expected && !m_ended && m_control->hasDevice() ? std::optional(m_readings.pasteEnd()) : std::nullopt;
    for (const std::optional<Instant>& deadline : {m_reader.nextDeadline(), m_writer.nextDeadline(), offering}) {
        if (deadline && (!next || *deadline < *next))
            next = deadline;
    }
    return next;
}

} // namespace vellumry
