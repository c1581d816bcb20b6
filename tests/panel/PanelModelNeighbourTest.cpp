// SPDX-License-Identifier: GPL-3.0-or-later
#include "panel/PanelModelWorld.h"

using namespace vellumry;

namespace {

/// What becomes of the selection when its clips go while the panel is up.
class PanelModelNeighbour : public PanelModelWorld {};

} // namespace

TEST_F(PanelModelNeighbour, AClipThatGoesWhileThePanelIsUpLeavesTheSelectionToTheNextOne) {
    const auto ids = addTexts(4);
    model.prepareForShow();
    model.setPresented(true);
    model.selectOnly(ids[1]);
    awaited(store.remove({ids[1]}, false));
    EXPECT_EQ(model.selectedID(), ids[2]);
    EXPECT_EQ(model.anchorID(), ids[2]);
}

TEST_F(PanelModelNeighbour, TheLastClipThatGoesLeavesTheSelectionToTheOneBefore) {
    const auto ids = addTexts(3);
    model.prepareForShow();
    model.setPresented(true);
    model.selectOnly(ids[2]);
    awaited(store.remove({ids[2], ids[1]}, false));
    EXPECT_EQ(model.selectedID(), ids[0]);
    awaited(store.remove({ids[0]}, false));
    EXPECT_EQ(model.selectedID(), std::nullopt);
}

TEST_F(PanelModelNeighbour, AClipUnpinnedUnderPinnedLeavesTheSelectionToItsNeighbour) {
    const auto ids = addTexts(3);
    pin(ids[0]);
    pin(ids[1]);
    model.prepareForShow();
    model.setPresented(true);
    model.setFilter(ClipFilter::pinned);
    model.selectOnly(ids[0]);
    model.togglePin();
    EXPECT_EQ(model.selectedID(), ids[1]);
    EXPECT_NE(model.currentClip(), nullptr);
}

TEST_F(PanelModelNeighbour, OfSeveralThoseThatStaySelectedAreThoseThatAreLeft) {
    const auto ids = addTexts(4);
    model.prepareForShow();
    model.setPresented(true);
    model.selectOnly(ids[0]);
    model.extendSelection(ids[2]);
    awaited(store.remove({ids[2]}, false));
    EXPECT_EQ(model.selectedIDs(), (QSet<QUuid>{ids[0], ids[1]}));
    EXPECT_EQ(model.selectedID(), ids[0]);
    awaited(store.remove({ids[0]}, false));
    EXPECT_TRUE(model.selectedIDs().isEmpty());
    EXPECT_EQ(model.selectedID(), ids[1]);
}
