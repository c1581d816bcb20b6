// SPDX-License-Identifier: GPL-3.0-or-later
#include "foundation/UniformType.h"
#include "linux/x11/selection/X11PasteboardWorld.h"

#include <QElapsedTimer>
#include <QProcess>
#include <thread>

namespace vellumry {

namespace {

class X11PasteboardWrite : public X11PasteboardWorld {
protected:
    HostileOwner::Answer ask(HostileOwner& requestor, const QByteArray& target,
                             const QByteArray& selection = "CLIPBOARD") {
        requestor.answers.erase(target);
        requestor.ask(selection, target);
        EXPECT_TRUE(waitUntil([&] { return requestor.answers.contains(target); }, 10000)) << target.constData();
        return requestor.answers[target];
    }
    QByteArrayList targetsOf(HostileOwner& requestor, const QByteArray& selection = "CLIPBOARD") {
        const HostileOwner::Answer answer = ask(requestor, "TARGETS", selection);
        QByteArrayList names;
        for (qsizetype at = 0; at + 4 <= answer.bytes.size(); at += 4) {
            quint32 atom = 0;
            memcpy(&atom, answer.bytes.constData() + at, sizeof atom);
            names.append(requestor.atomName(atom));
        }
        return names;
    }
    bool write(std::map<QString, QByteArray> representations) {
        return pasteboard->write({PasteboardItem{std::move(representations), std::nullopt}});
    }
    static PasteboardItem file(const QByteArray& url) { return {{{uniformtype::fileUrl, url}}, std::nullopt}; }
};

TEST_F(X11PasteboardWrite, TextIsServedUnderEachOfItsNames) {
    ASSERT_TRUE(write({{uniformtype::utf8PlainText, "gr\xc3\xbc\xc3\x9f"}, {uniformtype::ownMarker, {}}}));
    HostileOwner& requestor = peer();
    EXPECT_TRUE(requestor.hasOwner("CLIPBOARD"));
    const QByteArrayList targets = targetsOf(requestor);
    for (const char* target : {"TARGETS", "TIMESTAMP", "MULTIPLE", "UTF8_STRING", "STRING", "TEXT", "text/plain",
                               "text/plain;charset=utf-8", "com.vellumry.marker"})
        EXPECT_TRUE(targets.contains(target)) << target;
    for (const char* target : {"UTF8_STRING", "TEXT", "text/plain", "text/plain;charset=utf-8"})
        EXPECT_EQ(ask(requestor, target).bytes, "gr\xc3\xbc\xc3\x9f") << target;
    EXPECT_EQ(ask(requestor, "STRING").bytes, "gr\xfc\xdf");
    EXPECT_EQ(ask(requestor, "TEXT").type, "UTF8_STRING");
    const HostileOwner::Answer marker = ask(requestor, "com.vellumry.marker");
    EXPECT_EQ(marker.type, "com.vellumry.marker");
    EXPECT_EQ(marker.bytes, "");
    EXPECT_EQ(ask(requestor, "TIMESTAMP").format, 32);
    EXPECT_EQ(ask(requestor, "image/png").type, "");
}

TEST_F(X11PasteboardWrite, TextBeyondLatinIsNotOfferedAsSuch) {
    ASSERT_TRUE(write({{uniformtype::utf8PlainText, "\xe2\x82\xac"}}));
    EXPECT_FALSE(targetsOf(peer()).contains("STRING"));
}

TEST_F(X11PasteboardWrite, EachKindGoesOutByteForByte) {
    const QByteArray bytes = patternOf(1000);
    ASSERT_TRUE(write({{uniformtype::png, bytes},
                       {uniformtype::html, "<b>"},
                       {uniformtype::rtf, "{\\rtf1}"},
                       {QStringLiteral("application/x-own"), QByteArray("\0\1", 2)}}));
    HostileOwner& requestor = peer();
    EXPECT_EQ(ask(requestor, "image/png").bytes, bytes);
    EXPECT_EQ(ask(requestor, "text/html").bytes, "<b>");
    EXPECT_EQ(ask(requestor, "text/rtf").bytes, "{\\rtf1}");
    EXPECT_EQ(ask(requestor, "text/richtext").bytes, "{\\rtf1}");
    EXPECT_EQ(ask(requestor, "application/x-own").bytes, QByteArray("\0\1", 2));
}

TEST_F(X11PasteboardWrite, OurOwnContentsAreReadBackWithoutARoundTrip) {
    PasteboardItem first{{{uniformtype::utf8PlainText, "t"}, {uniformtype::ownMarker, {}}},
                         QStringList{uniformtype::utf8PlainText}};
    const qint64 before = pasteboard->changeCount();
    ASSERT_TRUE(pasteboard->write({first, file("file:///a")}));
    EXPECT_NE(pasteboard->changeCount(), before);
    auto task = pasteboard->beginReading();
    EXPECT_TRUE(task.isReady());
    const auto look = resultOf(std::move(task));
    ASSERT_NE(look, nullptr);
    EXPECT_EQ(look->types(), (QStringList{uniformtype::utf8PlainText, uniformtype::ownMarker, uniformtype::fileUrl}));
    EXPECT_EQ(resultOf(look->itemTypes()).size(), 2U);
    EXPECT_EQ(resultOf(look->data(0, uniformtype::utf8PlainText, 1)), "t");
    EXPECT_EQ(resultOf(look->data(0, uniformtype::utf8PlainText, 0)), std::nullopt);
    EXPECT_EQ(resultOf(look->data(1, uniformtype::fileUrl, 100)), "file:///a");
    EXPECT_TRUE(look->isCurrent());
    copied({{"UTF8_STRING", "other"}});
    EXPECT_FALSE(look->isCurrent());
    EXPECT_EQ(resultOf(look->data(0, uniformtype::utf8PlainText, 1)), std::nullopt);
}

TEST_F(X11PasteboardWrite, FilesGoOutAsOneListWithTheDesktopsCompanions) {
    ASSERT_TRUE(pasteboard->write({file("file:///a%20b"), file("file:///c")}));
    HostileOwner& requestor = peer();
    EXPECT_EQ(ask(requestor, "text/uri-list").bytes, "file:///a%20b\r\nfile:///c\r\n");
    EXPECT_EQ(ask(requestor, "x-special/gnome-copied-files").bytes, "copy\nfile:///a%20b\nfile:///c");
    EXPECT_EQ(ask(requestor, "UTF8_STRING").bytes, "/a b\n/c");
}

TEST_F(X11PasteboardWrite, ACutStaysACut) {
    PasteboardItem first = file("file:///a");
    first.representations[QStringLiteral("x-special/gnome-copied-files")] = "cut\nfile:///a";
    first.representations[uniformtype::utf8PlainText] = "name";
    ASSERT_TRUE(pasteboard->write({first}));
    HostileOwner& requestor = peer();
    EXPECT_EQ(ask(requestor, "x-special/gnome-copied-files").bytes, "cut\nfile:///a");
    EXPECT_EQ(ask(requestor, "UTF8_STRING").bytes, "name");
}

TEST_F(X11PasteboardWrite, LargeContentsGoOutInIncrementsToManyAtOnce) {
    const QByteArray bytes = patternOf(20 * 1024 * 1024 + 5);
    ASSERT_TRUE(write({{uniformtype::png, bytes}}));
    std::vector<HostileOwner*> requestors;
    for (int i = 0; i < 4; ++i) {
        requestors.push_back(&peer());
        requestors.back()->ask("CLIPBOARD", "image/png");
    }
    for (HostileOwner* requestor : requestors) {
        ASSERT_TRUE(waitUntil([&] { return requestor->answers.contains("image/png"); }, 20000));
        EXPECT_TRUE(requestor->answers["image/png"].wasIncremental);
        EXPECT_EQ(requestor->answers["image/png"].bytes, bytes);
    }
}

TEST_F(X11PasteboardWrite, ATransferInProgressSurvivesTheNextCopy) {
    const QByteArray bytes = patternOf(8 * 1024 * 1024);
    ASSERT_TRUE(write({{uniformtype::png, bytes}}));
    HostileOwner& requestor = peer();
    requestor.ask("CLIPBOARD", "image/png");
    EXPECT_TRUE(waitUntil([this] { return pasteboard->wasServed(); }));
    copied({{"UTF8_STRING", "other"}});
    ASSERT_TRUE(waitUntil([&] { return requestor.answers.contains("image/png"); }, 20000));
    EXPECT_EQ(requestor.answers["image/png"].bytes, bytes);
}

TEST_F(X11PasteboardWrite, SeveralTargetsAreServedInOneRequest) {
    const QByteArray large = patternOf(1 << 20);
    ASSERT_TRUE(write({{uniformtype::utf8PlainText, "t"}, {uniformtype::png, large}}));
    HostileOwner& requestor = peer();
    requestor.askForMany("CLIPBOARD", {"UTF8_STRING", "image/tiff", "image/png"});
    ASSERT_TRUE(waitUntil([&] { return requestor.answers.contains("image/png"); }, 10000));
    EXPECT_EQ(requestor.answers["UTF8_STRING"].bytes, "t");
    EXPECT_EQ(requestor.answers["image/png"].bytes, large);
    EXPECT_EQ(requestor.answers["image/tiff"].type, "");
}

TEST_F(X11PasteboardWrite, RequestorsThatVanishOrStallCostOthersNothing) {
    ASSERT_TRUE(write({{uniformtype::utf8PlainText, "t"}, {uniformtype::png, patternOf(1 << 20)}}));
    HostileOwner& requestor = peer();
    for (int i = 0; i < 50; ++i) {
        requestor.askAndVanish("CLIPBOARD", "image/png");
        requestor.askAndVanish("CLIPBOARD", "UTF8_STRING");
    }
    requestor.askAndStall("CLIPBOARD", "image/png");
    EXPECT_EQ(ask(requestor, "UTF8_STRING").bytes, "t");
    EXPECT_EQ(ask(peer(), "image/png").bytes.size(), 1 << 20);
}

TEST_F(X11PasteboardWrite, AStalledTransferEndsAndTheNextIsServed) {
    PasteboardLimits limits;
    limits.stalledRequestor = std::chrono::milliseconds(50);
    pasteboard = X11Pasteboard::create(display, limits).value();
    ASSERT_TRUE(write({{uniformtype::png, patternOf(1 << 20)}}));
    HostileOwner& requestor = peer();
    requestor.askAndStall("CLIPBOARD", "image/png");
    EXPECT_TRUE(waitUntil([this] { return pasteboard->wasServed(); }));
    EXPECT_EQ(ask(requestor, "image/png").bytes, patternOf(1 << 20));
}

TEST_F(X11PasteboardWrite, OthersAreServedWhileTheMainThreadIsBusy) {
    ASSERT_TRUE(write({{uniformtype::utf8PlainText, "busy"}}));
    // The main thread does nothing but wait for the other process: no event loop runs.
    QProcess reader;
    reader.start(QStringLiteral("xclip"),
                 {QStringLiteral("-display"), QString::fromUtf8(display), QStringLiteral("-selection"),
                  QStringLiteral("clipboard"), QStringLiteral("-o")});
    ASSERT_TRUE(reader.waitForFinished(5000));
    EXPECT_EQ(reader.readAllStandardOutput(), "busy");
    EXPECT_TRUE(pasteboard->wasServed());
}

TEST_F(X11PasteboardWrite, WhatWasServedIsKnownForThePresentContentsOnly) {
    ASSERT_TRUE(write({{uniformtype::utf8PlainText, "one"}}));
    HostileOwner& requestor = peer();
    targetsOf(requestor);
    EXPECT_FALSE(pasteboard->wasServed());
    ask(requestor, "UTF8_STRING");
    EXPECT_TRUE(pasteboard->wasServed());
    ASSERT_TRUE(write({{uniformtype::utf8PlainText, "two"}}));
    EXPECT_FALSE(pasteboard->wasServed());
    EXPECT_EQ(ask(requestor, "UTF8_STRING").bytes, "two");
}

TEST_F(X11PasteboardWrite, ManyWritesInARowLeaveTheLast) {
    qint64 last = pasteboard->changeCount();
    for (int i = 0; i < 200; ++i) {
        ASSERT_TRUE(write({{uniformtype::utf8PlainText, QByteArray::number(i)}}));
        EXPECT_GT(pasteboard->changeCount(), last);
        last = pasteboard->changeCount();
    }
    EXPECT_EQ(ask(peer(), "UTF8_STRING").bytes, "199");
}

TEST_F(X11PasteboardWrite, WritingTakesThePasteboardFromAnotherOwner) {
    HostileOwner& owner = copied({{"UTF8_STRING", "theirs"}});
    ASSERT_TRUE(write({{uniformtype::utf8PlainText, "ours"}}));
    EXPECT_TRUE(waitUntil([&owner] { return owner.lostClipboard; }));
    EXPECT_EQ(ask(owner, "UTF8_STRING").bytes, "ours");
}

TEST_F(X11PasteboardWrite, ThePrimarySelectionCarriesTheSameAndIsNoChangeWhenLost) {
    EXPECT_FALSE(pasteboard->offerAsPrimary());
    ASSERT_TRUE(write({{uniformtype::utf8PlainText, "both"}}));
    ASSERT_TRUE(pasteboard->offerAsPrimary());
    HostileOwner& other = peer();
    EXPECT_EQ(ask(other, "UTF8_STRING", "PRIMARY").bytes, "both");
    const qint64 count = pasteboard->changeCount();
    EXPECT_TRUE(other.own("PRIMARY", {{"UTF8_STRING", "theirs"}}));
    EXPECT_EQ(ask(other, "UTF8_STRING").bytes, "both");
    EXPECT_EQ(pasteboard->changeCount(), count);
}

TEST_F(X11PasteboardWrite, ASessionWithoutClipboardManagerHasOneInUs) {
    HostileOwner& quitting = peer();
    ASSERT_TRUE(waitUntil([&] { return quitting.hasOwner("CLIPBOARD_MANAGER"); }));
    EXPECT_EQ(targetsOf(quitting, "CLIPBOARD_MANAGER"),
              (QByteArrayList{"TARGETS", "TIMESTAMP", "MULTIPLE", "SAVE_TARGETS"}));
    ASSERT_TRUE(quitting.own("CLIPBOARD", {{"UTF8_STRING", "saved"}}));
    EXPECT_EQ(ask(quitting, "SAVE_TARGETS", "CLIPBOARD_MANAGER").type, "NULL");
    EXPECT_TRUE(quitting.requests.isEmpty());
    EXPECT_EQ(ask(quitting, "UTF8_STRING", "CLIPBOARD_MANAGER").type, "");
}

TEST_F(X11PasteboardWrite, AnotherClipboardManagerIsGivenWayAndReplacedWhenItEnds) {
    HostileOwner& manager = peer();
    ASSERT_TRUE(waitUntil([&] { return manager.hasOwner("CLIPBOARD_MANAGER"); }));
    ASSERT_TRUE(manager.own("CLIPBOARD_MANAGER", {}));
    HostileOwner& watcher = peer();
    ASSERT_TRUE(write({{uniformtype::utf8PlainText, "t"}}));
    EXPECT_TRUE(manager.owns("CLIPBOARD_MANAGER"));
    manager.leave();
    EXPECT_TRUE(waitUntil([&] { return watcher.hasOwner("CLIPBOARD_MANAGER"); }));
}

TEST_F(X11PasteboardWrite, APresentClipboardManagerIsLeftInPlace) {
    pasteboard.reset();
    HostileOwner& manager = peer();
    ASSERT_TRUE(manager.own("CLIPBOARD_MANAGER", {}));
    pasteboard = X11Pasteboard::create(display).value();
    ASSERT_TRUE(write({{uniformtype::utf8PlainText, "t"}}));
    EXPECT_TRUE(manager.owns("CLIPBOARD_MANAGER"));
}

TEST_F(X11PasteboardWrite, ThePlaceOfAnOwnerThatEndedCanBeTaken) {
    pasteboard->onOwnerGone = [this](qint64) {
        EXPECT_TRUE(pasteboard->takeOver({PasteboardItem{{{uniformtype::utf8PlainText, "kept"}}, {}}}));
    };
    copied({{"UTF8_STRING", "kept"}}).leave();
    HostileOwner& requestor = peer();
    ASSERT_TRUE(waitUntil([&] { return requestor.hasOwner("CLIPBOARD"); }));
    EXPECT_EQ(ask(requestor, "UTF8_STRING").bytes, "kept");
}

TEST_F(X11PasteboardWrite, ACopyMadeMeanwhileIsNotTakenOver) {
    HostileOwner& faster = peer();
    std::optional<bool> tookOver;
    pasteboard->onOwnerGone = [&](qint64) {
        EXPECT_TRUE(faster.own("CLIPBOARD", {{"UTF8_STRING", "new"}}));
        tookOver = pasteboard->takeOver({PasteboardItem{{{uniformtype::utf8PlainText, "old"}}, {}}});
    };
    copied({{"UTF8_STRING", "old"}}).leave();
    ASSERT_TRUE(waitUntil([&] { return tookOver.has_value(); }));
    EXPECT_FALSE(*tookOver);
    EXPECT_TRUE(faster.owns("CLIPBOARD"));
}

TEST_F(X11PasteboardWrite, NothingIsTakenOverWhileSomebodyOwnsIt) {
    HostileOwner& owner = copied({{"UTF8_STRING", "theirs"}});
    EXPECT_FALSE(pasteboard->takeOver({PasteboardItem{{{uniformtype::utf8PlainText, "ours"}}, {}}}));
    EXPECT_TRUE(owner.owns("CLIPBOARD"));
}

TEST_F(X11PasteboardWrite, WhatIsGivenUpIsServedToNobodyAnyMore) {
    ASSERT_TRUE(write({{uniformtype::utf8PlainText, "secret"}}));
    const qint64 changeCount = pasteboard->changeCount();
    HostileOwner& requestor = peer();
    EXPECT_EQ(ask(requestor, "UTF8_STRING").bytes, "secret");
    pasteboard->giveUp(changeCount);
    EXPECT_TRUE(waitUntil([&] { return !requestor.hasOwner("CLIPBOARD"); }));
    EXPECT_TRUE(waitUntil([&] { return pasteboard->changeCount() == changeCount + 1; }));
    EXPECT_EQ(reading(), nullptr);
}

TEST_F(X11PasteboardWrite, WhatWasWrittenSinceThenIsNotGivenUp) {
    ASSERT_TRUE(write({{uniformtype::utf8PlainText, "old"}}));
    const qint64 changeCount = pasteboard->changeCount();
    ASSERT_TRUE(write({{uniformtype::utf8PlainText, "new"}}));
    pasteboard->giveUp(changeCount);
    EXPECT_EQ(ask(peer(), "UTF8_STRING").bytes, "new");
}

TEST_F(X11PasteboardWrite, ACopyThatIsNotKnownOfYetIsNotGivenUp) {
    HostileOwner& faster = peer();
    ASSERT_TRUE(write({{uniformtype::utf8PlainText, "secret"}}));
    const qint64 changeCount = pasteboard->changeCount();
    ASSERT_TRUE(faster.own("CLIPBOARD", {{"UTF8_STRING", "new"}}));
    pasteboard->giveUp(changeCount);
    EXPECT_TRUE(waitForChange(changeCount));
    EXPECT_TRUE(faster.owns("CLIPBOARD"));
}

TEST(X11Pasteboard, ThereIsNoneWithoutADisplay) {
    const auto created = X11Pasteboard::create(":59999");
    ASSERT_FALSE(created.has_value());
    EXPECT_EQ(created.error().text, QStringLiteral("the X server does not let us in or does not run"));
}

} // namespace

} // namespace vellumry
