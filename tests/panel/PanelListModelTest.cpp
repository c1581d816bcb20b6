// SPDX-License-Identifier: GPL-3.0-or-later
#include "panel/PanelListModel.h"

#include "foundation/Localisation.h"
#include "support/PasteWorld.h"

#include <QAbstractItemModelTester>
#include <QSignalSpy>
#include <gtest/gtest.h>

using namespace vellumry;

namespace {

class PanelListModelTest : public ::testing::Test, public PasteWorld {
protected:
    ClipRef add(const ClipDraft& draft, Date date) { return awaited(store.add(draft, date)); }
    QStringList column(PanelListModel::Role role) const {
        QStringList values;
        for (int row = 0; row < rows.rowCount(); ++row)
            values.append(rows.data(rows.index(row), role).toString());
        return values;
    }

    PanelModelCalendar calendar{[] { return 86'400.0 * 20'000 + 40'000; }, [] { return QTimeZone::utc(); },
                                [] { return QLocale::c(); }};
    PanelModel model{store, *engine, calendar};
    PanelListModel rows{model, QStringLiteral("Super+Alt+%1")};
    QAbstractItemModelTester tester{&rows, QAbstractItemModelTester::FailureReportingMode::Fatal};
    Date today = 86'400.0 * 20'000 + 100;
};

} // namespace

TEST_F(PanelListModelTest, AHeaderStandsAboveItsClips) {
    add(drafts::text(QStringLiteral("first")), today);
    add(drafts::text(QStringLiteral("second")), today + 1);
    EXPECT_EQ(column(PanelListModel::TitleRole),
              (QStringList{QString(), QStringLiteral("second"), QStringLiteral("first")}));
    EXPECT_EQ(rows.data(rows.index(0), PanelListModel::HeaderRole).toString(), QStringLiteral("Today"));
    EXPECT_TRUE(rows.data(rows.index(0), PanelListModel::IsHeaderRole).toBool());
    EXPECT_FALSE(rows.data(rows.index(1), PanelListModel::IsHeaderRole).toBool());
}

TEST_F(PanelListModelTest, RowsCarryTheirNumbers) {
    add(drafts::text(QStringLiteral("first")), today);
    add(drafts::secret(QStringLiteral("hidden words")), today + 1);
    add(drafts::text(QStringLiteral("third")), today + 2);
    EXPECT_EQ(column(PanelListModel::NumberRole),
              (QStringList{QString(), QStringLiteral("1"), QString(), QStringLiteral("2")}));
}

TEST_F(PanelListModelTest, APinSaysWhichKeysPasteItAnywhere) {
    const auto clip = add(drafts::text(QStringLiteral("first")), today);
    add(drafts::text(QStringLiteral("second")), today + 1);
    awaited(store.setPinned(clip->id, true, today + 2));
    const int row = int(column(PanelListModel::TitleRole).indexOf(QStringLiteral("first")));
    EXPECT_EQ(column(PanelListModel::PinHintRole)[row], QStringLiteral("Super+Alt+1 anywhere to paste this"));
    EXPECT_EQ(column(PanelListModel::PinHintRole).count(QString()), rows.rowCount() - 1);
    model.setAvailablePinnedNumbers({2});
    EXPECT_EQ(column(PanelListModel::PinHintRole)[row], QString());
}

TEST_F(PanelListModelTest, SaysWhatBecameOfAClipsFiles) {
    const QString here = QStringLiteral("/home/u/here.txt");
    const QString other = QStringLiteral("/home/u/other.txt");
    add(drafts::files({here, other}), today);
    const auto pill = [&](const FileStatus& status) {
        fileStatuses[other] = status;
        model.prepareForShow();
        return rows.data(rows.index(1), PanelListModel::PillRole).toString();
    };
    EXPECT_EQ(pill(FileStatus::missing()), QStringLiteral("Deleted"));
    EXPECT_EQ(pill(FileStatus::inTrash(QStringLiteral("/trash/other.txt"))), QStringLiteral("In Trash"));
    EXPECT_EQ(pill(FileStatus::volumeUnavailable(QStringLiteral("Disk"))), QStringLiteral("Offline"));
    EXPECT_EQ(pill(FileStatus::moved(QStringLiteral("/home/u/elsewhere.txt"))), QString());
    EXPECT_EQ(pill(FileStatus::available(other)), QString());
}

TEST_F(PanelListModelTest, NoRoleOfASensitiveClipHoldsItsText) {
    add(drafts::secret(QStringLiteral("hidden words")), today);
    for (int role = PanelListModel::HeaderRole; role <= PanelListModel::IsSensitiveRole; ++role)
        EXPECT_FALSE(rows.data(rows.index(1), role).toString().contains(QStringLiteral("hidden words"))) << role;
    EXPECT_TRUE(rows.data(rows.index(1), PanelListModel::IsSensitiveRole).toBool());
}

TEST_F(PanelListModelTest, AFilterRebindsRowsAndRemovesTheRestAtTheEnd) {
    add(drafts::text(QStringLiteral("apple")), today);
    add(drafts::text(QStringLiteral("pear")), today + 1);
    add(drafts::text(QStringLiteral("apple pie")), today + 2);
    QSignalSpy resets(&rows, &QAbstractItemModel::modelReset);
    QSignalSpy removals(&rows, &QAbstractItemModel::rowsRemoved);
    model.setQuery(QStringLiteral("apple"));
    EXPECT_EQ(column(PanelListModel::TitleRole),
              (QStringList{QString(), QStringLiteral("apple pie"), QStringLiteral("apple")}));
    EXPECT_EQ(resets.count(), 0);
    EXPECT_EQ(removals.count(), 1);
}

TEST_F(PanelListModelTest, WhatComesAndGoesDoesSoInItsPlace) {
    add(drafts::text(QStringLiteral("day before")), today - 2 * 86'400.0);
    const ClipRef second = add(drafts::text(QStringLiteral("second")), today + 1);
    add(drafts::text(QStringLiteral("third")), today + 2);
    QSignalSpy removals(&rows, &QAbstractItemModel::rowsRemoved);
    QSignalSpy insertions(&rows, &QAbstractItemModel::rowsInserted);
    const auto span = [](const QSignalSpy& spy) {
        return std::pair(spy.last().at(1).toInt(), spy.last().at(2).toInt());
    };

    awaited(store.remove({second->id}, false));
    ASSERT_EQ(removals.count(), 1);
    EXPECT_EQ(span(removals), std::pair(2, 2));

    add(drafts::text(QStringLiteral("fourth")), today + 3);
    ASSERT_EQ(insertions.count(), 1);
    EXPECT_EQ(span(insertions), std::pair(1, 1));
    EXPECT_EQ(column(PanelListModel::TitleRole),
              (QStringList{QString(), QStringLiteral("fourth"), QStringLiteral("third"), QString(),
                           QStringLiteral("day before")}));
    EXPECT_EQ(column(PanelListModel::NumberRole),
              (QStringList{QString(), QStringLiteral("1"), QStringLiteral("2"), QString(), QStringLiteral("3")}));

    // The last clip of a day takes the day along.
    awaited(store.remove({store.clips().back()->id}, false));
    ASSERT_EQ(removals.count(), 2);
    EXPECT_EQ(span(removals), std::pair(3, 4));
    EXPECT_EQ(insertions.count(), 1);
}

TEST_F(PanelListModelTest, ASearchWithoutResultsHasNoRows) {
    add(drafts::text(QStringLiteral("apple")), today);
    model.setQuery(QStringLiteral("zzz"));
    EXPECT_EQ(rows.rowCount(), 0);
    EXPECT_EQ(rows.primaryRow(), -1);
}

TEST_F(PanelListModelTest, TheSelectionMovesWithoutTouchingTheRows) {
    add(drafts::text(QStringLiteral("first")), today);
    add(drafts::text(QStringLiteral("second")), today + 1);
    model.prepareForShow();
    EXPECT_EQ(rows.primaryRow(), 1);
    QSignalSpy changes(&rows, &QAbstractItemModel::dataChanged);
    model.move(1);
    EXPECT_EQ(rows.primaryRow(), 2);
    EXPECT_TRUE(rows.data(rows.index(2), PanelListModel::IsSelectedRole).toBool());
    EXPECT_FALSE(rows.data(rows.index(1), PanelListModel::IsSelectedRole).toBool());
    ASSERT_GE(changes.count(), 1);
    EXPECT_EQ(changes.last().at(2).value<QList<int>>(), QList<int>{PanelListModel::IsSelectedRole});
}

TEST_F(PanelListModelTest, ThePrimaryRowCountsTheHeadersAboveIt) {
    add(drafts::text(QStringLiteral("day before")), today - 2 * 86'400.0);
    add(drafts::text(QStringLiteral("yesterday")), today - 86'400.0);
    add(drafts::text(QStringLiteral("today")), today);
    model.prepareForShow();
    for (const int row : {1, 3, 5}) {
        EXPECT_EQ(rows.primaryRow(), row);
        EXPECT_EQ(rows.clipAt(row)->id, model.selectedID());
        model.move(1);
    }
}

TEST_F(PanelListModelTest, APictureIsNamedByItsClip) {
    const ClipRef clip = add(drafts::image(QByteArray("png")), today);
    EXPECT_EQ(rows.data(rows.index(1), PanelListModel::ThumbnailRole).toString(),
              QStringLiteral("image://thumbnail/") + clip->id.toString(QUuid::WithoutBraces));
}

TEST_F(PanelListModelTest, WhileDormantItFollowsNoCopyAndCatchesUpWhenWoken) {
    add(drafts::text(QStringLiteral("first")), today);
    rows.setDormant(true);
    QSignalSpy changes(&rows, &QAbstractItemModel::dataChanged);
    QSignalSpy behind(&rows, &PanelListModel::fellBehind);
    add(drafts::text(QStringLiteral("second")), today + 1);
    add(drafts::text(QStringLiteral("third")), today + 2);
    model.prepareForShow();
    EXPECT_EQ(rows.rowCount(), 2);
    EXPECT_EQ(changes.count(), 0);
    EXPECT_EQ(behind.count(), 0);
    rows.setDormant(false);
    EXPECT_EQ(changes.count(), 1);
    EXPECT_EQ(column(PanelListModel::TitleRole),
              (QStringList{QString(), QStringLiteral("third"), QStringLiteral("second"), QStringLiteral("first")}));
    EXPECT_TRUE(rows.data(rows.index(1), PanelListModel::IsSelectedRole).toBool());
}

TEST_F(PanelListModelTest, CatchingUpWhileDormantLetsGoOfWhatWasDeleted) {
    std::weak_ptr<const Clip> clip = add(drafts::text(QStringLiteral("gone")), today);
    rows.setDormant(true);
    awaited(store.remove({clip.lock()->id}, false));
    EXPECT_FALSE(clip.expired());
    rows.catchUp();
    EXPECT_EQ(rows.rowCount(), 0);
}

TEST_F(PanelListModelTest, WhileDormantItTellsThatItHoldsWhatWasDeleted) {
    const ClipRef first = add(drafts::text(QStringLiteral("first")), today);
    const ClipRef second = add(drafts::text(QStringLiteral("second")), today + 1);
    rows.setDormant(true);
    QSignalSpy behind(&rows, &PanelListModel::fellBehind);
    awaited(store.remove({first->id}, false));
    EXPECT_EQ(behind.count(), 1);
    rows.catchUp();
    behind.clear();
    add(drafts::text(QStringLiteral("next")), today + 2);
    EXPECT_EQ(behind.count(), 0) << "it has let go of it";
    awaited(store.clearHistory(false));
    EXPECT_EQ(behind.count(), 1);
}

TEST_F(PanelListModelTest, WhileDormantItTellsOfASecretWhoseTimeIsOverButNotOfAClipThatMadeRoom) {
    store.setPolicy({std::nullopt, 1, 1'000'000});
    add(drafts::secret(QStringLiteral("secret words")), today);
    rows.setDormant(true);
    QSignalSpy behind(&rows, &PanelListModel::fellBehind);
    add(drafts::text(QStringLiteral("old")), today + 1);
    EXPECT_EQ(behind.count(), 1);
    rows.catchUp();
    add(drafts::text(QStringLiteral("new")), today + 2);
    ASSERT_EQ(store.clips().size(), 1u);
    EXPECT_EQ(behind.count(), 1);
}

TEST_F(PanelListModelTest, WhileDormantItTellsOfASearchThatWasEnded) {
    add(drafts::text(QStringLiteral("pear")), today);
    model.setQuery(QStringLiteral("pe"));
    rows.setDormant(true);
    QSignalSpy behind(&rows, &PanelListModel::fellBehind);
    model.setQuery({});
    EXPECT_EQ(behind.count(), 1);
}

TEST_F(PanelListModelTest, AHitIsMarkedInTheTitle) {
    add(drafts::text(QStringLiteral("a <b> & pear")), today);
    model.setQuery(QStringLiteral("PE"));
    EXPECT_EQ(column(PanelListModel::MarkedTitleRole)[1], QStringLiteral("a &lt;b&gt; &amp; <b>pe</b>ar"));
}

TEST_F(PanelListModelTest, TheDescriptionTellsEverythingThatTheRowShows) {
    const auto clip = add(drafts::files({QStringLiteral("/home/u/a.txt")}), today);
    fileStatuses[QStringLiteral("/home/u/a.txt")] = FileStatus::inTrash(QStringLiteral("/trash/a.txt"));
    awaited(store.setPinned(clip->id, true, today + 2));
    add(drafts::text(QStringLiteral("second")), today + 1);
    model.prepareForShow();
    const QStringList told = column(PanelListModel::DescriptionRole);
    EXPECT_TRUE(told[1].contains(QStringLiteral("In Trash"))) << told[1].toStdString();
    EXPECT_TRUE(told[1].contains(QStringLiteral("Pinned")));
    EXPECT_TRUE(told[1].contains(QStringLiteral("Super+Alt+1 anywhere to paste this")));
    EXPECT_TRUE(told[3].endsWith(localised("⌘") + QLatin1Char('1'))) << told[3].toStdString();
}
