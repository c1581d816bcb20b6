// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "linux/portal/PortalSurvey.h"
#include "platform/desktop/Capability.h"
#include "platform/display/KeyCode.h"

#include <QCoroTask>
#include <QString>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

namespace vellumry {

class HotKeyRegistrar;
class KeyInjector;
class PortalIntroduction;
class PortalLink;
struct Platform;

/// What the desktop's portals do for us, for sessions of Wayland whose compositor does not do it itself. Main thread.
class PortalRoads {
public:
    using CharactersFor = std::function<std::optional<QString>(KeyCode)>;
    using MakeHotKeys = std::function<std::unique_ptr<HotKeyRegistrar>()>;

    /// What the display server does not do for us already.
    struct Wants {
        bool keys = true;
        bool paste = true;
    };

    /// Asks the portal what there is, without waiting where a desktop is known for its portal; elsewhere one that runs
    /// is waited for a moment. None is asked for what would not be used. `platform.defaults` must outlive what is made
    /// here.
    PortalRoads(Platform& platform, const std::shared_ptr<PortalIntroduction>& introduction, Wants wants);
    ~PortalRoads();

    /// The portal's keys; what `otherwise` makes where it turns out that it holds none for programs. Takes the lines
    /// about missing keys out of the platform's capabilities, and reports itself.
    [[nodiscard]] std::unique_ptr<HotKeyRegistrar> hotKeys(CharactersFor charactersFor, MakeHotKeys otherwise) const;
    /// Null where it is known by now that the portal lets no program press keys. Reports as `hotKeys`.
    [[nodiscard]] std::unique_ptr<KeyInjector> keyboard() const;

    /// In a report from outside: puts what portals do in the place of what the display server lacks. Asks as the
    /// constructor, where anything is lacking.
    static void complete(std::vector<Capability>& lines);

private:
    /// What the portal has said.
    struct Found;

    static QCoro::Task<void> ask(std::weak_ptr<Found> found);
    void report(std::function<Capability()> capability) const;

    Platform& m_platform;
    std::shared_ptr<Found> m_found; ///< null where no portal is asked
};

} // namespace vellumry
