// SPDX-License-Identifier: GPL-3.0-or-later
#include "PanelModelWorld.h"

#include "paste/Shortcut.h"

#include <QSignalSpy>

namespace vellumry {

namespace {

class PanelModelSelection : public PanelModelWorld {
protected:
    std::vector<QUuid> ids = addTexts(5);
    PanelModelSelection() { model.resetSelection(); }
};

using Ids = QSet<QUuid>;

} // namespace

TEST_F(PanelModelSelection, ResetSelectsTheFirstVisibleClip) {
    EXPECT_EQ(model.selectedID(), ids[0]);
    EXPECT_EQ(model.anchorID(), ids[0]);
    EXPECT_EQ(model.currentClip()->id, ids[0]);
    model.setQuery(QStringLiteral("nothing has this"));
    EXPECT_EQ(model.currentClip(), nullptr);
    model.resetSelection();
    EXPECT_EQ(model.selectedID(), std::nullopt);
}

TEST_F(PanelModelSelection, MoveClampsAndNeverWraps) {
    model.move(-1);
    EXPECT_EQ(model.selectedIndex(), 0);
    model.move(3);
    EXPECT_EQ(model.selectedIndex(), 3);
    EXPECT_EQ(model.anchorID(), ids[3]);
    model.move(8);
    EXPECT_EQ(model.selectedIndex(), 4);
    model.move(1);
    EXPECT_EQ(model.selectedIndex(), 4);
}

TEST_F(PanelModelSelection, MoveDownFromNothingSelectsTheFirst) {
    awaited(store.remove({ids[0]}, false));
    EXPECT_EQ(model.selectedIndex(), -1);
    model.move(1);
    EXPECT_EQ(model.selectedID(), ids[1]);
}

TEST_F(PanelModelSelection, MoveDoesNothingOnAnEmptyList) {
    model.setQuery(QStringLiteral("nothing has this"));
    model.move(1);
    model.extend(1);
    EXPECT_EQ(model.selectedID(), ids[0]);
    EXPECT_TRUE(model.sections().empty());
}

TEST_F(PanelModelSelection, MoveEndsAMultiSelection) {
    model.extend(1);
    EXPECT_EQ(model.selectedCount(), 2);
    model.move(1);
    EXPECT_TRUE(model.selectedIDs().isEmpty());
    EXPECT_EQ(model.selectedIndex(), 2);
}

TEST_F(PanelModelSelection, ExtendGrowsAndShrinksFromTheSameRow) {
    model.move(2);
    model.extend(1);
    model.extend(1);
    EXPECT_EQ(model.selectedIDs(), (Ids{ids[2], ids[3], ids[4]}));
    model.extend(1);
    EXPECT_EQ(model.selectedID(), ids[4]);
    model.extend(-1);
    model.extend(-1);
    EXPECT_TRUE(model.selectedIDs().isEmpty());
    EXPECT_EQ(model.selectedID(), ids[2]);
    model.extend(-1);
    EXPECT_EQ(model.selectedIDs(), (Ids{ids[1], ids[2]}));
    EXPECT_EQ(model.anchorID(), ids[2]);
}

TEST_F(PanelModelSelection, ShiftClickMeasuresFromTheAnchor) {
    model.click(ids[1], {});
    EXPECT_FALSE(model.click(ids[3], Modifier::shift));
    EXPECT_EQ(model.selectedIDs(), (Ids{ids[1], ids[2], ids[3]}));
    model.click(ids[0], Modifier::shift);
    EXPECT_EQ(model.selectedIDs(), (Ids{ids[0], ids[1]}));
    EXPECT_EQ(model.anchorID(), ids[1]);
    EXPECT_EQ(titles(model.selectedClips()), (QStringList{QStringLiteral("text 5"), QStringLiteral("text 4")}));
}

TEST_F(PanelModelSelection, ShiftClickWithAHiddenAnchorSelectsThatRowAlone) {
    model.click(ids[4], {});
    model.setQuery(QStringLiteral("text 3"));
    model.click(ids[2], Modifier::shift);
    EXPECT_TRUE(model.selectedIDs().isEmpty());
    EXPECT_EQ(model.selectedID(), ids[2]);
    EXPECT_EQ(model.anchorID(), ids[2]);
}

TEST_F(PanelModelSelection, CommandClickAddsAndTakesAway) {
    EXPECT_FALSE(model.click(ids[2], Modifier::command));
    EXPECT_EQ(model.selectedIDs(), (Ids{ids[0], ids[2]}));
    EXPECT_EQ(model.selectedID(), ids[2]);
    model.click(ids[4], Modifier::command);
    EXPECT_EQ(model.selectedCount(), 3);
    model.click(ids[4], Modifier::command);
    EXPECT_EQ(model.selectedID(), ids[0]);
    EXPECT_EQ(model.anchorID(), ids[4]);
}

TEST_F(PanelModelSelection, CommandClickDownToOneEndsTheMultiSelection) {
    model.click(ids[2], Modifier::command);
    model.click(ids[0], Modifier::command);
    EXPECT_TRUE(model.selectedIDs().isEmpty());
    EXPECT_EQ(model.selectedID(), ids[2]);
    model.click(ids[2], Modifier::command);
    EXPECT_EQ(model.selectedID(), std::nullopt);
    EXPECT_EQ(model.selectedCount(), 0);
}

TEST_F(PanelModelSelection, APressInsideTheSelectionWaitsForTheRelease) {
    model.click(ids[2], Modifier::shift);
    EXPECT_TRUE(model.click(ids[1], {}));
    EXPECT_EQ(model.selectedCount(), 3);
    EXPECT_EQ(model.selectedID(), ids[1]);
    EXPECT_FALSE(model.click(ids[4], {}));
    EXPECT_TRUE(model.selectedIDs().isEmpty());
}

TEST_F(PanelModelSelection, IsSelectedTellsRowsApart) {
    EXPECT_TRUE(model.isSelected(ids[0]));
    EXPECT_FALSE(model.isSelected(ids[1]));
    model.click(ids[1], Modifier::shift);
    EXPECT_TRUE(model.isSelected(ids[0]));
    EXPECT_TRUE(model.isSelected(ids[1]));
    EXPECT_FALSE(model.isSelected(ids[2]));
}

TEST_F(PanelModelSelection, WhatIsNotVisibleFallsOutOfTheSelectedClips) {
    model.click(ids[4], Modifier::shift);
    model.setQuery(QStringLiteral("text 2"));
    EXPECT_EQ(titles(model.selectedClips()), QStringList{QStringLiteral("text 2")});
}

TEST_F(PanelModelSelection, FiltersCycleRoundAndResetTheSelection) {
    model.move(2);
    model.cycleFilter(1);
    EXPECT_EQ(model.filter(), ClipFilter::text);
    EXPECT_EQ(model.selectedIndex(), 0);
    model.cycleFilter(-1);
    model.cycleFilter(-1);
    EXPECT_EQ(model.filter(), ClipFilter::pinned);
    model.cycleFilter(1);
    EXPECT_EQ(model.filter(), ClipFilter::all);
}

TEST_F(PanelModelSelection, SettingTheSameFilterKeepsTheSelection) {
    model.move(2);
    model.setFilter(ClipFilter::all);
    EXPECT_EQ(model.selectedIndex(), 2);
    model.setFilterIndex(99);
    EXPECT_EQ(model.filter(), ClipFilter::all);
}

TEST_F(PanelModelSelection, TypingSelectsTheFirstMatch) {
    model.move(4);
    model.searchTextEdited(QStringLiteral("text 3"));
    EXPECT_EQ(model.selectedID(), ids[2]);
    model.setQuery(QStringLiteral("text"));
    model.move(1);
    model.searchTextEdited(QStringLiteral("text"));
    EXPECT_EQ(model.selectedID(), ids[3]);
}

TEST_F(PanelModelSelection, SaysOnceThatTheSelectionChanged) {
    QSignalSpy spy(&model, &PanelModel::selectionChanged);
    model.move(1);
    EXPECT_EQ(spy.count(), 1);
    model.selectOnly(ids[1]);
    EXPECT_EQ(spy.count(), 1);
    model.click(ids[3], Modifier::shift);
    EXPECT_EQ(spy.count(), 2);
}

} // namespace vellumry
