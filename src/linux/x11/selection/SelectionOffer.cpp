// SPDX-License-Identifier: GPL-3.0-or-later
#include "linux/x11/selection/SelectionOffer.h"

#include <QSet>
#include <cstring>
#include <vector>

namespace vellumry {

std::shared_ptr<const SelectionOffer> SelectionOffer::of(XcbConnection& connection, const XcbProperty& answer,
                                                         int limit, Moment moment) {
    if (answer.format != 32)
        return nullptr;
    std::vector<xcb_atom_t> atoms;
    QSet<xcb_atom_t> seen;
    for (qsizetype at = 0; at + 4 <= answer.bytes.size() && seen.size() < limit; at += 4) {
        xcb_atom_t atom = XCB_ATOM_NONE;
        std::memcpy(&atom, answer.bytes.constData() + at, sizeof atom);
        if (atom == XCB_ATOM_NONE || seen.contains(atom))
            continue;
        seen.insert(atom);
        atoms.push_back(atom);
    }
    const QStringList names = connection.atomNames(atoms);
    const auto offer = std::make_shared<SelectionOffer>();
    offer->moment = moment;
    for (qsizetype i = 0; i < names.size(); ++i) {
        if (names[i].isEmpty() || offer->atoms.contains(names[i]))
            continue;
        offer->targets.append(names[i]);
        offer->atoms.insert(names[i], atoms[static_cast<std::size_t>(i)]);
    }
    return offer;
}

} // namespace vellumry
