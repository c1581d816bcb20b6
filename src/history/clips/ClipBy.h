// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "history/clips/Clip.h"

#include <QHashFunctions>
#include <QSet>
#include <type_traits>

namespace vellumry {

/// A clip as the element of a set that tells clips apart by one of their members only, so that the set holds a pointer
/// and not the member once more: 14 bytes a clip. The clip must outlive it.
template <auto Member>
struct ClipBy {
    const Clip* clip;

    friend bool operator==(ClipBy one, ClipBy other) { return one.clip->*Member == other.clip->*Member; }
    friend std::size_t qHash(ClipBy entry, std::size_t seed) {
        // All bits, where the member's own hash may fold its parts: identities that are not random must spread too.
        const auto& member = entry.clip->*Member;
        static_assert(std::has_unique_object_representations_v<std::remove_cvref_t<decltype(member)>>);
        return qHashBits(&member, sizeof member, seed);
    }
};

template <auto Member>
using ClipsBy = QSet<ClipBy<Member>>;

/// The clip of the set with the member that `sample` has; null when there is none.
template <auto Member>
[[nodiscard]] const Clip* findIn(const ClipsBy<Member>& clips, const Clip& sample) {
    const auto found = clips.constFind({&sample});
    return found == clips.constEnd() ? nullptr : found->clip;
}

/// Takes out this very clip; another one with the same member stays.
template <auto Member>
void eraseFrom(ClipsBy<Member>& clips, const Clip& clip) {
    const auto found = clips.constFind({&clip});
    if (found != clips.constEnd() && found->clip == &clip)
        clips.erase(found);
}

} // namespace vellumry
