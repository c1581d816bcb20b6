// SPDX-License-Identifier: GPL-3.0-or-later
#include "PanelModelWorld.h"

#include <QSignalSpy>

namespace vellumry {

namespace {

class PanelModelShow : public PanelModelWorld {};

} // namespace

TEST_F(PanelModelShow, StartsOnTheNewestUnpinnedClip) {
    const auto ids = addTexts(3);
    pin(ids[0]);
    model.prepareForShow();
    EXPECT_EQ(model.selectedID(), ids[1]);
    EXPECT_EQ(model.anchorID(), ids[1]);
}

TEST_F(PanelModelShow, StartsOnTheFirstPinWhenAllArePinned) {
    const auto ids = addTexts(2);
    pin(ids[1]);
    pin(ids[0]);
    model.prepareForShow();
    EXPECT_EQ(model.selectedID(), ids[1]);
}

TEST_F(PanelModelShow, StartsOnNothingInAnEmptyHistory) {
    model.prepareForShow();
    EXPECT_EQ(model.selectedID(), std::nullopt);
}

TEST_F(PanelModelShow, ForgetsWhatTheLastUseLeft) {
    const auto ids = addTexts(3);
    model.setFilter(ClipFilter::text);
    model.setQuery(QStringLiteral("text"));
    model.selectOnly(ids[0]);
    model.toggleTransforms();
    model.extend(1);
    target.trusted = false;
    const auto token = model.focusToken();

    model.prepareForShow();
    EXPECT_EQ(model.query(), QString());
    EXPECT_EQ(model.filter(), ClipFilter::all);
    EXPECT_TRUE(model.selectedIDs().isEmpty());
    EXPECT_EQ(model.transformClipID(), std::nullopt);
    EXPECT_FALSE(model.hasAccessibility());
    EXPECT_EQ(model.focusToken(), token + 1);
}

TEST_F(PanelModelShow, ReadsWhetherKeysMayBePressedAtEachShow) {
    EXPECT_TRUE(model.hasAccessibility());
    target.trusted = false;
    EXPECT_TRUE(model.hasAccessibility());
    QSignalSpy spy(&model, &PanelModel::hasAccessibilityChanged);
    model.prepareForShow();
    model.prepareForShow();
    EXPECT_FALSE(model.hasAccessibility());
    EXPECT_EQ(spy.count(), 1);
}

TEST_F(PanelModelShow, TodayBecomesYesterdayWhenMidnightPassedWhileClosed) {
    now = 86'400.0 * 20'000 + 86'000;
    addText("late");
    model.prepareForShow();
    EXPECT_EQ(sectionTitles(), QStringList{QStringLiteral("Today")});
    QSignalSpy spy(&model, &PanelModel::sectionsChanged);
    model.prepareForShow();
    EXPECT_EQ(spy.count(), 0);
    now += 1000;
    model.prepareForShow();
    EXPECT_EQ(spy.count(), 1);
    EXPECT_EQ(sectionTitles(), QStringList{QStringLiteral("Yesterday")});
}

TEST_F(PanelModelShow, TheDayFollowsTheUserToAnotherTimeZone) {
    now = 86'400.0 * 20'000 + 3600 * 14;
    addText("noon");
    now += 3600 * 2;
    addText("afternoon");
    model.prepareForShow();
    EXPECT_EQ(sectionTitles(), QStringList{QStringLiteral("Today")});
    zone = QTimeZone("Asia/Tokyo");
    model.prepareForShow();
    EXPECT_EQ(sectionTitles(), (QStringList{QStringLiteral("Today"), QStringLiteral("Yesterday")}));
}

TEST_F(PanelModelShow, LooksWhereTheFilesAre) {
    const auto clip = add(drafts::files({QStringLiteral("/a"), QStringLiteral("/b")}));
    const auto other = add(drafts::files({QStringLiteral("/c")}));
    addText("no file");
    fileStatuses = {{QStringLiteral("/b"), FileStatus::missing()},
                    {QStringLiteral("/c"), FileStatus::inTrash(QStringLiteral("/trash/c"))}};
    QSignalSpy spy(&model, &PanelModel::fileStatusesChanged);
    model.prepareForShow();
    const PanelModel::FileStatuses expected{
        {clip->id, {FileStatus::available(QStringLiteral("/a")), FileStatus::missing()}},
        {other->id, {FileStatus::inTrash(QStringLiteral("/trash/c"))}}};
    EXPECT_EQ(model.fileStatuses(), expected);
    EXPECT_EQ(spy.count(), 1);

    awaited(store.remove({clip->id, other->id}, false));
    model.prepareForShow();
    EXPECT_TRUE(model.fileStatuses().isEmpty());
    EXPECT_EQ(spy.count(), 2);
}

TEST_F(PanelModelShow, DoesNotWaitForTheDiskAndTakesTheLatestLookOnly) {
    const auto clip = add(drafts::files({QStringLiteral("/a")}));
    holdsFiles = true;
    model.prepareForShow();
    EXPECT_EQ(model.selectedID(), clip->id);
    EXPECT_TRUE(model.fileStatuses().isEmpty());
    const auto first = std::exchange(sleepers, {});

    model.prepareForShow();
    fileStatuses[QStringLiteral("/a")] = FileStatus::missing();
    wakeSleepers();
    EXPECT_EQ(model.fileStatuses().value(clip->id), std::vector{FileStatus::missing()});
    fileStatuses[QStringLiteral("/a")] = FileStatus::available(QStringLiteral("/a"));
    sleepers = first;
    wakeSleepers();
    EXPECT_EQ(model.fileStatuses().value(clip->id), std::vector{FileStatus::missing()});
}

TEST_F(PanelModelShow, KeepsWhatIsKnownWhenTheDiskDoesNotAnswer) {
    const auto clip = add(drafts::files({QStringLiteral("/a")}));
    fileStatuses[QStringLiteral("/a")] = FileStatus::missing();
    model.prepareForShow();
    diskHangs = true;
    model.prepareForShow();
    EXPECT_EQ(model.fileStatuses().value(clip->id), std::vector{FileStatus::missing()});
}

TEST_F(PanelModelShow, ALookAtFilesMayEndAfterTheModel) {
    add(drafts::files({QStringLiteral("/a")}));
    holdsFiles = true;
    model.prepareForShow();
    owned.reset();
    wakeSleepers();
    EXPECT_TRUE(sleepers.empty());
}

} // namespace vellumry
