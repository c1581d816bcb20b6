// SPDX-License-Identifier: GPL-3.0-or-later
#include "PanelModelWorld.h"

#include "paste/Shortcut.h"

namespace vellumry {

namespace {

using Command = PanelModel::Command;

class PanelModelCommands : public PanelModelWorld {
protected:
    std::vector<QUuid> ids = addTexts(12);
    PanelModelCommands() { model.prepareForShow(); }

    bool press(KeyCode keyCode, Modifiers modifiers = Modifier::command, bool hasTextSelection = false) {
        return model.keyEquivalent(keyCode, modifiers, hasTextSelection);
    }
    void openTransforms() {
        model.toggleTransforms();
        ASSERT_TRUE(model.isTransformListOpen());
    }
};

} // namespace

TEST_F(PanelModelCommands, ArrowsAndPagesMoveTheSelection) {
    const std::pair<Command, int> steps[] = {{Command::down, 1},   {Command::up, 0},         {Command::pageDown, 8},
                                             {Command::pageUp, 0}, {Command::end, 11},       {Command::pageDown, 11},
                                             {Command::home, 0},   {Command::extendDown, 1}, {Command::extendUp, 0}};
    for (const auto& [command, index] : steps) {
        EXPECT_TRUE(model.handle(command));
        EXPECT_EQ(model.selectedIndex(), index) << int(command);
    }
}

TEST_F(PanelModelCommands, HomeAndEndEndAMultiSelection) {
    model.handle(Command::extendDown);
    model.handle(Command::end);
    EXPECT_TRUE(model.selectedIDs().isEmpty());
    EXPECT_EQ(model.anchorID(), ids[11]);
    model.setQuery(QStringLiteral("nothing has this"));
    EXPECT_TRUE(model.handle(Command::home));
    EXPECT_EQ(model.selectedID(), ids[11]);
}

TEST_F(PanelModelCommands, TabCyclesTheFilters) {
    model.handle(Command::nextFilter);
    EXPECT_EQ(model.filter(), ClipFilter::text);
    model.handle(Command::previousFilter);
    model.handle(Command::previousFilter);
    EXPECT_EQ(model.filter(), ClipFilter::pinned);
}

TEST_F(PanelModelCommands, EscapeCollapsesThenClearsThenCloses) {
    model.searchTextEdited(QStringLiteral("text"));
    model.extend(2);
    EXPECT_EQ(model.selectedCount(), 3);
    const auto primary = model.selectedID();

    EXPECT_TRUE(model.handle(Command::escape));
    EXPECT_EQ(model.selectedCount(), 1);
    EXPECT_EQ(model.selectedID(), primary);
    EXPECT_EQ(model.anchorID(), primary);
    EXPECT_EQ(model.query(), QStringLiteral("text"));

    model.handle(Command::escape);
    EXPECT_EQ(model.query(), QString());
    EXPECT_EQ(model.selectedIndex(), 0);
    EXPECT_EQ(closed, 0);

    model.handle(Command::escape);
    EXPECT_EQ(closed, 1);
}

TEST_F(PanelModelCommands, EscapeClosesWithABlankQuery) {
    model.setQuery(QStringLiteral("  "));
    model.handle(Command::escape);
    EXPECT_EQ(closed, 1);
}

TEST_F(PanelModelCommands, EnterPastesTheCurrentClipAndClosesFirst) {
    model.onClose = [this] { log.append(QStringLiteral("close")); };
    model.handle(Command::down);
    EXPECT_TRUE(model.handle(Command::enter));
    EXPECT_EQ(pastedText(), QStringLiteral("text 11"));
    EXPECT_EQ(log, (QStringList{QStringLiteral("close"), QStringLiteral("sleep 70"), QStringLiteral("focus"),
                                QStringLiteral("press")}));
    EXPECT_TRUE(toasts.empty());
}

TEST_F(PanelModelCommands, EnterWithShiftPastesPlainText) {
    auto draft = drafts::text(QStringLiteral("styled"));
    draft.kind = ClipKind::richText;
    draft.payload.items.front().representations[uniformtype::html] = "<b>styled</b>";
    add(draft);
    model.prepareForShow();
    model.handle(Command::enter);
    EXPECT_TRUE(pasteboard.items().front().representations.contains(uniformtype::html));
    model.handle(Command::home);
    model.handle(Command::enterPlain);
    EXPECT_FALSE(pasteboard.items().front().representations.contains(uniformtype::html));
}

TEST_F(PanelModelCommands, EnterOnTwoMergesAndPastes) {
    model.handle(Command::extendDown);
    EXPECT_TRUE(model.handle(Command::enterPlain));
    EXPECT_EQ(pastedText(), QStringLiteral("text 11\ntext 12"));
    EXPECT_EQ(closed, 1);
    EXPECT_EQ(target.presses, 1);
    EXPECT_EQ(model.visibleClips().size(), 13u);
}

TEST_F(PanelModelCommands, EnterWithoutACurrentClipDoesNothing) {
    model.searchTextEdited(QStringLiteral("nothing has this"));
    EXPECT_TRUE(model.handle(Command::enter));
    EXPECT_EQ(closed, 0);
    EXPECT_TRUE(pasteboard.writes.empty());
}

TEST_F(PanelModelCommands, ADigitPastesTheRowWithThatNumber) {
    EXPECT_TRUE(press(KeyCode::digit3));
    EXPECT_EQ(pastedText(), QStringLiteral("text 10"));
    EXPECT_EQ(closed, 1);
}

TEST_F(PanelModelCommands, ADigitWithoutARowIsSwallowed) {
    model.setQuery(QStringLiteral("text 12"));
    EXPECT_TRUE(press(KeyCode::digit5));
    EXPECT_EQ(closed, 0);
    EXPECT_TRUE(pasteboard.writes.empty());
}

TEST_F(PanelModelCommands, OnlyCommandAloneCounts) {
    EXPECT_FALSE(press(KeyCode::digit3, {}));
    EXPECT_FALSE(press(KeyCode::digit3, Modifier::command | Modifier::shift));
    EXPECT_FALSE(press(KeyCode::p, Modifier::command | Modifier::option));
    EXPECT_FALSE(press(KeyCode::p, Modifier::control));
    EXPECT_FALSE(model.currentClip()->isPinned);
    EXPECT_TRUE(press(KeyCode::p));
    EXPECT_TRUE(model.currentClip()->isPinned);
}

TEST_F(PanelModelCommands, QAndWClose) {
    EXPECT_TRUE(press(KeyCode::q));
    EXPECT_TRUE(press(KeyCode::w));
    EXPECT_EQ(closed, 2);
}

TEST_F(PanelModelCommands, OtherKeysAreLeftToTheField) {
    for (const KeyCode keyCode :
         {KeyCode::a, KeyCode::s, KeyCode::x, KeyCode::v, KeyCode::digit0, KeyCode::space, KeyCode::up})
        EXPECT_FALSE(press(keyCode)) << std::to_underlying(keyCode);
}

TEST_F(PanelModelCommands, BothDeleteKeysDelete) {
    press(KeyCode::backspace);
    press(KeyCode::forwardDelete);
    EXPECT_EQ(model.visibleClips().size(), 10u);
    EXPECT_EQ(model.selectedID(), ids[2]);
}

TEST_F(PanelModelCommands, CopyTakesTheClipUnlessSearchTextIsSelected) {
    EXPECT_FALSE(press(KeyCode::c, Modifier::command, true));
    EXPECT_TRUE(pasteboard.writes.empty());
    EXPECT_TRUE(press(KeyCode::c));
    EXPECT_EQ(pastedText(), QStringLiteral("text 12"));
    EXPECT_EQ(target.presses, 0);
    EXPECT_EQ(closed, 1);
    EXPECT_EQ(toasts, std::vector{toast("checkmark.circle.fill", "Copied", ToastMessage::Tone::success)});
}

TEST_F(PanelModelCommands, CopyOfSeveralMerges) {
    model.handle(Command::extendDown);
    EXPECT_TRUE(press(KeyCode::c));
    EXPECT_EQ(pastedText(), QStringLiteral("text 11\ntext 12"));
    EXPECT_EQ(target.presses, 0);
    EXPECT_EQ(closed, 1);
    EXPECT_EQ(toasts, std::vector{toast("checkmark.circle.fill", "Copied", ToastMessage::Tone::success)});
}

TEST_F(PanelModelCommands, MergeKeyKeepsThePanelOpen) {
    model.handle(Command::extendDown);
    EXPECT_TRUE(press(KeyCode::m));
    EXPECT_EQ(closed, 0);
    EXPECT_EQ(model.currentClip()->title, QStringLiteral("text 11"));
    EXPECT_EQ(toasts, std::vector{toast("square.stack.fill", "Merged 2 clips into one", ToastMessage::Tone::success)});
}

TEST_F(PanelModelCommands, TransformKeyOpensAndCloses) {
    EXPECT_TRUE(press(KeyCode::t));
    EXPECT_EQ(model.transformClipID(), ids[0]);
    EXPECT_TRUE(press(KeyCode::t));
    EXPECT_EQ(model.transformClipID(), std::nullopt);
}

TEST_F(PanelModelCommands, KeysMoveInTheOpenTransformList) {
    openTransforms();
    const std::pair<Command, int> steps[] = {{Command::up, 0},    {Command::down, 1}, {Command::end, 5},
                                             {Command::down, 5},  {Command::home, 0}, {Command::pageDown, 5},
                                             {Command::pageUp, 0}};
    for (const auto& [command, index] : steps) {
        EXPECT_TRUE(model.handle(command));
        EXPECT_EQ(model.transformIndex(), index) << int(command);
        EXPECT_EQ(model.selectedIndex(), 0);
    }
    model.handle(Command::escape);
    EXPECT_FALSE(model.isTransformListOpen());
    EXPECT_EQ(closed, 0);
}

TEST_F(PanelModelCommands, EnterInTheTransformListPastesTransformed) {
    openTransforms();
    model.handle(Command::down);
    model.handle(Command::enter);
    EXPECT_EQ(pastedText(), QStringLiteral("TEXT 12"));
    EXPECT_FALSE(model.isTransformListOpen());
    EXPECT_EQ(closed, 1);
}

TEST_F(PanelModelCommands, MovingAwayClosesTheTransformList) {
    openTransforms();
    model.handle(Command::extendDown);
    EXPECT_EQ(model.transformClipID(), std::nullopt);
    EXPECT_EQ(model.selectedCount(), 2);
    model.handle(Command::home);
    openTransforms();
    model.handle(Command::nextFilter);
    EXPECT_EQ(model.transformClipID(), std::nullopt);
    EXPECT_EQ(model.filter(), ClipFilter::text);
}

TEST_F(PanelModelCommands, ThePositionStartsAtTheTopEachTime) {
    openTransforms();
    model.handle(Command::end);
    model.toggleTransforms();
    openTransforms();
    EXPECT_EQ(model.transformIndex(), 0);
}

} // namespace vellumry
