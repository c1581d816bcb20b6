// SPDX-License-Identifier: GPL-3.0-or-later
#include "panel/PanelSelection.h"

#include <algorithm>
#include <gtest/gtest.h>

using namespace vellumry;

namespace {

using Ids = QSet<QUuid>;

/// Five rows, numbered from 0.
class PanelSelectionOfRows : public testing::Test {
protected:
    PanelSelectionOfRows() {
        for (int number = 0; number < 5; ++number) {
            auto clip = std::make_shared<Clip>();
            clip->id = QUuid::createUuid();
            clips.push_back(clip);
        }
        all = clips;
    }

    /// As the history does: it knows clips that are not listed, too.
    ClipRef find(const QUuid& id) const {
        const auto found = std::ranges::find(all, id, [](const ClipRef& clip) { return clip->id; });
        return found == all.end() ? nullptr : *found;
    }
    PanelRows rows() const {
        return {clips, [this](const QUuid& id) { return find(id); }};
    }
    QUuid id(int number) const { return all[std::size_t(number)]->id; }
    void unlist(int number) {
        std::erase_if(clips, [&](const ClipRef& clip) { return clip->id == id(number); });
    }

    std::vector<ClipRef> all;
    std::vector<ClipRef> clips;
};

} // namespace

TEST_F(PanelSelectionOfRows, NothingIsSelectedAtFirst) {
    const PanelSelection none;
    EXPECT_EQ(none.primary(), std::nullopt);
    EXPECT_EQ(none.count(), 0);
    EXPECT_TRUE(none.clipsOf(rows()).empty());
    EXPECT_FALSE(none.contains(id(0)));
}

TEST_F(PanelSelectionOfRows, MovingStopsAtBothEnds) {
    EXPECT_EQ(PanelSelection(id(1)).moved(-8, rows()).primary(), id(0));
    EXPECT_EQ(PanelSelection(id(1)).moved(8, rows()).primary(), id(4));
    EXPECT_EQ(PanelSelection().moved(1, rows()).primary(), id(0));
    clips.clear();
    EXPECT_EQ(PanelSelection(id(1)).moved(1, rows()).primary(), id(1));
}

TEST_F(PanelSelectionOfRows, ARangeGrowsAndShrinksAroundItsAnchor) {
    auto selection = PanelSelection(id(2)).extended(1, rows()).extended(1, rows());
    EXPECT_EQ(selection.several(), (Ids{id(2), id(3), id(4)}));
    EXPECT_EQ(selection.primary(), id(4));
    EXPECT_EQ(selection.anchor(), id(2));
    selection = selection.extended(-1, rows()).extended(-1, rows());
    EXPECT_TRUE(selection.several().isEmpty());
    EXPECT_EQ(selection.primary(), id(2));
    EXPECT_EQ(selection.extended(-1, rows()).several(), (Ids{id(1), id(2)}));
}

TEST_F(PanelSelectionOfRows, ARangeFromARowThatIsNoLongerListedIsTheRowAlone) {
    const PanelSelection selection(id(1));
    unlist(1);
    EXPECT_EQ(selection.extendedTo(id(3), rows()).primary(), id(3));
    EXPECT_FALSE(selection.extendedTo(id(3), rows()).isSeveral());
}

TEST_F(PanelSelectionOfRows, ToggledRowsAreASetOfAtLeastTwo) {
    auto selection = PanelSelection(id(0)).toggled(id(3), rows());
    EXPECT_EQ(selection.several(), (Ids{id(0), id(3)}));
    EXPECT_EQ(selection.primary(), id(3));
    selection = selection.toggled(id(3), rows());
    EXPECT_TRUE(selection.several().isEmpty());
    EXPECT_EQ(selection.primary(), id(0));
    selection = selection.toggled(id(0), rows());
    EXPECT_EQ(selection.primary(), std::nullopt);
    EXPECT_EQ(selection.anchor(), id(0));
}

TEST_F(PanelSelectionOfRows, TheClipsComeInTheOrderOfTheRows) {
    const auto selection = PanelSelection(id(4)).toggled(id(0), rows()).toggled(id(2), rows());
    EXPECT_EQ(selection.clipsOf(rows()), (std::vector<ClipRef>{all[0], all[2], all[4]}));
    unlist(2);
    EXPECT_EQ(selection.clipsOf(rows()), (std::vector<ClipRef>{all[0], all[4]}));
}

TEST_F(PanelSelectionOfRows, ARowThatWentLeavesTheSelectionToTheNextElseToTheOneBefore) {
    const auto before = clips;
    unlist(2);
    EXPECT_EQ(PanelSelection(id(2)).following(before, rows()).primary(), id(3));
    unlist(3);
    unlist(4);
    EXPECT_EQ(PanelSelection(id(4)).following(before, rows()).primary(), id(1));
    clips.clear();
    EXPECT_EQ(PanelSelection(id(4)).following(before, rows()).primary(), std::nullopt);
}

TEST_F(PanelSelectionOfRows, ASelectionThatIsStillListedFollowsUnchanged) {
    const auto selection = PanelSelection(id(1)).extended(1, rows());
    const auto before = clips;
    unlist(4);
    EXPECT_TRUE(selection.following(before, rows()).selectsAs(selection));
    EXPECT_EQ(selection.following(before, rows()).anchor(), id(1));
}

TEST_F(PanelSelectionOfRows, OfSeveralRowsThoseThatAreLeftStaySelected) {
    const auto selection = PanelSelection(id(0)).extendedTo(id(3), rows());
    const auto before = clips;
    unlist(3); // the primary one
    const auto left = selection.following(before, rows());
    EXPECT_EQ(left.several(), (Ids{id(0), id(1), id(2)}));
    EXPECT_EQ(left.primary(), id(0));
    EXPECT_EQ(left.anchor(), id(0));
}

TEST_F(PanelSelectionOfRows, BehindADeletionTheNextRowThatStaysIsSelected) {
    EXPECT_EQ(PanelSelection::withoutRows({all[1], all[2]}, rows()).primary(), id(3));
    EXPECT_EQ(PanelSelection::withoutRows({all[1], all[4]}, rows()).primary(), id(3));
    EXPECT_EQ(PanelSelection::withoutRows(clips, rows()).primary(), std::nullopt);
}

TEST_F(PanelSelectionOfRows, OnlyListedRowsOfThoseNamedAreSelected) {
    unlist(1);
    EXPECT_FALSE(PanelSelection::of({id(1)}, rows()));
    const auto selection = PanelSelection::of({id(1), id(2), id(4)}, rows());
    ASSERT_TRUE(selection);
    EXPECT_EQ(selection->several(), (Ids{id(2), id(4)}));
    EXPECT_EQ(selection->primary(), id(2));
}
