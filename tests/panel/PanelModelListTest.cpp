// SPDX-License-Identifier: GPL-3.0-or-later
#include "PanelModelWorld.h"

#include <QSignalSpy>

namespace vellumry {

namespace {

class PanelModelList : public PanelModelWorld {};

constexpr Date day = 86'400;

ClipDraft ofKind(ClipKind kind, const char* text) {
    auto draft = drafts::text(QString::fromUtf8(text));
    draft.kind = kind;
    return draft;
}

} // namespace

TEST_F(PanelModelList, PinsStandOnTopAndTheDaysBelow) {
    now = day * 20'000; // a Friday
    const auto old = addText("old");
    now = day * 20'007 + 100;
    addText("weekday");
    now = day * 20'012 + 100;
    const auto yesterday = addText("yesterday");
    addText("yesterday too");
    now = day * 20'013 + 100;
    addText("today");
    pin(old->id);
    pin(yesterday->id);

    EXPECT_EQ(sectionIDs(), (QStringList{QStringLiteral("pinned"), QStringLiteral("today"), QStringLiteral("yesterday"),
                                         QStringLiteral("day-%1").arg(86'400LL * 20'007)}));
    EXPECT_EQ(sectionTitles(), (QStringList{QStringLiteral("Pinned"), QStringLiteral("Today"),
                                            QStringLiteral("Yesterday"), QStringLiteral("Friday")}));
    EXPECT_EQ(titles(model.visibleClips()),
              (QStringList{QStringLiteral("old"), QStringLiteral("yesterday"), QStringLiteral("today"),
                           QStringLiteral("yesterday too"), QStringLiteral("weekday")}));
}

TEST_F(PanelModelList, AnEmptyHistoryHasNoSections) {
    EXPECT_TRUE(model.sections().empty());
}

TEST_F(PanelModelList, ASecondReadComputesNothing) {
    addTexts(3);
    const auto* sections = model.sections().data();
    const auto* clips = model.sections().front().clips.data();
    now += 1;
    EXPECT_EQ(model.sections().data(), sections);
    EXPECT_EQ(model.sections().front().clips.data(), clips);
    const auto* visible = model.visibleClips().data();
    EXPECT_EQ(model.visibleClips().data(), visible);
}

TEST_F(PanelModelList, EachPartOfTheKeyAsksForANewList) {
    addTexts(2);
    const auto isNewAfter = [&](const std::function<void()>& change) {
        const auto* before = model.sections().data();
        change();
        return model.sections().data() != before;
    };
    EXPECT_TRUE(isNewAfter([&] { addText("more"); }));
    EXPECT_TRUE(isNewAfter([&] { model.setQuery(QStringLiteral("t")); }));
    EXPECT_TRUE(isNewAfter([&] { model.setQuery(QStringLiteral("t ")); }));
    EXPECT_TRUE(isNewAfter([&] { model.setFilter(ClipFilter::text); }));
    EXPECT_TRUE(isNewAfter([&] { now += day; }));
    EXPECT_FALSE(isNewAfter([&] { model.setQuery(QStringLiteral("t ")); }));
}

TEST_F(PanelModelList, AQueryOfSpacesBehavesAsNoneButIsPartOfTheKey) {
    const auto ids = addTexts(2);
    pin(ids[1]);
    EXPECT_EQ(sectionIDs(), (QStringList{QStringLiteral("pinned"), QStringLiteral("today")}));
    const auto* before = model.sections().data();
    model.setQuery(QStringLiteral("  "));
    EXPECT_EQ(sectionIDs(), (QStringList{QStringLiteral("pinned"), QStringLiteral("today")}));
    EXPECT_NE(model.sections().data(), before);
}

TEST_F(PanelModelList, SearchResultsAreOneSection) {
    addText("apple");
    now += 3 * day;
    addText("apple pie");
    addText("other");
    model.setQuery(QStringLiteral(" APPLE"));
    EXPECT_EQ(sectionIDs(), QStringList{QStringLiteral("results")});
    EXPECT_EQ(sectionTitles(), QStringList{QStringLiteral("Results")});
    EXPECT_EQ(titles(model.visibleClips()), (QStringList{QStringLiteral("apple pie"), QStringLiteral("apple")}));
    model.setQuery(QStringLiteral("nowhere"));
    EXPECT_TRUE(model.sections().empty());
}

TEST_F(PanelModelList, ThePinnedFilterListsInPinOrderWithoutATitle) {
    const auto ids = addTexts(3);
    pin(ids[0]);
    pin(ids[2]);
    model.setFilter(ClipFilter::pinned);
    EXPECT_EQ(sectionIDs(), QStringList{QStringLiteral("results")});
    EXPECT_EQ(sectionTitles(), QStringList{QString()});
    EXPECT_EQ(titles(model.visibleClips()), (QStringList{QStringLiteral("text 3"), QStringLiteral("text 1")}));
    model.setQuery(QStringLiteral("text 1"));
    EXPECT_EQ(sectionTitles(), QStringList{QStringLiteral("Results")});
}

TEST_F(PanelModelList, ClipsOfOneDayShareASectionInTheUsersTimeZone) {
    zone = QTimeZone("Asia/Tokyo");
    now = day * 20'000 + 14 * 3600; // 23:00 in Tokyo
    addText("evening");
    now += 2 * 3600;
    addText("after midnight");
    EXPECT_EQ(sectionTitles(), (QStringList{QStringLiteral("Today"), QStringLiteral("Yesterday")}));
}

TEST_F(PanelModelList, NumbersSkipSensitiveClips) {
    for (int index = 1; index <= 11; ++index) {
        const auto text = QStringLiteral("clip %1").arg(index);
        add(index == 9 ? drafts::secret(text) : drafts::text(text));
    }
    const auto numbers = model.rowNumbers();
    const auto& clips = model.visibleClips();
    EXPECT_EQ(numbers.size(), 9);
    EXPECT_EQ(numbers.value(clips[0]->id), 1);
    EXPECT_FALSE(numbers.contains(clips[2]->id));
    EXPECT_EQ(numbers.value(clips[3]->id), 3);
    EXPECT_EQ(numbers.value(clips[9]->id), 9);
    EXPECT_FALSE(numbers.contains(clips[10]->id));
}

TEST_F(PanelModelList, NumbersStartUnderThePinsInThePlainListOnly) {
    const auto ids = addTexts(3);
    pin(ids[1]);
    EXPECT_EQ(model.rowNumbers(), (QHash<QUuid, int>{{ids[0], 1}, {ids[2], 2}}));
    model.setQuery(QStringLiteral("text"));
    EXPECT_EQ(model.rowNumbers(), (QHash<QUuid, int>{{ids[0], 1}, {ids[1], 2}, {ids[2], 3}}));
    model.setQuery({});
    model.setFilter(ClipFilter::pinned);
    EXPECT_EQ(model.rowNumbers(), (QHash<QUuid, int>{{ids[1], 1}}));
}

TEST_F(PanelModelList, NumbersSkipFilesThatAreOutOfReach) {
    const auto gone = add(drafts::files({QStringLiteral("/gone"), QStringLiteral("/stick/x")}));
    const auto half = add(drafts::files({QStringLiteral("/gone"), QStringLiteral("/here")}));
    fileStatuses = {{QStringLiteral("/gone"), FileStatus::missing()},
                    {QStringLiteral("/stick/x"), FileStatus::volumeUnavailable(QStringLiteral("stick"))}};
    EXPECT_EQ(model.rowNumbers().size(), 2);
    model.prepareForShow();
    EXPECT_EQ(model.rowNumbers(), (QHash<QUuid, int>{{half->id, 1}}));
    EXPECT_EQ(model.fileStatuses().value(gone->id).size(), 2u);
}

TEST_F(PanelModelList, PinNumbersFollowPinOrderAndTheKeysThatWork) {
    const auto ids = addTexts(11);
    for (const auto& id : ids)
        pin(id);
    model.setAvailablePinnedNumbers({1, 3, 9});
    EXPECT_EQ(model.pinNumbers(), (QHash<QUuid, int>{{ids[0], 1}, {ids[2], 3}, {ids[8], 9}}));
    model.setAvailablePinnedNumbers({});
    EXPECT_TRUE(model.pinNumbers().isEmpty());
}

TEST_F(PanelModelList, CountsEachFilter) {
    pin(addText("text")->id);
    add(ofKind(ClipKind::richText, "rich"));
    add(ofKind(ClipKind::link, "https://example.org"));
    add(ofKind(ClipKind::color, "#ABCDEF"));
    add(drafts::image("png"));
    add(drafts::files({QStringLiteral("/a.PNG"), QStringLiteral("/b.jpg")}));
    add(drafts::files({QStringLiteral("/a.png"), QStringLiteral("/b.txt")}));
    const std::array<qsizetype, 7> expected{7, 2, 1, 2, 2, 1, 1};
    for (const auto filter : allClipFilters)
        EXPECT_EQ(model.count(filter), expected[std::size_t(filter)]) << int(filter);
    addText("another");
    EXPECT_EQ(model.count(ClipFilter::text), 3);
}

TEST_F(PanelModelList, ShowsWhereAnImagesTextWasHit) {
    const auto image = add(drafts::image("png"));
    awaited(store.setImageText(image->id, QStringLiteral("an invoice of May"), true));
    model.setQuery(QStringLiteral("invoice"));
    EXPECT_EQ(titles(model.visibleClips()), QStringList{QStringLiteral("Image")});
    EXPECT_EQ(model.imageMatch(*model.visibleClips().front()), QStringLiteral("an invoice of May"));
    EXPECT_EQ(model.imageMatch(*addText("invoice")), std::nullopt);
}

TEST_F(PanelModelList, TellsItsViewsWhenTheListMayDiffer) {
    QSignalSpy spy(&model, &PanelModel::sectionsChanged);
    addText("one");
    EXPECT_GE(spy.count(), 1);
    spy.clear();
    model.setQuery(QStringLiteral("x"));
    EXPECT_EQ(spy.count(), 1);
    model.setQuery(QStringLiteral("x"));
    EXPECT_EQ(spy.count(), 1);
    model.setFilter(ClipFilter::links);
    EXPECT_EQ(spy.count(), 2);
}

} // namespace vellumry
