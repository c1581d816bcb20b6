// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "foundation/UserDefaults.h"
#include "history/clips/RetentionPolicy.h"
#include "paste/Shortcut.h"

#include <optional>
#include <utility>

namespace vellumry {

/// The user's settings: the one place where their keys and defaults stand. Keeps no value itself; every read goes to
/// the domain, so that a change made anywhere counts at the next read. Absent, malformed and out-of-range values read
/// as the default or nothing, and are named once in the log. Main thread.
class Preferences {
public:
    enum class Appearance { system, light, dark };
    /// Horizontal and vertical place as fractions of a display, each from 0 to 1.
    using PanelPosition = std::pair<double, double>;

    /// Registers the defaults with `defaults`, which must outlive this.
    explicit Preferences(UserDefaults& defaults);

    [[nodiscard]] UserDefaults& defaults() const { return *m_defaults; }

    [[nodiscard]] RetentionPolicy retentionPolicy() const;
    /// Days; 0 for no limit.
    [[nodiscard]] qint64 keepForDays() const;
    [[nodiscard]] qint64 keepAtMost() const;
    /// Mebibytes.
    [[nodiscard]] qint64 mediaLimitMB() const;
    /// Seconds that a sensitive clip lives, at least 10.
    [[nodiscard]] qint64 sensitiveSeconds() const;
    /// How many clips the menu lists; 0 for none.
    [[nodiscard]] static qint64 recentInMenu(const UserDefaults& defaults);
    /// The applications whose copies are never saved; the password managers among them unless the user chose.
    [[nodiscard]] QStringList ignoredApps() const;
    [[nodiscard]] static const QStringList& defaultIgnoredApps();
    [[nodiscard]] Appearance appearance() const;
    /// The user's own list of terminals, which paste on another key (TerminalApps.h).
    [[nodiscard]] static QStringList terminalApps(const UserDefaults& defaults);
    void setIgnoredApps(const QStringList& identifiers);
    [[nodiscard]] bool hasPanelPositions() const;

    /// The stored shortcut; nothing when none was chosen or it cannot be read.
    [[nodiscard]] std::optional<Shortcut> shortcut(const QString& key) const;
    /// A shortcut equal to `fallback` is not stored, so that users that never chose one follow a new default.
    void setShortcut(const Shortcut& shortcut, const Shortcut& fallback, const QString& key);

    /// Where the user dragged the panel on the display that `key` names; nothing when never, or when the entry is
    /// malformed.
    [[nodiscard]] std::optional<PanelPosition> panelPosition(const QString& key) const;
    /// Nothing as `position` forgets the display.
    void setPanelPosition(std::optional<PanelPosition> position, const QString& key);
    void resetPanelPositions();

private:
    UserDefaults* m_defaults;
};

} // namespace vellumry
