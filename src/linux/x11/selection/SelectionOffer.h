// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "linux/x11/selection/XcbConnection.h"

#include <QHash>
#include <QStringList>
#include <chrono>
#include <memory>

namespace vellumry {

/// What an owner offered at one change count. Immutable once made; shared between the threads.
struct SelectionOffer {
    struct Moment {
        qint64 changeCount = 0;
        xcb_timestamp_t time = XCB_CURRENT_TIME;        ///< with which the owner is asked
        std::chrono::steady_clock::time_point deadline; ///< for the whole copy
    };

    /// Reads the answer to TARGETS (ICCCM 2.6.2): each name once, those left out that are no name of a type. All names
    /// are looked at, so a refusal mark or the text counts wherever it stands; of the names that are not known the
    /// first `limit` are taken. Null when it is not a list of atoms, or so long that it is no program's list: what was
    /// not looked at might refuse the copy. Pasteboard thread.
    [[nodiscard]] static std::shared_ptr<const SelectionOffer> of(XcbConnection& connection, const XcbProperty& answer,
                                                                  int limit, Moment moment);

    Moment moment;
    QStringList targets; ///< in the owner's order, each once
    QHash<QString, xcb_atom_t> atoms;
};

} // namespace vellumry
