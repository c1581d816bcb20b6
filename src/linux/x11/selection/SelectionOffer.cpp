// SPDX-License-Identifier: GPL-3.0-or-later
#include "linux/x11/selection/SelectionOffer.h"

#include "foundation/Logging.h"
#include "foundation/UniformType.h"

#include <QSet>
#include <cstring>
#include <vector>

namespace vellumry {

namespace {

/// Their names are asked for in one exchange with the server. The longest lists that were seen have some fifty.
constexpr qsizetype mostAtoms = 32 * 1024;

/// The atoms of the answer, each once; empty when there are too many.
std::vector<xcb_atom_t> atomsOf(const QByteArray& bytes) {
    std::vector<xcb_atom_t> atoms;
    QSet<xcb_atom_t> seen;
    for (qsizetype at = 0; at + 4 <= bytes.size(); at += 4) {
        xcb_atom_t atom = XCB_ATOM_NONE;
        std::memcpy(&atom, bytes.constData() + at, sizeof atom);
        if (atom == XCB_ATOM_NONE || seen.contains(atom))
            continue;
        if (seen.size() == mostAtoms)
            return {};
        seen.insert(atom);
        atoms.push_back(atom);
    }
    return atoms;
}

} // namespace

std::shared_ptr<const SelectionOffer> SelectionOffer::of(XcbConnection& connection, const XcbProperty& answer,
                                                         int limit, Moment moment) {
    if (answer.format != 32)
        return nullptr;
    const std::vector<xcb_atom_t> atoms = atomsOf(answer.bytes);
    if (atoms.empty() && !answer.bytes.isEmpty()) {
        qCWarning(logging::x11) << "A copy is not kept: its program offers more than" << mostAtoms << "types.";
        return nullptr;
    }
    const QStringList names = connection.atomNames(atoms);
    const auto offer = std::make_shared<SelectionOffer>();
    offer->moment = moment;
    int unknown = 0;
    for (qsizetype i = 0; i < names.size(); ++i) {
        if (names[i].isEmpty() || offer->atoms.contains(names[i]))
            continue;
        if (!uniformtype::isKnownTarget(names[i]) && ++unknown > limit)
            continue;
        offer->targets.append(names[i]);
        offer->atoms.insert(names[i], atoms[static_cast<std::size_t>(i)]);
    }
    return offer;
}

} // namespace vellumry
