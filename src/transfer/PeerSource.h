// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/files/PeerHistories.h"
#include "transfer/ImportSource.h"

namespace vellumry {

/// The history of another program, with a time for each entry. Few programs remember any: the newest entry is as old as
/// the file, and each that has no time of its own a second older than the one before it, so that the order stays.
class PeerSource : public ImportSource {
public:
    /// No entry is younger than `now`.
    PeerSource(std::unique_ptr<PeerReading> reading, Date now);

    [[nodiscard]] std::optional<ImportEntry> next() override;
    [[nodiscard]] bool isDamaged() const override { return m_reading->isDamaged(); }

private:
    std::unique_ptr<PeerReading> m_reading;
    Date m_latest; ///< the next entry is not younger
};

} // namespace vellumry
