// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "linux/look/KdeGlobals.h"
#include "linux/look/PortalSettings.h"
#include "platform/desktop/DesktopLook.h"

#include <QString>
#include <memory>

namespace vellumry {

class PortalIntroduction;

/// The desktop's look from all places that say something of it: the settings portal first, then Plasma's own file in a
/// Plasma session, then what an X server's settings manager says. Main thread.
class LinuxDesktopLook : public DesktopLookSource {
public:
    struct Places {
        std::shared_ptr<PortalIntroduction> introduction;
        FolderWatching* folders = nullptr; ///< outlives this; without it Plasma's file is not read
        QString configFolder{};            ///< $XDG_CONFIG_HOME
        bool isPlasma = false;             ///< Plasma's file counts
        bool scalesText = false;           ///< the portal's scale of texts is not in the display's scale already
    };

    explicit LinuxDesktopLook(const Places& places);

    [[nodiscard]] DesktopLook look() const override { return m_look; }
    /// What the X server's settings manager says now.
    void setXSettings(const SaidLook& said);

private:
    void combine();

    bool m_scalesText;
    SaidLook m_xSettings;
    DesktopLook m_look;
    std::unique_ptr<KdeGlobals> m_plasma;
    PortalSettings m_portal;
};

} // namespace vellumry
