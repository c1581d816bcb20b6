// SPDX-License-Identifier: GPL-3.0-or-later
#include "panel/RowMenu.h"

#include "capture/FileStatus.h"
#include "panel/PanelModelWorld.h"

namespace vellumry {

namespace {

QStringList textsOf(const std::vector<ActionMenuItem>& items) {
    QStringList texts;
    for (const auto& item : items)
        texts.append(item.isSeparator() ? QStringLiteral("-") : item.text);
    return texts;
}

class RowMenu : public PanelModelWorld {
protected:
    static void choose(const std::vector<ActionMenuItem>& items, const char* text) {
        for (const auto& item : items) {
            if (item.text == QString::fromUtf8(text)) {
                item.handler();
                return;
            }
        }
        FAIL() << "no entry " << text;
    }
    ClipRef addLink(const QString& address) {
        ClipDraft draft = drafts::text(address);
        draft.kind = ClipKind::link;
        return add(draft);
    }
};

} // namespace

TEST_F(RowMenu, OfATextClip) {
    const ClipRef clip = addText("hello");
    model.prepareForShow();
    const auto menu = rowMenu(model, clip);
    EXPECT_EQ(textsOf(menu), (QStringList{"Paste", "Paste as Plain Text", "Paste Transformed", "Copy", "-", "Pin",
                                          "Add to Paste Stack", "-", "Delete"}));
    EXPECT_EQ(textsOf(menu[2].items).size(), qsizetype(PanelModel::transformList.size()));
    EXPECT_EQ(menu[2].items.front().text, transformTitle(TextTransform::lowercase));
}

TEST_F(RowMenu, OfASensitiveClipOffersNothingThatRewritesIt) {
    const ClipRef clip = add(drafts::secret(QStringLiteral("4111 1111 1111 1111")));
    EXPECT_EQ(textsOf(rowMenu(model, clip)),
              (QStringList{"Paste", "Copy", "-", "Pin", "Add to Paste Stack", "-", "Delete"}));
}

TEST_F(RowMenu, OfALinkOpensItsAddress) {
    QStringList opened;
    model.onOpenLink = [&](const QString& address) { opened.append(address); };
    const ClipRef clip = addLink(QStringLiteral("https://example.org/a"));
    const auto menu = rowMenu(model, clip);
    EXPECT_EQ(textsOf(menu),
              (QStringList{"Paste", "Copy", "-", "Pin", "Open Link", "Add to Paste Stack", "-", "Delete"}));
    choose(menu, "Open Link");
    EXPECT_EQ(opened, QStringList{QStringLiteral("https://example.org/a")});
    EXPECT_EQ(closed, 1);
}

TEST_F(RowMenu, OfFilesShowsThoseThatExist) {
    fileStatuses[QStringLiteral("/a/gone.txt")] = FileStatus::missing();
    fileStatuses[QStringLiteral("/a/here.txt")] = FileStatus::available(QStringLiteral("/a/here.txt"));
    const ClipRef clip = add(drafts::files({QStringLiteral("/a/gone.txt"), QStringLiteral("/a/here.txt")}));
    model.prepareForShow();
    QStringList shown;
    model.onShowFiles = [&](const QStringList& paths) { shown = paths; };
    const auto menu = rowMenu(model, clip);
    EXPECT_EQ(textsOf(menu),
              (QStringList{"Paste", "Copy", "-", "Pin", "Show in Finder", "Add to Paste Stack", "-", "Delete"}));
    choose(menu, "Show in Finder");
    EXPECT_EQ(shown, QStringList{QStringLiteral("/a/here.txt")});
}

TEST_F(RowMenu, OfFilesThatAreAllGonePastesTheirNames) {
    fileStatuses[QStringLiteral("/a/gone.txt")] = FileStatus::missing();
    const ClipRef clip = add(drafts::files({QStringLiteral("/a/gone.txt")}));
    model.prepareForShow();
    const auto menu = rowMenu(model, clip);
    EXPECT_EQ(textsOf(menu), (QStringList{"Paste File Name", "-", "Pin", "Add to Paste Stack", "-", "Delete"}));
    choose(menu, "Paste File Name");
    EXPECT_EQ(pastedText(), QStringLiteral("gone.txt"));
}

TEST_F(RowMenu, OffersTheTextOfAPictureOnceItIsRead) {
    const ClipRef clip = add(drafts::image("png"));
    EXPECT_FALSE(textsOf(rowMenu(model, clip)).contains(QStringLiteral("Paste Text in Image")));
    awaited(store.setImageText(clip->id, QStringLiteral("words"), true));
    const auto menu = rowMenu(model, store.find(clip->id));
    choose(menu, "Paste Text in Image");
    EXPECT_EQ(pastedText(), QStringLiteral("words"));
}

TEST_F(RowMenu, OfAPictureFilePastesItsTextToo) {
    const ClipRef clip = add(drafts::files({QStringLiteral("/a/picture.png")}));
    awaited(store.setImageText(clip->id, QStringLiteral("words"), true));
    choose(rowMenu(model, store.find(clip->id)), "Paste Text in Image");
    EXPECT_EQ(pastedText(), QStringLiteral("words"));
}

TEST_F(RowMenu, OfSeveralClipsActsOnAllOfThem) {
    const auto ids = addTexts(3);
    model.prepareForShow();
    model.selectOnly(ids[0]);
    model.toggleSelection(ids[1]);
    const auto menu = rowMenu(model, store.find(ids[1]));
    EXPECT_EQ(textsOf(menu), (QStringList{"Merge and Paste", "Merge into One Clip", "Paste One by One (Paste Stack)",
                                          "-", "Pin 2 Clips", "Delete 2 Clips"}));
    choose(menu, "Pin 2 Clips");
    EXPECT_TRUE(store.find(ids[0])->isPinned);
    EXPECT_TRUE(store.find(ids[1])->isPinned);
    EXPECT_FALSE(store.find(ids[2])->isPinned);
    EXPECT_TRUE(textsOf(rowMenu(model, store.find(ids[1]))).contains(QStringLiteral("Unpin 2 Clips")));
}

TEST_F(RowMenu, OfSeveralWithAPictureOffersNoMerge) {
    const ClipRef picture = add(drafts::image("png"));
    const ClipRef text = addText("words");
    model.prepareForShow();
    model.selectOnly(picture->id);
    model.toggleSelection(text->id);
    EXPECT_EQ(textsOf(rowMenu(model, picture)),
              (QStringList{"Paste One by One (Paste Stack)", "-", "Pin 2 Clips", "Delete 2 Clips"}));
}

TEST_F(RowMenu, OfARowOutsideTheSelectionIsItsOwn) {
    const auto ids = addTexts(3);
    model.prepareForShow();
    model.selectOnly(ids[0]);
    model.toggleSelection(ids[1]);
    EXPECT_EQ(textsOf(rowMenu(model, store.find(ids[2]))).front(), QStringLiteral("Paste"));
}

TEST_F(RowMenu, DeletesTheRowItWasOpenedOnWhateverIsSelectedSince) {
    const auto ids = addTexts(2);
    model.prepareForShow();
    const auto menu = rowMenu(model, store.find(ids[1]));
    model.selectOnly(ids[0]);
    choose(menu, "Delete");
    EXPECT_TRUE(store.find(ids[0]));
    EXPECT_FALSE(store.find(ids[1]));
}

TEST_F(RowMenu, AnEntryOfAClipThatWentDoesNothing) {
    const auto ids = addTexts(2);
    model.prepareForShow();
    const auto menu = rowMenu(model, store.find(ids[1]));
    awaited(store.remove({ids[1]}, false));
    choose(menu, "Paste");
    choose(menu, "Delete");
    EXPECT_EQ(pastedCount, 0);
    EXPECT_TRUE(store.find(ids[0]));
}

TEST_F(RowMenu, AnEntryThatOutlivesThePanelDoesNothing) {
    const auto ids = addTexts(1);
    const auto menu = rowMenu(model, store.find(ids[0]));
    owned.reset();
    choose(menu, "Paste");
    EXPECT_EQ(pastedCount, 0);
}

} // namespace vellumry
