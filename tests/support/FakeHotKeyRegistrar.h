// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/display/HotKeyRegistrar.h"

#include <QtGlobal>
#include <algorithm>
#include <map>
#include <set>
#include <utility>
#include <vector>

namespace vellumry {

/// Global keys without a keyboard: `press` stands for the user, `taken` for other programs.
class FakeHotKeyRegistrar : public HotKeyRegistrar {
public:
    using Combination = std::pair<KeyCode, Modifiers>;

    std::set<Combination> taken;               ///< `grab` refuses these
    std::map<quint32, Combination> grabbed;    ///< by id, what is held now
    bool anyKeys = true;                       ///< false: no program can hold keys
    std::vector<quint32> askedIDs;             ///< of each `grab`, refused ones included
    std::map<quint32, HotKeyPurpose> purposes; ///< by id, as they were announced

    [[nodiscard]] bool hasKeys() const override { return anyKeys; }
    [[nodiscard]] bool grab(quint32 id, KeyCode keyCode, Modifiers modifiers) override {
        askedIDs.push_back(id);
        const Combination combination{keyCode, modifiers};
        if (!anyKeys || taken.contains(combination) || holds(combination))
            return false;
        grabbed.emplace(id, combination);
        return true;
    }
    void announce(quint32 id, const HotKeyPurpose& purpose) override { purposes[id] = purpose; }
    void release(quint32 id) override { grabbed.erase(id); }

    [[nodiscard]] bool holds(const Combination& combination) const {
        return std::ranges::any_of(grabbed, [&](const auto& entry) { return entry.second == combination; });
    }
    /// True when somebody held the combination and was told.
    bool press(const Combination& combination) {
        for (const auto& [id, held] : grabbed) {
            if (held == combination) {
                onPressed(id);
                return true;
            }
        }
        return false;
    }
};

} // namespace vellumry
