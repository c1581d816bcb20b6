// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "linux/portal/PortalSurvey.h"
#include "platform/desktop/Capability.h"
#include "platform/display/KeyCode.h"

#include <QString>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

namespace vellumry {

class HotKeyRegistrar;
class KeyInjector;
class PortalLink;
struct Platform;

/// What the desktop's portals do for us, for sessions of Wayland whose compositor does not do it itself. Main thread.
class PortalRoads {
public:
    using CharactersFor = std::function<std::optional<QString>(KeyCode)>;

    /// Asks the portal what there is, a second at most. `platform` must outlive what is made here.
    explicit PortalRoads(Platform& platform);
    ~PortalRoads();

    /// Null where this desktop's portal holds no keys for programs. Takes the lines about missing keys out of the
    /// platform's capabilities, and reports itself.
    [[nodiscard]] std::unique_ptr<HotKeyRegistrar> hotKeys(CharactersFor charactersFor) const;
    /// Null where it lets none press any. Reports as `hotKeys`.
    [[nodiscard]] std::unique_ptr<KeyInjector> keyboard() const;

    /// In a report from outside: puts what portals do in the place of what the display server lacks. Asks as the
    /// constructor, where anything is lacking.
    static void complete(std::vector<Capability>& lines);

private:
    void report(std::function<Capability()> capability) const;

    Platform& m_platform;
    PortalSurvey m_survey;
    std::shared_ptr<PortalLink> m_link;
};

} // namespace vellumry
