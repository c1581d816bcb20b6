// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "foundation/OneShot.h"
#include "linux/pasteboard/PasteboardLimits.h"
#include "linux/x11/selection/SelectionOffer.h"
#include "linux/x11/selection/SelectionReader.h"

#include <memory>
#include <optional>
#include <vector>

namespace vellumry {

/// What the present owner of the clipboard offers. It is asked as soon as it is the owner, so that the copies of a
/// burst are known before the next of them comes, and the answer is kept for the main thread. Pasteboard thread; time
/// is handed in.
class CurrentOffer {
public:
    using Instant = SelectionReader::Instant;
    using Result = OneShot<std::shared_ptr<const SelectionOffer>>;

    struct Ownership {
        qint64 changeCount = 0;
        xcb_timestamp_t since = XCB_CURRENT_TIME;
    };

    CurrentOffer(XcbConnection& connection, SelectionReader& reader, const PasteboardLimits& limits)
        : m_connection(connection)
        , m_reader(reader)
        , m_limits(limits) {}

    /// Another program owns `selection`, or has done so since before we looked: it is asked when its offer is
    /// read.
    void setOwner(xcb_atom_t selection, Ownership ownership);
    /// The same, and it is asked at once.
    void ask(xcb_atom_t selection, Ownership ownership, Instant now);
    /// There is no owner that could be asked; pending reads get nothing.
    void reset();
    /// Null when there is no owner or it does not say in time what it offers.
    void read(Result result, Instant now);

private:
    void askForTargets(xcb_timestamp_t time, Instant answerDeadline, Instant now);
    void answered(std::shared_ptr<const SelectionOffer> offer);

    XcbConnection& m_connection;
    SelectionReader& m_reader;
    const PasteboardLimits& m_limits;
    xcb_atom_t m_selection = XCB_ATOM_NONE;
    std::optional<Ownership> m_ownership;
    bool m_isAsking = false;
    std::shared_ptr<const SelectionOffer> m_offer;
    std::vector<Result> m_waiting;
};

} // namespace vellumry
