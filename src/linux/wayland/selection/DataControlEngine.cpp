// SPDX-License-Identifier: GPL-3.0-or-later
#include "linux/wayland/selection/DataControlEngine.h"

#include "linux/wayland/selection/ManagerHint.h"

#include <utility>

namespace vellumry {

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
