// SPDX-License-Identifier: GPL-3.0-or-later
#include "foundation/Localisation.h"
#include "panel/PreviewWindowWorld.h"

#include <QTranslator>
#include <string_view>

using namespace vellumry;

namespace {

using PreviewButtonsViewTest = PreviewWindowWorld;

/// A language with a long word for one of the buttons.
class LongFileNames : public QTranslator {
public:
    [[nodiscard]] static QString words() { return QString(25, u'W'); }
    [[nodiscard]] bool isEmpty() const override { return false; }
    [[nodiscard]] QString translate(const char*, const char* key, const char*, int) const override {
        return std::string_view(key) == "Paste file name" ? words() : QString();
    }
};

} // namespace

TEST_F(PreviewButtonsViewTest, PasteClosesThePanelAndPastes) {
    addText("words");
    open();
    press(localised("Paste"));
    EXPECT_FALSE(panel.isVisible());
    EXPECT_EQ(pastedText(), QStringLiteral("words"));
    EXPECT_EQ(pastedCount, 1);
}

TEST_F(PreviewButtonsViewTest, PlainTextLeavesTheStylesOut) {
    ClipDraft draft = drafts::text(QStringLiteral("styled"));
    draft.kind = ClipKind::richText;
    draft.payload.items.front().representations.emplace(QStringLiteral("public.rtf"), QByteArray("{\\rtf1 styled}"));
    add(std::move(draft));
    open();
    press(localised("Plain text"));
    EXPECT_EQ(pastedText(), QStringLiteral("styled"));
    EXPECT_FALSE(pasteboard.items().front().representations.contains(QStringLiteral("public.rtf")));
}

TEST_F(PreviewButtonsViewTest, PinPinsAndTurnsIntoItsReverse) {
    const ClipRef clip = addText("words");
    open();
    press(localised("Pin (⌘P)"));
    EXPECT_TRUE(store.find(clip->id)->isPinned);
    press(localised("Unpin (⌘P)"));
    EXPECT_FALSE(store.find(clip->id)->isPinned);
}

TEST_F(PreviewButtonsViewTest, DeleteDeletesAndShowsTheNeighbour) {
    addText("older");
    addText("newer");
    open();
    press(localised("Delete (⌘⌫)"));
    layOut();
    EXPECT_EQ(store.clips().size(), 1U);
    EXPECT_TRUE(shown().contains(QStringLiteral("older")));
}

TEST_F(PreviewButtonsViewTest, FileNamesArePasted) {
    add(drafts::files({QStringLiteral("/a/one.txt"), QStringLiteral("/a/two.txt")}));
    open();
    press(localised("Paste file name"));
    EXPECT_EQ(pastedText(), QStringLiteral("one.txt\ntwo.txt"));
}

TEST_F(PreviewButtonsViewTest, WhatHasNoRoomInTheLineIsASymbolThatTellsItsWords) {
    add(drafts::files({QStringLiteral("/a/one.txt")}));
    LongFileNames words; // taken out again where it ends
    QCoreApplication::installTranslator(&words);
    open();
    layOut();
    const auto top = [this](const QString& name) {
        const QQuickItem* button = node(QAccessible::Button, name);
        return button ? button->mapToScene(QPointF()).y() : -1;
    };
    EXPECT_EQ(top(localised("Delete (⌘⌫)")), top(localised("Paste")));
    EXPECT_FALSE(shown().contains(LongFileNames::words()));
    EXPECT_TRUE(shown().contains(localised("Paste"))) << "what matters most stays";
    press(LongFileNames::words());
    EXPECT_EQ(pastedText(), QStringLiteral("one.txt"));
}

TEST_F(PreviewButtonsViewTest, FilesAreShownInTheFileManager) {
    QStringList paths;
    panel.model().onShowFiles = [&](const QStringList& files) { paths = files; };
    add(drafts::files({QStringLiteral("/a/one.txt")}));
    open();
    press(localised("Show in Finder"));
    EXPECT_EQ(paths, QStringList(QStringLiteral("/a/one.txt")));
    EXPECT_FALSE(panel.isVisible());
}

TEST_F(PreviewButtonsViewTest, ALinkIsOpened) {
    QString opened;
    panel.model().onOpenLink = [&](const QString& address) { opened = address; };
    addOfKind(ClipKind::link, "https://example.org/");
    open();
    press(localised("Open Link"));
    EXPECT_EQ(opened, QStringLiteral("https://example.org/"));
}

