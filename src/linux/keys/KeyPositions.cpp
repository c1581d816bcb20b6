// SPDX-License-Identifier: GPL-3.0-or-later
#include "linux/keys/KeyPositions.h"

#include <algorithm>
#include <set>
#include <utility>
#include <vector>

namespace vellumry {

namespace {

/// The key that types `letter`, its place on a US keyboard first.
std::optional<quint32> keyTyping(char16_t letter, KeyCode ownKey,
                                 const std::function<std::optional<char16_t>(quint32)>& typed) {
    const auto own = keycodes::evdevCode(ownKey);
    if (own.has_value() && typed(*own) == letter)
        return own;
    for (const KeyCode key : keycodes::all()) {
        const auto code = keycodes::evdevCode(key);
        if (code.has_value() && typed(*code) == letter)
            return code;
    }
    return std::nullopt;
}

} // namespace

KeyPositions::KeyPositions(const std::function<std::optional<char16_t>(quint32)>& typed) {
    std::set<quint32> taken;
    for (const KeyCode key : keycodes::all()) {
        const auto letter = keycodes::letter(key);
        const auto code = letter.has_value() ? keyTyping(*letter, key, typed) : std::nullopt;
        if (code.has_value() && taken.insert(*code).second)
            m_evdevCodes[std::to_underlying(key)] = *code;
    }
    std::vector<KeyCode> withoutKey;
    for (const KeyCode key : keycodes::all()) {
        const auto place = keycodes::evdevCode(key);
        if (m_evdevCodes[std::to_underlying(key)] != 0 || !place.has_value())
            continue;
        if (taken.insert(*place).second)
            m_evdevCodes[std::to_underlying(key)] = *place;
        else
            withoutKey.push_back(key);
    }
    auto unused = withoutKey.begin();
    for (const KeyCode key : keycodes::all()) {
        const auto place = keycodes::evdevCode(key);
        if (unused != withoutKey.end() && place.has_value() && taken.insert(*place).second)
            m_evdevCodes[std::to_underlying(*unused++)] = *place;
    }
}

std::optional<quint32> KeyPositions::evdevCode(KeyCode key) const {
    const auto number = std::to_underlying(key);
    if (number >= m_evdevCodes.size() || m_evdevCodes[number] == 0)
        return std::nullopt;
    return m_evdevCodes[number];
}

std::optional<KeyCode> KeyPositions::keyCode(quint32 evdevCode) const {
    const auto found = std::find(m_evdevCodes.begin(), m_evdevCodes.end(), evdevCode);
    if (evdevCode == 0 || found == m_evdevCodes.end())
        return std::nullopt;
    return KeyCode(found - m_evdevCodes.begin());
}

} // namespace vellumry
