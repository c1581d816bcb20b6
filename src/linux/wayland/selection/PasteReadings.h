// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <chrono>
#include <functional>

namespace vellumry {

/// Tells pastes by the readings of our own offers, since compositors do not show the keys of other programs. Not
/// counted: readings right after a new offer, where clipboard managers were seen to read; further readings of the same
/// paste; and readings of marks. One thread.
class PasteReadings {
public:
    using Instant = std::chrono::steady_clock::time_point;

    /// `onPaste` is called for each paste, in `noteReading`.
    void start(std::function<void()> onPaste);
    void stop() { m_onPaste = nullptr; }
    [[nodiscard]] bool isCounting() const { return m_onPaste != nullptr; }

    /// The compositor has a new offer of ours, or has told other programs of it.
    void noteOffer(Instant now) { m_offeredAt = now; }
    /// Does nothing while not counting.
    void noteReading(const QString& mimeType, Instant now);
    /// Until then a reading belongs to the last paste.
    [[nodiscard]] Instant pasteEnd() const { return m_pasteEnd; }

private:
    std::function<void()> m_onPaste;
    bool m_hasPasted = false; ///< a paste was counted
    bool m_isWatched = false; ///< a clipboard manager read the first item at once
    Instant m_offeredAt;
    Instant m_pasteEnd;
};

} // namespace vellumry