TEST_F(PreviewButtonsViewTest, TheTextInAnImageIsPasted) {
    const ClipRef clip = add(drafts::image(QByteArray("png")));
    awaited(store.setImageText(clip->id, QStringLiteral("the words"), true));
    open();
    press(localised("Pastes the text in this image"));
    EXPECT_EQ(pastedText(), QStringLiteral("the words"));
}

TEST_F(PreviewButtonsViewTest, TransformsShowWhatTheyWouldPasteAndPasteIt) {
    addText("Some Words");
    open();
    press(localised("Transform (⌘T)"));
    layOut();
    EXPECT_TRUE(shown().contains(QStringLiteral("some words")));
    press(Qt::Key_Down);
    layOut();
    EXPECT_TRUE(shown().contains(QStringLiteral("SOME WORDS")));
    EXPECT_FALSE(shown().contains(localised("Paste")));
    press(localised("Back"));
    layOut();
    EXPECT_TRUE(shown().contains(QStringLiteral("Some Words")));
    press(localised("Transform (⌘T)"));
    press(Qt::Key_Down);
    press(localised("Paste transformed"));
    EXPECT_EQ(pastedText(), QStringLiteral("SOME WORDS"));
    EXPECT_FALSE(panel.isVisible());
}

TEST_F(PreviewButtonsViewTest, ALongTextIsTransformedToo) {
    add(drafts::text(QStringLiteral("Word\n").repeated(20'000)));
    open();
    press(localised("Transform (⌘T)"));
    ASSERT_TRUE(eventually([this] {
        return preview()
            .lines()
            ->data(preview().lines()->index(0, 0), Qt::DisplayRole)
            .toString()
            .startsWith(QStringLiteral("word\nword"));
    }));
}

TEST_F(PreviewButtonsViewTest, SeveralAreMergedAndPasted) {
    addText("first");
    addText("second");
    open();
    press(Qt::Key_Down, Qt::ShiftModifier);
    press(localised("Merge & Paste"));
    EXPECT_EQ(pastedText(), QStringLiteral("first\nsecond"));
}

TEST_F(PreviewButtonsViewTest, SeveralArePinnedDeletedAndHandedToTheStackTogether) {
    std::vector<ClipRef> handed;
    panel.model().onToggleStack = [&](const std::vector<ClipRef>& clips) { handed = clips; };
    addText("first");
    addText("second");
    open();
    press(Qt::Key_Down, Qt::ShiftModifier);
    press(localised("Paste one by one"));
    ASSERT_EQ(handed.size(), 2U);
    EXPECT_EQ(handed.front()->title, QStringLiteral("first"));
    press(localised("Pin all %n", 2));
    EXPECT_EQ(store.pinnedClips().size(), 2U);
    press(localised("Delete %n", 2));
    EXPECT_TRUE(store.clips().empty());
}

TEST_F(PreviewButtonsViewTest, APressLeavesTheKeyboardInTheSearchField) {
    addText("words");
    open();
    press(localised("Pin (⌘P)"));
    press(Qt::Key_W);
    EXPECT_EQ(panel.model().query(), QStringLiteral("w"));
}

TEST_F(PreviewButtonsViewTest, FromRightToLeftTheirWordsAreWhole) {
    QGuiApplication::setLayoutDirection(Qt::RightToLeft);
    addText("words");
    open();
    layOut();
    QGuiApplication::setLayoutDirection(Qt::LeftToRight);
    QQuickItem* button = node(QAccessible::Button, localised("Paste"));
    ASSERT_TRUE(button);
    const auto isLabel = [](const QQuickItem* item) { return item->inherits("QQuickText"); };
    const auto labels = button->childItems();
    const auto label = std::ranges::find_if(labels, isLabel);
    ASSERT_NE(label, labels.end());
    EXPECT_FALSE((*label)->property("truncated").toBool());
}

TEST_F(PreviewButtonsViewTest, AScreenReaderFindsAndPressesThem) {
    const ClipRef clip = addText("words");
    open();
    layOut();
    QAccessibleInterface* group = QAccessible::queryAccessibleInterface(pane());
    ASSERT_TRUE(group);
    EXPECT_EQ(group->role(), QAccessible::Grouping);
    EXPECT_EQ(group->text(QAccessible::Name), localised("Preview"));
    EXPECT_TRUE(node(QAccessible::StaticText, QStringLiteral("words")));
    EXPECT_TRUE(node(QAccessible::Button, localised("Transform (⌘T)")));
    QQuickItem* pin = node(QAccessible::Button, localised("Pin (⌘P)"));
    ASSERT_TRUE(pin);
    QAccessible::queryAccessibleInterface(pin)->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_TRUE(store.find(clip->id)->isPinned);
}
