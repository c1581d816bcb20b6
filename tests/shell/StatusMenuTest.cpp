// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/StatusMenu.h"

#include "views/SymbolProvider.h"

#include <QDateTime>
#include <QTimeZone>
#include <algorithm>
#include <gtest/gtest.h>

namespace vellumry {
namespace {

ClipRef clip(const QString& title, ClipKind kind = ClipKind::text) {
    Clip made;
    made.id = QUuid::createUuid();
    made.kind = kind;
    made.title = title;
    return std::make_shared<const Clip>(made);
}

ClipRef secret(const QString& title, ClipKind kind = ClipKind::text) {
    Clip made = *clip(title, kind);
    made.expiresAt = 1'700'000'060;
    return std::make_shared<const Clip>(made);
}

std::vector<ClipRef> clips(int count) {
    std::vector<ClipRef> made;
    for (int index = 1; index <= count; ++index)
        made.push_back(clip(QStringLiteral("clip %1").arg(index)));
    return made;
}

QStringList textsOf(const std::vector<ActionMenuItem>& items) {
    QStringList texts;
    for (const auto& item : items)
        texts.append(item.isSeparator() ? QStringLiteral("-") : item.text);
    return texts;
}

class StatusMenu : public ::testing::Test {
protected:
    StatusMenu() {
        const auto note = [this](const char* what) { return [this, what] { log.append(QString::fromLatin1(what)); }; };
        actions.openPanel = note("open");
        actions.toggleStack = note("stack");
        actions.toggleScreenshots = note("screenshots");
        actions.openSettings = note("settings");
        actions.resumeCapture = note("resume");
        actions.toggleIgnoreNext = note("ignore");
        actions.clearHistory = note("clear");
        actions.allowPasting = note("allow");
        actions.restartToUpdate = note("restart");
        actions.checkForUpdates = note("check");
        actions.quit = note("quit");
        actions.pastePinned = [this](const QUuid& id) { log.append(QStringLiteral("pinned ") + id.toString()); };
        actions.pasteRecent = [this](const QUuid& id) { log.append(QStringLiteral("recent ") + id.toString()); };
        actions.pauseCapture = [this](std::optional<double> seconds) {
            log.append(QStringLiteral("pause %1").arg(seconds.value_or(-1)));
        };
        actions.openLink = [this](const QString& address) { log.append(address); };
        state.now = 1'700'000'000;
        state.locale = QLocale(QLocale::English, QLocale::UnitedKingdom);
    }
    [[nodiscard]] std::vector<ActionMenuItem> menu() const { return statusMenu(state, actions); }
    [[nodiscard]] QStringList texts() const { return textsOf(menu()); }
    /// The entry that begins with `text`; a separator when there is none.
    [[nodiscard]] ActionMenuItem entry(const QString& text) const {
        for (const ActionMenuItem& item : menu()) {
            if (!item.isSeparator() && item.text.startsWith(text))
                return item;
        }
        return {};
    }
    [[nodiscard]] ActionMenuItem rowOf(const ClipRef& recent) {
        state.pinned.clear();
        state.recent = {recent};
        return menu()[4];
    }

