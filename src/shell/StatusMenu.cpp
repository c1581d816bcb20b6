// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/StatusMenu.h"

#include "foundation/Localisation.h"
#include "settings/ProductLinks.h"
#include "shell/StatusMenuRows.h"

#include <QDateTime>
#include <algorithm>
#include <cmath>

namespace vellumry {

namespace {

using Items = std::vector<ActionMenuItem>;

/// As many as there are digits to press.
constexpr std::size_t mostWithDigit = 9;

const QString control = QStringLiteral("Control");
const QString alt = QStringLiteral("Alt");
const QString super = QStringLiteral("Super");

bool isPaused(const StatusMenuState& state) {
    return state.pausedUntil && *state.pausedUntil > state.now;
}

/// What cannot be chosen: the head of the menu, and of a part of it.
ActionMenuItem heading(const QString& text, const QString& symbol = QString()) {
    return {.text = text, .symbol = symbol, .isEnabled = false};
}

QString statusLine(const StatusMenuState& state) {
    const int count = static_cast<int>(state.clipCount);
    if (!isPaused(state))
        return localised("%n clips · Capturing", count);
    if (*state.pausedUntil >= distantFuture)
        return localised("%n clips · Paused", count);
    const QDateTime end = QDateTime::fromMSecsSinceEpoch(std::llround(*state.pausedUntil * 1000));
    return localised("%n clips · Paused until %1", count).arg(state.locale.toString(end.time(), QLocale::ShortFormat));
}

void addPinned(Items& menu, const StatusMenuState& state, const StatusMenuActions& actions) {
    if (state.pinned.empty())
        return;
    menu.push_back(heading(localised("Pinned")));
    for (std::size_t index = 0; index < std::min(state.pinned.size(), mostWithDigit); ++index) {
        ActionMenuItem row = clipRow(*state.pinned[index]);
        const QString digit = QString::number(index + 1);
        row.keys = localised("⌃⌥%1").arg(digit);
        row.chord = {super, alt, digit};
        row.handler = [paste = actions.pastePinned, clip = state.pinned[index]->id] { paste(clip); };
        menu.push_back(std::move(row));
    }
    menu.push_back(ActionMenuItem::separator());
}

void addRecent(Items& menu, const StatusMenuState& state, const StatusMenuActions& actions) {
    if (state.recent.empty())
        return;
    menu.push_back(heading(localised("Recent")));
    for (std::size_t index = 0; index < state.recent.size(); ++index) {
        ActionMenuItem row = clipRow(*state.recent[index]);
        if (index < mostWithDigit) {
            const QString digit = QString::number(index + 1);
            row.keys = localised("⌘%1").arg(digit);
            row.chord = {control, digit};
        }
        row.handler = [paste = actions.pasteRecent, clip = state.recent[index]->id] { paste(clip); };
        menu.push_back(std::move(row));
    }
    menu.push_back(ActionMenuItem::separator());
}

QString stackTitle(const StatusMenuState& state) {
    if (!state.isStackActive)
        return localised("Start Paste Stack");
    if (state.stackItems == 0)
        return localised("Stop Paste Stack");
    return localised("Stop Paste Stack (%n left)", static_cast<int>(state.stackItems));
}

ActionMenuItem pauseItem(const StatusMenuState& state, const StatusMenuActions& actions) {
    if (isPaused(state))
        return {.text = localised("Resume Capture"),
                .symbol = QStringLiteral("play.fill"),
                .handler = actions.resumeCapture};
    const auto entry = [&actions](const QString& text, std::optional<double> seconds) {
        return ActionMenuItem{.text = text, .handler = [pause = actions.pauseCapture, seconds] { pause(seconds); }};
    };
    return {.text = localised("Pause Capture"),
            .symbol = QStringLiteral("pause.fill"),
            .items = {entry(localised("For 5 Minutes"), 300.0), entry(localised("For 1 Hour"), 3600.0),
                      entry(localised("Until I Resume"), std::nullopt)}};
}

ActionMenuItem::Check checkFor(bool isOn) {
    return isOn ? ActionMenuItem::Check::on : ActionMenuItem::Check::off;
}

void addSwitches(Items& menu, const StatusMenuState& state, const StatusMenuActions& actions) {
    if (actions.openPanel)
        menu.push_back({.text = localised("Open Vellumry"),
                        .symbol = QStringLiteral("magnifyingglass"),
                        .keys = localised("⌃⌘V"),
                        .handler = actions.openPanel,
                        .chord = {super, control, QStringLiteral("V")}});
    if (actions.toggleStack)
        menu.push_back({.text = stackTitle(state),
                        .symbol = QStringLiteral("square.stack.3d.up"),
                        .keys = localised("⌃⌘S"),
                        .handler = actions.toggleStack,
                        .chord = {super, control, QStringLiteral("S")}});
    menu.push_back(pauseItem(state, actions));
    menu.push_back({.text = localised("Ignore Next Copy"),
                    .symbol = QStringLiteral("eye.slash"),
                    .handler = actions.toggleIgnoreNext,
                    .check = checkFor(state.ignoresNextCopy),
                    .note = localised("The next thing you copy isn't saved in Vellumry. Use it before copying a "
                                      "password or other private text.")});
    if (actions.toggleScreenshots)
        menu.push_back({.text = localised("Save New Screenshots"),
                        .symbol = QStringLiteral("camera.viewfinder"),
                        .handler = actions.toggleScreenshots,
                        .check = checkFor(state.savesScreenshots),
                        .note = localised("Screenshots you save with ⌘⇧3 or ⌘⇧4 are added to Vellumry too, and their "
                                          "text becomes searchable.")});
    menu.push_back({.text = localised("Clear History…"),
                    .symbol = QStringLiteral("trash"),
                    .isEnabled = state.clipCount > 0,
                    .handler = actions.clearHistory});
}

std::optional<ActionMenuItem> updateItem(const StatusMenuState& state, const StatusMenuActions& actions) {
    if (!state.update)
        return std::nullopt;
    if (state.update->state == PendingUpdate::State::ready)
        return ActionMenuItem{.text = localised("Restart to Update to %1").arg(state.update->version),
                              .symbol = QStringLiteral("arrow.down.circle.fill"),
                              .handler = actions.restartToUpdate};
    return ActionMenuItem{.text = localised("Update to Vellumry %1…").arg(state.update->version),
                          .symbol = QStringLiteral("arrow.down.circle"),
                          .handler = actions.checkForUpdates};
}

ActionMenuItem helpItem(const StatusMenuState& state, const StatusMenuActions& actions) {
    const auto link = [&actions](const QString& text, const QString& address) {
        return ActionMenuItem{.text = text, .handler = [open = actions.openLink, address] { open(address); }};
    };
    ActionMenuItem help{.text = localised("Help"),
                        .symbol = QStringLiteral("questionmark.circle"),
                        .items = {link(localised("Vellumry Website"), productlinks::website),
                                  link(localised("Email Support"), productlinks::support),
                                  link(localised("Privacy Policy"), productlinks::privacy)}};
    if (state.canCheckForUpdates) {
        help.items.push_back(ActionMenuItem::separator());
        help.items.push_back({.text = localised("Check for Updates…"), .handler = actions.checkForUpdates});
    }
    return help;
}

} // namespace

Items statusMenu(const StatusMenuState& state, const StatusMenuActions& actions) {
    Items menu{heading(QStringLiteral("Vellumry"), QStringLiteral("Logo")), heading(statusLine(state)),
               ActionMenuItem::separator()};
    addPinned(menu, state, actions);
    addRecent(menu, state, actions);
    addSwitches(menu, state, actions);
    menu.push_back(ActionMenuItem::separator());
    if (!state.isTrusted)
        menu.push_back({.text = localised("Allow Pasting…"),
                        .symbol = QStringLiteral("exclamationmark.triangle.fill"),
                        .handler = actions.allowPasting});
    if (auto update = updateItem(state, actions))
        menu.push_back(std::move(*update));
    if (actions.openSettings)
        menu.push_back({.text = localised("Settings…"),
                        .symbol = QStringLiteral("gearshape"),
                        .keys = localised("⌘,"),
                        .handler = actions.openSettings,
                        .chord = {control, QStringLiteral(",")}});
    menu.push_back(helpItem(state, actions));
    menu.push_back(ActionMenuItem::separator());
    menu.push_back({.text = localised("Quit Vellumry"),
                    .symbol = QStringLiteral("power"),
                    .keys = localised("⌘Q"),
                    .handler = actions.quit,
                    .chord = {control, QStringLiteral("Q")}});
    return menu;
}

} // namespace vellumry
