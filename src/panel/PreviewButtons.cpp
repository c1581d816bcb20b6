// SPDX-License-Identifier: GPL-3.0-or-later
#include "panel/PreviewButtons.h"

#include "foundation/Localisation.h"

#include <algorithm>

namespace vellumry::preview {

namespace {

using Action = PreviewContent::Action;
using Button = PreviewContent::Button;

Button labelled(Action action, const char* symbol, QString title, QString help = {}) {
    return {.action = action, .title = std::move(title), .help = std::move(help), .symbol = QLatin1String(symbol)};
}

Button icon(Action action, const char* symbol, QString help) {
    return {.action = action, .help = std::move(help), .symbol = QLatin1String(symbol)};
}

Button prominent(Button button) {
    button.isProminent = true;
    return button;
}

Button pinButton(bool isPinned) {
    return isPinned ? icon(Action::togglePin, "pin.slash", localised("Unpin (⌘P)"))
                    : icon(Action::togglePin, "pin", localised("Pin (⌘P)"));
}

bool hasFilesLeft(const Clip& clip, const PreviewSources& sources) {
    const auto statuses = sources.files ? sources.files(clip.id) : std::vector<FileStatus>();
    return statuses.empty() || std::ranges::any_of(statuses, [](const FileStatus& status) { return !!status.path(); });
}

} // namespace

std::vector<Button> buttonsOfOne(const Clip& clip, const PreviewSources& sources) {
    if (sources.showsTransforms && clip.canBeTransformed())
        return {prominent(labelled(Action::pasteTransformed, "doc.on.clipboard", localised("Paste transformed"))),
                icon(Action::closeTransforms, "chevron.left", localised("Back"))};
    std::vector<Button> buttons;
    const bool isPastable = clip.kind != ClipKind::file || hasFilesLeft(clip, sources);
    if (isPastable)
        buttons.push_back(prominent(labelled(Action::paste, "doc.on.clipboard", localised("Paste"))));
    if (clip.kind == ClipKind::file) {
        const Button names = labelled(Action::pasteFileName, "textformat", localised("Paste file name"));
        buttons.push_back(isPastable ? names : prominent(names));
    }
    if (clip.kind == ClipKind::richText && !clip.isSensitive())
        buttons.push_back(labelled(Action::pastePlain, "", localised("Plain text"),
                                   localised("Pastes as plain text. Your clip stays as it is.")));
    if (!clip.isSensitive() && (clip.kind == ClipKind::image || clip.isImageFile()) && clip.imageText &&
        !clip.imageText->isEmpty())
        buttons.push_back(
            icon(Action::pasteTextInImage, "text.viewfinder", localised("Pastes the text in this image")));
    if (clip.canBeTransformed())
        buttons.push_back(icon(Action::transform, "wand.and.stars", localised("Transform (⌘T)")));
    if (clip.kind == ClipKind::link && !clip.isSensitive())
        buttons.push_back(icon(Action::openLink, "arrow.up.right", localised("Open Link")));
    if (clip.kind == ClipKind::file && isPastable)
        buttons.push_back(icon(Action::showFiles, "folder", localised("Show in Finder")));
    buttons.push_back(pinButton(clip.isPinned));
    buttons.push_back(icon(Action::remove, "trash", localised("Delete (⌘⌫)")));
    return buttons;
}

std::vector<Button> buttonsOfSeveral(const PreviewSources& sources) {
    const auto& clips = sources.clips;
    const int count = int(clips.size());
    std::vector<Button> buttons;
    if (std::ranges::none_of(clips, [](const ClipRef& clip) { return clip->kind == ClipKind::image; }))
        buttons.push_back(prominent(labelled(Action::mergeAndPaste, "text.append", localised("Merge & Paste"))));
    if (sources.isStackActive)
        buttons.push_back(labelled(Action::stopStack, "square.stack", localised("Stop Paste Stack (⌃⌘S)")));
    else
        buttons.push_back(labelled(Action::pasteOneByOne, "square.stack", localised("Paste one by one"),
                                   localised("Paste them one by one: every ⌘V pastes the next (Paste Stack)")));
    const bool areAllPinned = std::ranges::all_of(clips, [](const ClipRef& clip) { return clip->isPinned; });
    buttons.push_back(areAllPinned ? labelled(Action::togglePin, "pin.slash", localised("Unpin all (⌘P)"))
                                   : labelled(Action::togglePin, "pin", localised("Pin all %n", count)));
    buttons.push_back(labelled(Action::remove, "trash", localised("Delete %n", count)));
    return buttons;
}

} // namespace vellumry::preview
