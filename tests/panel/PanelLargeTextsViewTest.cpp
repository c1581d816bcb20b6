// SPDX-License-Identifier: GPL-3.0-or-later
#include "foundation/Localisation.h"
#include "panel/PanelWindowWorld.h"

#include <QTranslator>
#include <algorithm>
#include <array>
#include <string_view>

using namespace vellumry;

namespace {

constexpr std::array<const char*, 7> filters{"All", "Text", "Links", "Images", "Files", "Colors", "Pinned"};

/// A language in which the filters have long names.
class LongFilters : public QTranslator {
public:
    [[nodiscard]] bool isEmpty() const override { return false; }
    [[nodiscard]] QString translate(const char*, const char* key, const char*, int) const override {
        const bool isFilter = std::ranges::find(filters, std::string_view(key), [](const char* name) {
                                  return std::string_view(name);
                              }) != filters.end();
        return isFilter ? QString(6, u'W') + QString::fromUtf8(key) : QString();
    }
};

class PanelLargeTextsViewTest : public PanelWindowWorld {
protected:
    /// On a small display, whose panel cannot grow as its texts do.
    void openWithTextsOf(double scale) {
        surface.screen->visible = QRect(0, 0, 1366, 738);
        views.setDesktopLook({.textScale = scale});
        addText("some words");
        addText("more words");
        open();
        (void)view()->grabWindow();
    }
    [[nodiscard]] QRectF placeOf(const QQuickItem* item) const {
        return item->mapRectToScene(QRectF(QPointF(), item->size()));
    }
    [[nodiscard]] QRectF chip(const char* filter) const {
        return placeOf(itemWithText(localised(filter))->parentItem());
    }
    void expectChipsInsideAndApart() const {
        double end = 0;
        for (const char* filter : filters) {
            EXPECT_GT(chip(filter).left(), end) << filter;
            end = chip(filter).right();
        }
        EXPECT_LE(end, view()->width());
    }
};

} // namespace

TEST_F(PanelLargeTextsViewTest, AllFiltersAreInSightAtThreeTimesTheSize) {
    openWithTextsOf(3);
    expectChipsInsideAndApart();
}

TEST_F(PanelLargeTextsViewTest, WhereNumbersHaveNoRoomTheChosenFilterKeepsItsOwn) {
    LongFilters words; // taken out again where it ends
    QCoreApplication::installTranslator(&words);
    addText("some words");
    open();
    (void)view()->grabWindow();
    expectChipsInsideAndApart();
    const auto numbers = [this] { return texts().count(QStringLiteral("1")); };
    const qsizetype ofAll = numbers(); // the row's own is among them
    QTest::mouseClick(view(), Qt::LeftButton, {}, chip("Links").center().toPoint());
    (void)view()->grabWindow();
    EXPECT_EQ(panel.model().filter(), ClipFilter::links);
    EXPECT_LT(numbers(), ofAll);
    expectChipsInsideAndApart();
}

TEST_F(PanelLargeTextsViewTest, TheTransformsStayBelowTheFiltersAndScrollToTheOneTheKeysStandOn) {
    openWithTextsOf(3);
    panel.model().toggleTransforms();
    for (const char* title : {"lowercase", "Remove Line Breaks"}) {
        (void)view()->grabWindow();
        const QQuickItem* const entry = itemWithText(localised(title));
        ASSERT_NE(entry, nullptr) << title;
        EXPECT_GT(placeOf(entry).top(), chip("All").bottom()) << title;
        const QQuickItem* const list = entry->parentItem()->parentItem()->parentItem()->parentItem();
        EXPECT_GE(placeOf(entry).top(), placeOf(list).top()) << title;
        EXPECT_LE(placeOf(entry).bottom(), placeOf(list).bottom()) << title;
        press(Qt::Key_End);
    }
}

TEST_F(PanelLargeTextsViewTest, WordsAboutAClipLeaveRoomForTheClip) {
    fileStatuses = {{QStringLiteral("/home/joan/gone.odt"), FileStatus::missing()}};
    add(drafts::files({QStringLiteral("/home/joan/gone.odt"), QStringLiteral("/home/joan/here.odt")}));
    openWithTextsOf(3);
    press(Qt::Key_End);
    (void)view()->grabWindow();
    const auto* note = view()->rootObject()->findChild<QQuickItem*>(QStringLiteral("note"));
    ASSERT_TRUE(note->isVisible());
    EXPECT_GT(placeOf(note).top(), chip("All").bottom());
}
