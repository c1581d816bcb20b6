// SPDX-License-Identifier: GPL-3.0-or-later
#include "linux/keys/KeyPositions.h"

#include <algorithm>
#include <set>
#include <vector>

namespace vellumry {

namespace {

/// The key that types `letter`, its place on a US keyboard first.
std::optional<quint32> keyTyping(char16_t letter, quint32 ownKey,
                                 const std::function<std::optional<char16_t>(quint32)>& typed) {
    const auto own = KeyCodes::evdevCode(ownKey);
    if (own.has_value() && typed(*own) == letter)
        return own;
    for (quint32 key = 0; key < KeyCodes::virtualKeyCount; ++key) {
        const auto code = KeyCodes::evdevCode(key);
        if (code.has_value() && typed(*code) == letter)
            return code;
    }
    return std::nullopt;
}

} // namespace

KeyPositions::KeyPositions(const std::function<std::optional<char16_t>(quint32)>& typed) {
    std::set<quint32> taken;
    for (quint32 key = 0; key < KeyCodes::virtualKeyCount; ++key) {
        const auto letter = KeyCodes::letter(key);
        const auto code = letter.has_value() ? keyTyping(*letter, key, typed) : std::nullopt;
        if (code.has_value() && taken.insert(*code).second)
            m_evdevCodes[key] = *code;
    }
    std::vector<quint32> withoutKey;
    for (quint32 key = 0; key < KeyCodes::virtualKeyCount; ++key) {
        const auto place = KeyCodes::evdevCode(key);
        if (m_evdevCodes[key] != 0 || !place.has_value())
            continue;
        if (taken.insert(*place).second)
            m_evdevCodes[key] = *place;
        else
            withoutKey.push_back(key);
    }
    quint32 next = 0;
    for (const quint32 key : withoutKey) {
        while (next < KeyCodes::virtualKeyCount &&
               (!KeyCodes::evdevCode(next).has_value() || taken.contains(*KeyCodes::evdevCode(next))))
            ++next;
        if (next == KeyCodes::virtualKeyCount)
            break;
        m_evdevCodes[key] = *KeyCodes::evdevCode(next);
        taken.insert(m_evdevCodes[key]);
    }
}

std::optional<quint32> KeyPositions::evdevCode(quint32 virtualKey) const {
    if (virtualKey >= m_evdevCodes.size() || m_evdevCodes[virtualKey] == 0)
        return std::nullopt;
    return m_evdevCodes[virtualKey];
}

std::optional<quint32> KeyPositions::virtualKey(quint32 evdevCode) const {
    const auto found = std::find(m_evdevCodes.begin(), m_evdevCodes.end(), evdevCode);
    if (evdevCode == 0 || found == m_evdevCodes.end())
        return std::nullopt;
    return quint32(found - m_evdevCodes.begin());
}

} // namespace vellumry
