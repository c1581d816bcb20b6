// SPDX-License-Identifier: GPL-3.0-or-later
#include "settings/DesktopReport.h"

#include "foundation/Localisation.h"

#include <algorithm>
#include <array>

namespace vellumry {

namespace {

QString titleOf(Feature feature) {
    switch (feature) {
    case Feature::capture:
        return localised("Remembering what you copy");
    case Feature::shortcuts:
        return localised("Shortcuts in every app");
    case Feature::paste:
        return localised("Pasting for you");
    case Feature::stack:
        return localised("Paste Stack");
    case Feature::keyring:
        return localised("Encrypted history");
    case Feature::reading:
        return localised("Text in pictures");
    case Feature::tray:
        return localised("Icon in the system tray");
    }
    return {};
}

QString goodNewsOf(Feature feature) {
    switch (feature) {
    case Feature::capture:
        return localised("Every copy is noticed.");
    case Feature::shortcuts:
        return localised("Your shortcuts reach Vellumry wherever you are.");
    case Feature::paste:
        return localised("Vellumry presses the paste keys for you.");
    case Feature::stack:
        return localised("Each paste takes the next clip.");
    case Feature::keyring:
        return localised("Your keyring keeps the key.");
    case Feature::reading:
        return localised("Words in pictures are found.");
    case Feature::tray:
        return localised("Vellumry's menu is there.");
    }
    return {};
}

QString adviceOn(Feature feature) {
    switch (feature) {
    case Feature::capture:
        return localised("This desktop doesn't tell Vellumry of copies. Log in to another session, such as X11.");
    case Feature::shortcuts:
        return localised("Set a shortcut in your desktop's keyboard settings that runs: vellumry --action open-panel");
    case Feature::paste:
        return localised("Vellumry copies, and you press Ctrl+V. Allow it to press keys if your desktop asks.");
    case Feature::stack:
        return localised("Pick clips in the panel one by one instead.");
    case Feature::keyring:
        return localised("Start GNOME Keyring, KWallet or KeePassXC. Until then, clips are kept until you quit.");
    case Feature::reading:
        return localised("Install Tesseract and its data for your language.");
    case Feature::tray:
        return localised("Start Vellumry again to open Settings, or install a tray extension for your desktop.");
    }
    return {};
}

/// The program's own troubles with a feature whose parts are all there.
QString troubleOf(Feature feature, const DesktopState& state) {
    if (feature == Feature::shortcuts && !state.shortcutProblems.isEmpty())
        return state.shortcutProblems.join(u' ');
    if (feature == Feature::keyring && state.isMemoryOnly)
        return localised("Your history isn't open. Unlock your keyring: it then comes back by itself.");
    if (feature == Feature::capture && state.isWaylandSession)
        return localised(
            "This is a Wayland session: Vellumry sees what X11 apps copy, and what the desktop shares with "
            "them. Some copies may be missing");
    return {};
}

} // namespace

std::vector<FormLine> desktopReport(const DesktopState& state) {
    std::vector<FormLine> lines;
    for (const Feature feature : {Feature::capture, Feature::shortcuts, Feature::paste, Feature::stack,
                                  Feature::keyring, Feature::reading, Feature::tray}) {
        bool isKnown = false;
        QStringList reasons;
        for (const Capability& capability : state.capabilities) {
            if (std::ranges::find(capability.features, feature) == capability.features.end())
                continue;
            isKnown = true;
            if (!capability.isFound)
                reasons.append(capability.name + QStringLiteral(": ") + capability.detail);
        }
        if (!isKnown)
            continue;
        const QString trouble = troubleOf(feature, state);
        FormLine line;
        line.identifier = line.title = titleOf(feature);
        line.isGood = reasons.isEmpty() && trouble.isEmpty();
        line.detail = !reasons.isEmpty() ? adviceOn(feature) : !trouble.isEmpty() ? trouble : goodNewsOf(feature);
        line.note = reasons.join(u'\n');
        line.symbol =
            line.isGood ? QStringLiteral("checkmark.circle.fill") : QStringLiteral("exclamationmark.triangle.fill");
        lines.push_back(line);
    }
    return lines;
}

} // namespace vellumry
