// SPDX-License-Identifier: GPL-3.0-or-later
#include "panel/RowMenu.h"

#include "capture/FileStatus.h"
#include "foundation/Localisation.h"
#include "history/clips/ClipStore.h"
#include "panel/PanelModel.h"

#include <QPointer>
#include <algorithm>

namespace vellumry {

namespace {

using Items = std::vector<ActionMenuItem>;

/// Entries over one model; what they do is given the model once it is known to be there still.
class MenuBuilder {
public:
    explicit MenuBuilder(PanelModel& model)
        : m_model(&model) {}

    void add(const char* symbol, QString text, const std::function<void(PanelModel&)>& action, QString keys = {}) {
        m_items.push_back({.text = std::move(text),
                           .symbol = QLatin1String(symbol),
                           .keys = std::move(keys),
                           .handler = [model = m_model, action] {
                               if (model)
                                   action(*model);
                           }});
    }
    void add(ActionMenuItem item) { m_items.push_back(std::move(item)); }
    [[nodiscard]] Items take() { return std::move(m_items); }

private:
    QPointer<PanelModel> m_model;
    Items m_items;
};

/// `action` with the clip as it is when the entry is chosen.
std::function<void(PanelModel&)> onClip(const QUuid& id,
                                        const std::function<void(PanelModel&, const ClipRef&)>& action) {
    return [id, action](PanelModel& model) {
        if (const ClipRef clip = model.store().find(id))
            action(model, clip);
    };
}

/// Makes the clip the only one selected first: for actions that work on the selection.
std::function<void(PanelModel&)> onSelected(const QUuid& id, const std::function<void(PanelModel&)>& action) {
    return onClip(id, [action](PanelModel& model, const ClipRef& clip) {
        model.selectOnly(clip->id);
        action(model);
    });
}

std::vector<FileStatus> statusesOf(const PanelModel& model, const Clip& clip) {
    return model.fileStatuses().value(clip.id);
}

bool allFilesAreGone(const PanelModel& model, const Clip& clip) {
    const auto statuses = statusesOf(model, clip);
    return clip.kind == ClipKind::file && !statuses.empty() &&
           std::ranges::all_of(statuses, [](const FileStatus& status) { return !status.path(); });
}

QStringList presentPaths(const PanelModel& model, const Clip& clip) {
    QStringList paths;
    for (const FileStatus& status : statusesOf(model, clip)) {
        if (const auto path = status.path())
            paths.append(*path);
    }
    return paths;
}

ActionMenuItem transformMenu(PanelModel& model, const ClipRef& clip) {
    MenuBuilder entries(model);
    for (const TextTransform transform : PanelModel::transformList) {
        entries.add("", transformTitle(transform),
                    onClip(clip->id, [transform](PanelModel& panel, const ClipRef& chosen) {
                        panel.pasteClip(chosen, true, transform);
                    }));
    }
    return {
        .text = localised("Paste Transformed"), .symbol = QStringLiteral("wand.and.stars"), .items = entries.take()};
}

void addPasting(MenuBuilder& menu, PanelModel& model, const ClipRef& clip) {
    const bool isGone = allFilesAreGone(model, *clip);
    if (isGone)
        menu.add("textformat", localised("Paste File Name"),
                 onClip(clip->id, [](PanelModel& panel, const ClipRef& chosen) { panel.pasteFileNames(chosen); }));
    else
        menu.add("doc.on.clipboard", localised("Paste"),
                 onClip(clip->id, [](PanelModel& panel, const ClipRef& chosen) { panel.pasteClip(chosen, false); }),
                 localised("↩"));
    if (clip->canBeTransformed()) {
        menu.add("textformat", localised("Paste as Plain Text"),
                 onClip(clip->id, [](PanelModel& panel, const ClipRef& chosen) { panel.pasteClip(chosen, true); }),
                 localised("⇧↩"));
        menu.add(transformMenu(model, clip));
    }
    if ((clip->kind == ClipKind::image || clip->isImageFile()) && clip->imageText && !clip->imageText->isEmpty())
        menu.add("text.viewfinder", localised("Paste Text in Image"),
                 onClip(clip->id, [](PanelModel& panel, const ClipRef& chosen) { panel.pasteTextInImage(chosen); }));
    if (!isGone)
        menu.add("doc.on.doc", localised("Copy"),
                 onClip(clip->id, [](PanelModel& panel, const ClipRef& chosen) { panel.copyClip(chosen); }),
                 localised("⌘C"));
}

Items menuOfOne(PanelModel& model, const ClipRef& clip) {
    MenuBuilder menu(model);
    addPasting(menu, model, clip);
    menu.add(ActionMenuItem::separator());
    menu.add(clip->isPinned ? "pin.slash" : "pin", clip->isPinned ? localised("Unpin") : localised("Pin"),
             onSelected(clip->id, [](PanelModel& panel) { panel.togglePin(); }), localised("⌘P"));
    if (clip->kind == ClipKind::link && !clip->isSensitive())
        menu.add("arrow.up.right", localised("Open Link"),
                 onClip(clip->id, [](PanelModel& panel, const ClipRef& chosen) { panel.openLink(chosen); }));
    if (const QStringList paths = presentPaths(model, *clip); clip->kind == ClipKind::file && !paths.isEmpty())
        menu.add("folder", localised("Show in Finder"),
                 onClip(clip->id, [](PanelModel& panel, const ClipRef& chosen) { panel.showFiles(chosen); }));
    menu.add("square.stack", localised("Add to Paste Stack"),
             onClip(clip->id, [](PanelModel& panel, const ClipRef& chosen) { panel.onAddToStack({chosen}); }));
    menu.add(ActionMenuItem::separator());
    menu.add("trash", localised("Delete"), onSelected(clip->id, [](PanelModel& panel) { panel.deleteSelected(); }),
             localised("⌘⌫"));
    return menu.take();
}

Items menuOfSeveral(PanelModel& model) {
    MenuBuilder menu(model);
    const auto clips = model.selectedClips();
    const int count = int(clips.size());
    if (std::ranges::none_of(clips, [](const ClipRef& clip) { return clip->kind == ClipKind::image; })) {
        menu.add(
            "text.append", localised("Merge and Paste"),
            [](PanelModel& panel) { panel.merge(PanelModel::MergeAction::paste); }, localised("↩"));
        menu.add(
            "square.stack", localised("Merge into One Clip"),
            [](PanelModel& panel) { panel.merge(PanelModel::MergeAction::stay); }, localised("⌘M"));
    }
    menu.add("square.stack", localised("Paste One by One (Paste Stack)"),
             [](PanelModel& panel) { panel.pasteSelectedOneByOne(); });
    menu.add(ActionMenuItem::separator());
    if (std::ranges::all_of(clips, &Clip::isPinned, [](const ClipRef& clip) -> const Clip& { return *clip; }))
        menu.add(
            "pin.slash", localised("Unpin %n Clips", count), [](PanelModel& panel) { panel.togglePin(); },
            localised("⌘P"));
    else
        menu.add(
            "pin", localised("Pin %n Clips", count), [](PanelModel& panel) { panel.togglePin(); }, localised("⌘P"));
    menu.add(
        "trash", localised("Delete %n Clips", count), [](PanelModel& panel) { panel.deleteSelected(); },
        localised("⌘⌫"));
    return menu.take();
}

} // namespace

Items rowMenu(PanelModel& model, const ClipRef& clip) {
    if (model.selectedCount() >= 2 && model.isSelected(clip->id))
        return menuOfSeveral(model);
    return menuOfOne(model, clip);
}

} // namespace vellumry
