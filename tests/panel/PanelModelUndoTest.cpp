// SPDX-License-Identifier: GPL-3.0-or-later
#include "panel/PanelModelWorld.h"
#include "paste/Shortcut.h"
#include "support/Eventually.h"

using namespace vellumry;
using namespace std::chrono_literals;

namespace {

/// Deletions in the shown panel, and the way back.
class PanelModelUndo : public PanelModelWorld {
protected:
    void show() {
        model.prepareForShow();
        model.setPresented(true);
    }
    bool pressUndo() { return model.keyEquivalent(KeyCode::z, Modifier::command, false); }
    [[nodiscard]] QStringList visible() const { return titles(model.visibleClips()); }
};

} // namespace

TEST_F(PanelModelUndo, BringsSeveralBackWithTheirPinsAndPlacesAndSelectsThem) {
    const auto ids = addTexts(4);
    pin(ids[2]);
    show();
    const QStringList before = visible();
    const Clip pinned = *store.find(ids[2]);
    model.selectOnly(ids[2]);
    model.toggleSelection(ids[1]);
    model.deleteSelected();
    EXPECT_EQ(store.clips().size(), 2U);
    EXPECT_EQ(model.undoCount(), 2);
    EXPECT_TRUE(model.undoDeletion());
    EXPECT_EQ(visible(), before);
    EXPECT_EQ(*store.find(ids[2]), pinned);
    EXPECT_EQ(model.selectedIDs(), (QSet<QUuid>{ids[1], ids[2]}));
    EXPECT_EQ(model.undoCount(), 0);
    EXPECT_FALSE(model.undoDeletion());
}

TEST_F(PanelModelUndo, TakesSeveralDeletionsBackLastFirst) {
    const auto ids = addTexts(3);
    show();
    model.deleteSelected();
    model.deleteSelected();
    EXPECT_EQ(visible(), QStringList{"text 1"});
    EXPECT_TRUE(pressUndo());
    EXPECT_EQ(visible(), (QStringList{"text 2", "text 1"}));
    EXPECT_EQ(model.selectedID(), ids[1]);
    EXPECT_TRUE(pressUndo());
    EXPECT_EQ(visible(), (QStringList{"text 3", "text 2", "text 1"}));
}

TEST_F(PanelModelUndo, TheKeyIsTheFieldsOnceTheTextHasChangedSince) {
    addTexts(2);
    show();
    model.deleteSelected();
    model.searchTextEdited(QStringLiteral("t"));
    EXPECT_FALSE(pressUndo());
    model.searchTextEdited(QString());
    EXPECT_FALSE(pressUndo()) << "changed and changed back";
    EXPECT_EQ(model.undoCount(), 1) << "the button is there still";
    EXPECT_TRUE(model.undoDeletion());
    EXPECT_EQ(store.clips().size(), 2U);
}

TEST_F(PanelModelUndo, TheKeyWithoutADeletionIsTheFields) {
    addTexts(1);
    show();
    EXPECT_FALSE(pressUndo());
}

TEST_F(PanelModelUndo, ADeletionInFilteredClipsKeepsTheFilter) {
    const auto ids = addTexts(2);
    show();
    model.searchTextEdited(QStringLiteral("text 1"));
    model.deleteSelected();
    EXPECT_TRUE(visible().isEmpty());
    EXPECT_TRUE(pressUndo());
    EXPECT_EQ(visible(), QStringList{"text 1"});
    EXPECT_EQ(model.selectedID(), ids[1]);
}

TEST_F(PanelModelUndo, ASensitiveClipHasNoWayBack) {
    addText("plain");
    const ClipRef secret = add(drafts::secret(QStringLiteral("correct horse")));
    show();
    model.selectOnly(secret->id);
    model.deleteSelected();
    EXPECT_EQ(model.undoCount(), 0);
    EXPECT_FALSE(model.undoDeletion());
    EXPECT_FALSE(store.find(secret->id));
}

TEST_F(PanelModelUndo, OfAMixedSelectionOnlyTheOthersComeBack) {
    const ClipRef plain = addText("plain");
    const ClipRef secret = add(drafts::secret(QStringLiteral("correct horse")));
    show();
    model.selectOnly(plain->id);
    model.toggleSelection(secret->id);
    model.deleteSelected();
    EXPECT_EQ(model.undoCount(), 1);
    model.undoDeletion();
    EXPECT_TRUE(store.find(plain->id));
    EXPECT_FALSE(store.find(secret->id));
}

TEST_F(PanelModelUndo, NothingComesBackOnceTheTimeIsOver) {
    addTexts(2);
    model.setUndoTime(20ms);
    show();
    int changes = 0;
    QObject::connect(&model, &PanelModel::undoChanged, &model, [&] { ++changes; });
    model.deleteSelected();
    EXPECT_EQ(changes, 1);
    EXPECT_TRUE(eventually([&] { return model.undoCount() == 0; }));
    EXPECT_EQ(changes, 2);
    EXPECT_FALSE(model.undoDeletion());
    EXPECT_EQ(store.clips().size(), 1U);
}

TEST_F(PanelModelUndo, NothingComesBackOnceThePanelHasClosed) {
    addTexts(2);
    show();
    model.deleteSelected();
    model.setPresented(false);
    EXPECT_EQ(model.undoCount(), 0);
    show();
    EXPECT_FALSE(model.undoDeletion());
    EXPECT_EQ(store.clips().size(), 1U);
}
