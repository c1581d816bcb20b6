// SPDX-License-Identifier: GPL-3.0-or-later
#include "PanelModelWorld.h"

namespace vellumry {

namespace {

using Tone = ToastMessage::Tone;
using MergeAction = PanelModel::MergeAction;

class PanelModelActions : public PanelModelWorld {
protected:
    void selectAll() {
        model.handle(PanelModel::Command::home);
        model.extend(100);
    }
};

} // namespace

TEST_F(PanelModelActions, ShowsTheToastOfAPasteThatOnlyCopied) {
    target.trusted = false;
    model.pasteClip(addText("words"), false);
    EXPECT_EQ(closed, 1);
    EXPECT_EQ(toasts, std::vector{toast("doc.on.clipboard.fill", "Copied. Press ⌘V to paste", Tone::info)});
}

TEST_F(PanelModelActions, NotPlainMeansTheUsersDefault) {
    defaults.setObject(QStringLiteral("plainTextByDefault"), true);
    auto draft = drafts::text(QStringLiteral("styled"));
    draft.payload.items.front().representations[uniformtype::html] = "<b>styled</b>";
    model.pasteClip(add(draft), false);
    EXPECT_FALSE(pasteboard.items().front().representations.contains(uniformtype::html));
}

TEST_F(PanelModelActions, PlainPasteOfAnImagePastesItsText) {
    const auto image = add(drafts::image("png"));
    awaited(store.setImageText(image->id, QStringLiteral("read text"), true));
    model.pasteClip(store.find(image->id), true);
    EXPECT_EQ(pastedText(), QStringLiteral("read text"));
    EXPECT_EQ(target.presses, 1);
    EXPECT_EQ(closed, 1);

    pasteboard.refusesWrites = true;
    model.pasteClip(store.find(image->id), true);
    EXPECT_EQ(toasts, std::vector{toast("xmark.circle.fill", "Couldn't paste this clip", Tone::warning)});
}

TEST_F(PanelModelActions, PlainPasteOfAnImageWithoutTextPastesTheImage) {
    model.pasteClip(add(drafts::image("png")), true);
    EXPECT_EQ(pasteboard.items().front().representations.at(uniformtype::png), "png");
    EXPECT_EQ(closed, 1);
}

TEST_F(PanelModelActions, PastesARowByItsIdIfThereIsOne) {
    model.pasteRow(addText("row")->id);
    EXPECT_EQ(pastedText(), QStringLiteral("row"));
    model.pasteRow(QUuid::createUuid());
    EXPECT_EQ(closed, 1);
}

TEST_F(PanelModelActions, PastesAPinnedClipByItsNumber) {
    const auto ids = addTexts(3);
    pin(ids[2]);
    pin(ids[0]);
    model.pastePinned(2);
    EXPECT_EQ(pastedText(), QStringLiteral("text 3"));
    EXPECT_TRUE(toasts.empty());
}

TEST_F(PanelModelActions, SaysThatNothingIsPinnedThere) {
    const auto ids = addTexts(2);
    pin(ids[0]);
    pin(ids[1]);
    model.pastePinned(3);
    model.pastePinned(0);
    EXPECT_TRUE(pasteboard.writes.empty());
    EXPECT_EQ(closed, 0);
    EXPECT_EQ(toasts, (std::vector{toast("pin", "Nothing pinned at ⌃⌥3 yet. Pin a clip with ⌘P", Tone::info),
                                   toast("pin", "Nothing pinned at ⌃⌥0 yet. Pin a clip with ⌘P", Tone::info)}));
}

TEST_F(PanelModelActions, CopySaysWhatBecameOfIt) {
    const auto file = add(drafts::files({QStringLiteral("/a")}));
    model.copyClip(file);
    fileStatuses[QStringLiteral("/a")] = FileStatus::missing();
    model.copyClip(file);
    awaited(store.remove({file->id}, false));
    model.copyClip(file);
    EXPECT_EQ(toasts, (std::vector{toast("checkmark.circle.fill", "Copied", Tone::success),
                                   toast("trash.fill", "This file was deleted", Tone::warning),
                                   toast("xmark.circle.fill", "This clip can't be copied anymore", Tone::warning)}));
    EXPECT_EQ(closed, 0);
}

TEST_F(PanelModelActions, PinsTheSelectionInCopyOrder) {
    const auto ids = addTexts(3);
    model.prepareForShow();
    selectAll();
    model.togglePin();
    EXPECT_EQ(titles(store.pinnedClips()),
              (QStringList{QStringLiteral("text 1"), QStringLiteral("text 2"), QStringLiteral("text 3")}));
}

TEST_F(PanelModelActions, PinsWhenAnyIsUnpinnedAndUnpinsOnlyWhenAllArePinned) {
    const auto ids = addTexts(2);
    pin(ids[0]);
    model.prepareForShow();
    selectAll();
    ASSERT_EQ(model.selectedCount(), 2);
    model.togglePin();
    EXPECT_EQ(store.pinnedClips().size(), 2u);
    model.togglePin();
    EXPECT_TRUE(store.pinnedClips().empty());
}

TEST_F(PanelModelActions, PinAndDeleteOfNothingDoNothing) {
    model.togglePin();
    model.deleteSelected();
    model.merge(MergeAction::stay);
    model.toggleTransforms();
    EXPECT_TRUE(toasts.empty());
    EXPECT_EQ(store.revision(), 0);
}

TEST_F(PanelModelActions, DeletingSelectsTheNextRow) {
    const auto ids = addTexts(3);
    model.selectOnly(ids[1]);
    model.deleteSelected();
    EXPECT_EQ(model.selectedID(), ids[2]);
    EXPECT_EQ(model.anchorID(), ids[2]);
    EXPECT_EQ(store.find(ids[1]), nullptr);
}

TEST_F(PanelModelActions, DeletingTheLastRowSelectsTheOneAbove) {
    const auto ids = addTexts(2);
    model.selectOnly(ids[1]);
    model.deleteSelected();
    EXPECT_EQ(model.selectedID(), ids[0]);
    model.deleteSelected();
    EXPECT_EQ(model.selectedID(), std::nullopt);
    EXPECT_TRUE(store.clips().empty());
}

TEST_F(PanelModelActions, DeletingSeveralSelectsTheFirstBehindThemThatStays) {
    const auto ids = addTexts(5);
    model.selectOnly(ids[0]);
    model.toggleSelection(ids[2]);
    model.deleteSelected();
    EXPECT_EQ(model.selectedID(), ids[3]);
    EXPECT_TRUE(model.selectedIDs().isEmpty());
    EXPECT_EQ(store.clips().size(), 3u);

    model.toggleSelection(ids[4]);
    model.deleteSelected();
    EXPECT_EQ(model.selectedID(), ids[1]);
    EXPECT_EQ(titles(store.clips()), QStringList{QStringLiteral("text 4")});
}

TEST_F(PanelModelActions, DeletingAllSelectsNothing) {
    addTexts(3);
    model.prepareForShow();
    selectAll();
    model.deleteSelected();
    EXPECT_EQ(model.selectedID(), std::nullopt);
    EXPECT_TRUE(store.clips().empty());
}

TEST_F(PanelModelActions, TransformsAreForTextThatIsNotSensitive) {
    auto rich = drafts::text(QStringLiteral("rich"));
    rich.kind = ClipKind::richText;
    model.selectOnly(add(rich)->id);
    model.toggleTransforms();
    EXPECT_TRUE(model.isTransformListOpen());

    for (const auto& clip : {add(drafts::secret(QStringLiteral("secret"))), add(drafts::image("png"))}) {
        model.selectOnly(clip->id);
        model.toggleTransforms();
        EXPECT_FALSE(model.isTransformListOpen());
    }
    const auto refusal = toast("textformat", "Transforms work on text clips", Tone::info);
    EXPECT_EQ(toasts, (std::vector{refusal, refusal}));
}

TEST_F(PanelModelActions, NoTransformsForSeveral) {
    addTexts(2);
    model.prepareForShow();
    selectAll();
    model.toggleTransforms();
    EXPECT_EQ(model.transformClipID(), std::nullopt);
    EXPECT_TRUE(toasts.empty());
}

TEST_F(PanelModelActions, ImagesCannotBeMerged) {
    addText("words");
    add(drafts::image("png"));
    model.prepareForShow();
    selectAll();
    model.merge(MergeAction::paste);
    EXPECT_EQ(closed, 0);
    EXPECT_EQ(store.clips().size(), 2u);
    EXPECT_EQ(toasts,
              std::vector{toast("photo.on.rectangle", "Images can't be merged. Drag them out instead", Tone::info)});
}

TEST_F(PanelModelActions, TheMergedClipIsSelected) {
    addTexts(3);
    model.prepareForShow();
    selectAll();
    model.merge(MergeAction::stay);
    EXPECT_EQ(store.clips().size(), 4u);
    EXPECT_EQ(model.selectedID(), store.clips().front()->id);
    EXPECT_TRUE(model.selectedIDs().isEmpty());
    EXPECT_EQ(toasts, std::vector{toast("square.stack.fill", "Merged 3 clips into one", Tone::success)});
}

TEST_F(PanelModelActions, AMergeThatFailsSaysSo) {
    addTexts(2);
    store.setPolicy({std::nullopt, 0, 0}); // what is added now goes at once
    model.prepareForShow();
    selectAll();
    ASSERT_EQ(model.selectedCount(), 2);
    model.merge(MergeAction::copy);
    EXPECT_EQ(closed, 1);
    EXPECT_TRUE(pasteboard.writes.empty());
    EXPECT_EQ(toasts, std::vector{toast("xmark.circle.fill", "Couldn't merge these clips", Tone::warning)});
}

TEST_F(PanelModelActions, PastesTheNamesOfFilesThatAreGone) {
    const auto clip = add(drafts::files({QStringLiteral("/x/one.txt"), QStringLiteral("/y/two.txt")}));
    fileStatuses = {{QStringLiteral("/x/one.txt"), FileStatus::missing()},
                    {QStringLiteral("/y/two.txt"), FileStatus::missing()}};
    target.trusted = false;
    model.pasteFileNames(clip);
    EXPECT_EQ(pastedText(), QStringLiteral("one.txt\ntwo.txt"));
    EXPECT_EQ(closed, 1);
    EXPECT_EQ(toasts, std::vector{toast("doc.on.clipboard.fill", "Copied. Press ⌘V to paste", Tone::info)});
}

TEST_F(PanelModelActions, HandsTheSelectionToTheStackInCopyOrder) {
    addTexts(3);
    model.prepareForShow();
    selectAll();
    QStringList toggled;
    QStringList added;
    model.onToggleStack = [&](const std::vector<ClipRef>& clips) { toggled = titles(clips); };
    model.onAddToStack = [&](const std::vector<ClipRef>& clips) { added = titles(clips); };
    model.pasteSelectedOneByOne();
    model.addSelectedToStack();
    const QStringList order{QStringLiteral("text 1"), QStringLiteral("text 2"), QStringLiteral("text 3")};
    EXPECT_EQ(toggled, order);
    EXPECT_EQ(added, order);
}

TEST_F(PanelModelActions, APasteMayEndAfterTheModel) {
    holdsSleep = true;
    target.focusComesBack = false;
    model.pasteClip(addText("words"), false);
    owned.reset();
    wakeSleepers();
    EXPECT_EQ(target.focusRequests, 1);
    EXPECT_TRUE(toasts.empty());
}

} // namespace vellumry
