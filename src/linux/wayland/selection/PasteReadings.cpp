// SPDX-License-Identifier: GPL-3.0-or-later
#include "linux/wayland/selection/PasteReadings.h"

#include "foundation/UniformType.h"
#include "linux/wayland/selection/ManagerHint.h"

#include <utility>

namespace vellumry {

namespace {

using namespace std::chrono_literals;

/// Clipboard managers read a new offer within 5 ms, measured with Plasma's and those that run `wl-paste --watch`; a
/// user's hand takes longer. The second is for the items behind the first one, where a manager was seen to read that:
/// pastes may follow each other quickly.
constexpr auto managersTime = 100ms;
constexpr auto managersNextTime = 50ms;
/// The forms of one paste are read within that of each other.
constexpr auto onePaste = 100ms;

} // namespace

void PasteReadings::start(std::function<void()> onPaste) {
    m_onPaste = std::move(onPaste);
    m_pasteEnd = Instant();
    m_hasPasted = false;
    m_isWatched = false;
}

void PasteReadings::noteReading(const QString& mimeType, Instant now) {
    if (!m_onPaste || mimeType == managerHint || mimeType == uniformtype::ownMarker)
        return;
    if (!m_hasPasted && now - m_offeredAt < managersTime) {
        m_isWatched = true;
        return;
    }
    if (m_isWatched && now - m_offeredAt < managersNextTime)
        return;
    m_hasPasted = true;
    const bool isNewPaste = now >= m_pasteEnd;
    m_pasteEnd = now + onePaste;
    if (isNewPaste)
        m_onPaste();
}

} // namespace vellumry