    StatusMenuState state;
    StatusMenuActions actions;
    QStringList log;
};

TEST_F(StatusMenu, OfAnEmptyHistoryHasNoClipsAndNothingToClear) {
    EXPECT_EQ(texts(), (QStringList{"Vellumry", "%n clips · Capturing", "-", "Open Vellumry", "Start Paste Stack",
                                    "Pause Capture", "Ignore Next Copy", "Save New Screenshots", "Clear History…", "-",
                                    "Settings…", "Help", "-", "Quit Vellumry"})
                           .replaceInStrings(QStringLiteral("%n"), QStringLiteral("0")));
    EXPECT_FALSE(entry(QStringLiteral("Clear")).isEnabled);
}

TEST_F(StatusMenu, BeginsWithTwoLinesThatCannotBeChosen) {
    state.clipCount = 12;
    const auto items = menu();
    EXPECT_EQ(items[0].text, QStringLiteral("Vellumry"));
    EXPECT_EQ(items[0].symbol, QStringLiteral("Logo"));
    EXPECT_EQ(items[1].text, QStringLiteral("12 clips · Capturing"));
    EXPECT_FALSE(items[0].isEnabled);
    EXPECT_FALSE(items[1].isEnabled);
    EXPECT_TRUE(items[2].isSeparator());
    EXPECT_TRUE(entry(QStringLiteral("Clear")).isEnabled);
}

TEST_F(StatusMenu, TellsOfAPauseAndWhenItEnds) {
    state.pausedUntil = distantFuture;
    EXPECT_EQ(menu()[1].text, QStringLiteral("0 clips · Paused"));
    const QDateTime end(QDate(2023, 11, 14), QTime(21, 5));
    state.pausedUntil = static_cast<double>(end.toSecsSinceEpoch());
    state.now = *state.pausedUntil - 300;
    EXPECT_EQ(menu()[1].text, QStringLiteral("0 clips · Paused until 21:05"));
    state.now = *state.pausedUntil;
    EXPECT_EQ(menu()[1].text, QStringLiteral("0 clips · Capturing")) << "the pause is over";
}

TEST_F(StatusMenu, PausesForOneOfThreeWhilesAndResumes) {
    const ActionMenuItem pause = entry(QStringLiteral("Pause"));
    EXPECT_EQ(pause.symbol, QStringLiteral("pause.fill"));
    EXPECT_FALSE(pause.handler);
    EXPECT_EQ(textsOf(pause.items), (QStringList{"For 5 Minutes", "For 1 Hour", "Until I Resume"}));
    for (const auto& item : pause.items)
        item.handler();
    EXPECT_EQ(log, (QStringList{"pause 300", "pause 3600", "pause -1"}));
    state.pausedUntil = state.now + 1;
    EXPECT_TRUE(entry(QStringLiteral("Pause")).isSeparator());
    const ActionMenuItem resume = entry(QStringLiteral("Resume Capture"));
    EXPECT_EQ(resume.symbol, QStringLiteral("play.fill"));
    resume.handler();
    EXPECT_EQ(log.last(), QStringLiteral("resume"));
}

TEST_F(StatusMenu, ShowsNineOfTenPinnedClipsWithTheirKeys) {
    state.pinned = clips(10);
    const auto items = menu();
    EXPECT_EQ(items[3].text, QStringLiteral("Pinned"));
    EXPECT_FALSE(items[3].isEnabled);
    for (int index = 0; index < 9; ++index) {
        const ActionMenuItem& row = items[std::size_t(4 + index)];
        EXPECT_EQ(row.text, QStringLiteral("clip %1").arg(index + 1));
        EXPECT_EQ(row.chord, (QStringList{"Super", "Alt", QString::number(index + 1)}));
        EXPECT_EQ(row.keys, QStringLiteral("⌃⌥%1").arg(index + 1));
    }
    EXPECT_TRUE(items[13].isSeparator());
    EXPECT_EQ(items[14].text, QStringLiteral("Open Vellumry"));
    items[5].handler();
    EXPECT_EQ(log, QStringList{QStringLiteral("pinned ") + state.pinned[1]->id.toString()});
}

TEST_F(StatusMenu, ShowsAllRecentClipsAndKeysForNine) {
    state.recent = clips(11);
    const auto items = menu();
    EXPECT_EQ(items[3].text, QStringLiteral("Recent"));
    EXPECT_EQ(items[4].chord, (QStringList{"Control", "1"}));
    EXPECT_EQ(items[12].chord, (QStringList{"Control", "9"}));
    EXPECT_EQ(items[13].text, QStringLiteral("clip 10"));
    EXPECT_TRUE(items[13].chord.isEmpty());
    EXPECT_TRUE(items[13].keys.isEmpty());
    EXPECT_EQ(items[14].text, QStringLiteral("clip 11"));
    EXPECT_TRUE(items[15].isSeparator());
    items[14].handler();
    EXPECT_EQ(log, QStringList{QStringLiteral("recent ") + state.recent[10]->id.toString()});
}

TEST_F(StatusMenu, ASensitiveClipGivesNothingOfItselfAway) {
    const ActionMenuItem text = rowOf(secret(QStringLiteral("4111 1111 1111 1111")));
    EXPECT_EQ(text.text, QStringLiteral("Hidden · deletes itself soon"));
    EXPECT_EQ(text.note, QString());
    EXPECT_EQ(text.symbol, QStringLiteral("lock.fill"));
    const ActionMenuItem colour = rowOf(secret(QStringLiteral("#ff0000"), ClipKind::color));
    EXPECT_EQ(colour.text, QStringLiteral("Hidden · deletes itself soon"));
    EXPECT_EQ(colour.swatch, QString()) << "the colour is what was copied";
    state.pinned = {secret(QStringLiteral("hunter2"))};
    EXPECT_EQ(menu()[4].text, QStringLiteral("Hidden · deletes itself soon"));
    EXPECT_EQ(menu()[4].note, QString());
}

TEST_F(StatusMenu, ATitleOf48CharactersIsWholeAndALongerOneIsCut) {
    const QString whole = QString(47, u'a') + QStringLiteral("é");
    EXPECT_EQ(rowOf(clip(whole)).text, whole);
    EXPECT_EQ(rowOf(clip(whole + u'b')).text, QString(47, u'a') + QStringLiteral("…"));
    const QString family = QStringLiteral("👨‍👩‍👧");
    EXPECT_EQ(rowOf(clip(family.repeated(48))).text, family.repeated(48)) << "what a reader sees as one is one";
    EXPECT_EQ(rowOf(clip(family.repeated(49))).text, family.repeated(47) + QStringLiteral("…"));
}

TEST_F(StatusMenu, ATitleIsOneLineAndItsNoteTheFirst500Characters) {
    const ActionMenuItem row = rowOf(clip(QStringLiteral("one\ntwo")));
    EXPECT_EQ(row.text, QStringLiteral("one two"));
    EXPECT_EQ(row.note, QStringLiteral("one\ntwo"));
    EXPECT_EQ(rowOf(clip(QString(600, u'x'))).note, QString(500, u'x'));
}

TEST_F(StatusMenu, AClipWithoutATitleIsARowAllTheSame) {
    EXPECT_FALSE(rowOf(clip(QString())).isSeparator());
}

TEST_F(StatusMenu, EachKindHasItsSymbol) {
    const std::vector<std::pair<ClipKind, const char*>> symbols{{ClipKind::text, "text.alignleft"},
                                                                {ClipKind::richText, "doc.richtext"},
                                                                {ClipKind::link, "link"},
                                                                {ClipKind::image, "photo"},
                                                                {ClipKind::file, "doc"},
                                                                {ClipKind::color, "paintpalette"}};
    for (const auto& [kind, symbol] : symbols)
        EXPECT_EQ(rowOf(clip(QStringLiteral("title"), kind)).symbol, QString::fromLatin1(symbol));
}

TEST_F(StatusMenu, AColourIsPaintedWhereItsTitleSaysItInHexadecimalDigits) {
    const auto swatchOf = [this](const char* title) {
        return rowOf(clip(QString::fromLatin1(title), ClipKind::color)).swatch;
    };
    EXPECT_EQ(swatchOf("#1a2B3c"), QStringLiteral("#ff1a2b3c"));
    EXPECT_EQ(swatchOf("  #fa0\n"), QStringLiteral("#ffffaa00"));
    EXPECT_EQ(swatchOf("#11223380"), QStringLiteral("#80112233")) << "alpha is last in CSS";
    EXPECT_EQ(swatchOf("1a2b3c"), QString());
    EXPECT_EQ(swatchOf("#12345g"), QString());
    EXPECT_EQ(swatchOf("#12345"), QString());
    EXPECT_EQ(swatchOf("rgb(1, 2, 3)"), QString());
    EXPECT_EQ(rowOf(clip(QStringLiteral("#fa0"))).swatch, QString()) << "a text is no colour";
}

TEST_F(StatusMenu, TheStackEntrySaysWhatIsLeft) {
    EXPECT_EQ(entry(QStringLiteral("Start")).text, QStringLiteral("Start Paste Stack"));
    state.isStackActive = true;
    EXPECT_EQ(entry(QStringLiteral("Stop")).text, QStringLiteral("Stop Paste Stack"));
    state.stackItems = 3;
    EXPECT_EQ(entry(QStringLiteral("Stop")).text, QStringLiteral("Stop Paste Stack (3 left)"));
    entry(QStringLiteral("Stop")).handler();
    EXPECT_EQ(log, QStringList{"stack"});
}

TEST_F(StatusMenu, SwitchesShowHowTheyStand) {
    EXPECT_EQ(entry(QStringLiteral("Ignore")).check, ActionMenuItem::Check::off);
    EXPECT_EQ(entry(QStringLiteral("Save")).check, ActionMenuItem::Check::off);
    state.ignoresNextCopy = true;
    state.savesScreenshots = true;
    EXPECT_EQ(entry(QStringLiteral("Ignore")).check, ActionMenuItem::Check::on);
    EXPECT_EQ(entry(QStringLiteral("Save")).check, ActionMenuItem::Check::on);
    EXPECT_EQ(entry(QStringLiteral("Open")).check, ActionMenuItem::Check::none);
    EXPECT_EQ(entry(QStringLiteral("Ignore")).note,
              QStringLiteral("The next thing you copy isn't saved in Vellumry. Use it before copying a password or "
                             "other private text."));
    EXPECT_EQ(entry(QStringLiteral("Save")).note,
              QStringLiteral("Screenshots you save with ⌘⇧3 or ⌘⇧4 are added to Vellumry too, and their text becomes "
                             "searchable."));
}

TEST_F(StatusMenu, AnEntryWithoutItsActionIsLeftOut) {
    actions.openPanel = nullptr;
    actions.toggleStack = nullptr;
    actions.toggleScreenshots = nullptr;
    EXPECT_TRUE(entry(QStringLiteral("Open Vellumry")).isSeparator());
    EXPECT_TRUE(entry(QStringLiteral("Start")).isSeparator());
    EXPECT_TRUE(entry(QStringLiteral("Save")).isSeparator());
}

TEST_F(StatusMenu, OffersTheLeaveToPasteOnlyWhereItIsMissing) {
    EXPECT_TRUE(entry(QStringLiteral("Allow")).isSeparator());
    state.isTrusted = false;
    EXPECT_EQ(entry(QStringLiteral("Allow")).text, QStringLiteral("Allow Pasting…"));
    entry(QStringLiteral("Allow")).handler();
    EXPECT_EQ(log, QStringList{"allow"});
}

TEST_F(StatusMenu, AnUpdateIsOfferedAsFarAsItHasCome) {
    state.update = PendingUpdate{QStringLiteral("2.0"), PendingUpdate::State::available};
    EXPECT_EQ(entry(QStringLiteral("Update")).text, QStringLiteral("Update to Vellumry 2.0…"));
    EXPECT_EQ(entry(QStringLiteral("Update")).symbol, QStringLiteral("arrow.down.circle"));
    entry(QStringLiteral("Update")).handler();
    state.update->state = PendingUpdate::State::ready;
    EXPECT_EQ(entry(QStringLiteral("Restart")).text, QStringLiteral("Restart to Update to 2.0"));
    EXPECT_EQ(entry(QStringLiteral("Restart")).symbol, QStringLiteral("arrow.down.circle.fill"));
    entry(QStringLiteral("Restart")).handler();
    EXPECT_EQ(log, (QStringList{"check", "restart"}));
    const QStringList all = texts();
    EXPECT_EQ(all.indexOf(QStringLiteral("Restart to Update to 2.0")) + 1, all.indexOf(QStringLiteral("Settings…")));
}

TEST_F(StatusMenu, HelpLeadsToTheProductsPagesAndToUpdatesWhereThereAreAny) {
    ActionMenuItem help = entry(QStringLiteral("Help"));
    EXPECT_EQ(textsOf(help.items), (QStringList{"Vellumry Website", "Email Support", "Privacy Policy"}));
    for (const auto& item : help.items)
        item.handler();
    ASSERT_EQ(log.size(), 3);
    EXPECT_TRUE(log[0].startsWith(QStringLiteral("https://")));
    EXPECT_TRUE(log[1].startsWith(QStringLiteral("mailto:")));
    EXPECT_EQ(log[2], log[0] + QStringLiteral("/privacy"));
    state.canCheckForUpdates = true;
    help = entry(QStringLiteral("Help"));
    EXPECT_EQ(textsOf(help.items).mid(3), (QStringList{"-", "Check for Updates…"}));
    help.items.back().handler();
    EXPECT_EQ(log.last(), QStringLiteral("check"));
}

TEST_F(StatusMenu, TheOtherEntriesHaveTheirKeysAndActions) {
    EXPECT_EQ(entry(QStringLiteral("Open")).chord, (QStringList{"Super", "Control", "V"}));
    EXPECT_EQ(entry(QStringLiteral("Start")).chord, (QStringList{"Super", "Control", "S"}));
    EXPECT_EQ(entry(QStringLiteral("Settings")).chord, (QStringList{"Control", ","}));
    EXPECT_EQ(entry(QStringLiteral("Quit")).chord, (QStringList{"Control", "Q"}));
    for (const char* text : {"Open", "Start", "Ignore", "Save", "Clear", "Settings", "Quit"})
        entry(QString::fromLatin1(text)).handler();
    EXPECT_EQ(log, (QStringList{"open", "stack", "ignore", "screenshots", "clear", "settings", "quit"}));
}

TEST_F(StatusMenu, EachSymbolCanBeDrawn) {
    state.pinned = clips(1);
    state.isTrusted = false;
    std::vector<ActionMenuItem> items = menu();
    state.pausedUntil = distantFuture;
    for (const auto update : {PendingUpdate::State::available, PendingUpdate::State::ready}) {
        state.update = PendingUpdate{QStringLiteral("2"), update};
        std::ranges::copy(menu(), std::back_inserter(items));
    }
    for (const ActionMenuItem& item : items)
        EXPECT_TRUE(item.symbol.isEmpty() || SymbolProvider::has(item.symbol)) << qPrintable(item.symbol);
}

} // namespace
} // namespace vellumry
