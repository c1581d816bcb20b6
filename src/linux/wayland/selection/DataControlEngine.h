// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "linux/pasteboard/PasteboardLimits.h"
#include "linux/pasteboard/PasteboardService.h"
#include "linux/wayland/selection/PasteReadings.h"
#include "linux/wayland/selection/PipeReader.h"
#include "linux/wayland/selection/PipeWriter.h"
#include "linux/wayland/selection/SelectionControl.h"

#include <atomic>
#include <optional>
#include <vector>

namespace vellumry {

/// The pasteboard's side of the conversation with a compositor: follows the clipboard, reads it, owns it. Pasteboard
/// thread, but for what says "any thread".
///
/// Data control tells of every selection, our own included, and never what set it: one that offers what our source
/// offers, while that has not been cancelled, is ours.
class DataControlEngine {
public:
    using Instant = std::chrono::steady_clock::time_point;

    /// What another program offered at one change count. A value.
    struct OfferedTypes {
        qint64 changeCount = 0;
        Instant deadline; ///< for the whole copy
        QStringList targets;
    };
    using OfferResult = OneShot<std::shared_ptr<const OfferedTypes>>;
    using BytesResult = OneShot<std::shared_ptr<const GivenBytes>>;

    DataControlEngine(std::unique_ptr<SelectionControl> control, PasteboardLimits limits, PasteboardNotices notices);

    [[nodiscard]] SelectionControl& control() { return *m_control; }
    /// Any thread.
    [[nodiscard]] qint64 changeCount() const { return m_changeCount.load(std::memory_order_acquire); }
    /// How many times another program has taken the clipboard. Any thread.
    [[nodiscard]] qint64 copyCount() const { return m_copyCount.load(std::memory_order_acquire); }
    /// True once content of what we hold on the clipboard was taken, by any program. Any thread.
    [[nodiscard]] bool wasServed() const { return m_wasServed.load(std::memory_order_acquire); }

    /// Learns what is on the clipboard already. Waits for the compositor; on any one thread, before the engine is used.
    void start();
    void claim(PasteboardClaim claim);
    void catchUp(OneShot<bool> result);
    void disown(const std::shared_ptr<const OfferedContents>& contents);
    void readOffer(const OfferResult& result, Instant now) const;
    /// See `ForeignOffer::read`.
    void read(const OfferedTypes& offer, const QString& target, const QString& uniformType, qint64 maxBytes,
              const BytesResult& result, Instant now);

    /// From now on what is on the clipboard is one item of several, each for one paste: `onPaste` is called, on the
    /// pasteboard thread, when a program has read it as a paste does (PasteReadings).
    void startCounting(std::function<void()> onPaste);
    void stopCounting();
    /// What the next paste is to get. Offered at once, or when the paste under way is over; in place, without a change
    /// of owner, where nothing was read of what is there and it has the same types.
    void expect(std::shared_ptr<const OfferedContents> contents, Instant now);

    void addDescriptors(std::vector<pollfd>& descriptors) const;
    void handle(const std::vector<pollfd>& descriptors, Instant now);
    void expire(Instant now);
    [[nodiscard]] std::optional<Instant> nextDeadline() const;
    /// Answers everything that is still open with nothing; from then on every question is answered so.
    void end();

private:
    /// One of the selections, as long as it is ours.
    struct Holding {
        std::unique_ptr<SelectionControl::Source> source;
        QStringList types;
        std::shared_ptr<const OfferedContents> contents;
    };

    void handleSelection(std::unique_ptr<SelectionControl::Offer> offer);
    void noteChange(bool isForeign);
    void settleClaim(const PasteboardClaim& claim);
    void finishClaim(std::optional<qint64> count);
    /// Answers the source that stood there before. It must outlive the change: a selection whose source goes is empty
    /// for a moment, and told of as such.
    [[nodiscard]] std::unique_ptr<SelectionControl::Source> hold(Holding& holding,
                                                                 std::shared_ptr<const OfferedContents> contents);
    void serve(const Holding& holding, const QString& mimeType, Descriptor pipe);
    [[nodiscard]] QStringList offeredTypes(const OfferedContents& contents) const;
    [[nodiscard]] bool canSwap(const OfferedContents& contents) const;
    void offerExpected(Instant now);
    void takeClipboard(std::shared_ptr<const OfferedContents> contents);

    const std::unique_ptr<SelectionControl> m_control;
    const PasteboardLimits m_limits;
    const PasteboardNotices m_notices;
    PipeReader m_reader;
    PipeWriter m_writer;
    std::atomic<qint64> m_changeCount{1};
    std::atomic<qint64> m_copyCount{0};
    std::atomic<bool> m_wasServed{false};
    bool m_hasStarted = false;
    bool m_ended = false;

    std::unique_ptr<SelectionControl::Offer> m_offer; ///< another program's
    QStringList m_targets;                            ///< of `m_offer`, those that are looked at
    Holding m_clipboard;
    Holding m_primary;
    bool m_wasAnnounced = false; ///< the compositor has told of `m_clipboard`
    /// The change count since which the clipboard has no owner, when its last owner was another program.
    std::optional<qint64> m_goneSince;
    std::optional<PasteboardClaim> m_unconfirmed;
    PasteReadings m_readings;                          ///< of what we hold on the clipboard
    std::shared_ptr<const OfferedContents> m_expected; ///< not yet offered
    quint64 m_claimNumber = 0;
    std::vector<OneShot<bool>> m_catchUps; ///< answered in their order
};

} // namespace vellumry
