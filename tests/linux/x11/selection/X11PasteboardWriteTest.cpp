// SPDX-License-Identifier: GPL-3.0-or-later
#include "foundation/UniformType.h"
#include "linux/x11/selection/X11PasteboardWorld.h"

#include <cstring>

namespace vellumry {

namespace {

using X11PasteboardWrite = X11PasteboardWorld;

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
    EXPECT_EQ(ask(requestor, "TIMESTAMP").type, "INTEGER");
    EXPECT_EQ(ask(requestor, "image/png").type, "");
}

TEST_F(X11PasteboardWrite, TheTimestampIsTheServersTimeOfTheOwnership) {
    const auto timeOf = [&](HostileOwner& requestor) {
        const HostileOwner::Answer answer = ask(requestor, "TIMESTAMP");
        quint32 time = 0;
        EXPECT_EQ(answer.bytes.size(), qsizetype(sizeof time));
        memcpy(&time, answer.bytes.constData(), std::min(sizeof time, std::size_t(answer.bytes.size())));
        return time;
    };
    HostileOwner& requestor = peer();
    const quint32 before = requestor.serverTime();
    ASSERT_TRUE(write({{uniformtype::utf8PlainText, "t"}}));
    const quint32 after = requestor.serverTime();
    const quint32 time = timeOf(requestor);
    EXPECT_GE(time, before);
    EXPECT_LE(time, after);
    EXPECT_EQ(timeOf(requestor), time);
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
    EXPECT_TRUE(eventually([&owner] { return owner.lostClipboard; }));
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

TEST_F(X11PasteboardWrite, ASecretOnThePrimarySelectionGoesWithTheSecret) {
    HostileOwner& terminal = peer();
    const auto pasteSecret = [&] {
        ASSERT_TRUE(write({{uniformtype::utf8PlainText, "secret"}}));
        pasteboard->markSecret(pasteboard->changeCount());
        ASSERT_TRUE(pasteboard->offerAsPrimary());
        EXPECT_EQ(ask(terminal, "UTF8_STRING", "PRIMARY").bytes, "secret");
    };
    const auto isGone = [&] { return !terminal.hasOwner("PRIMARY"); };
    pasteSecret();
    pasteboard->giveUp(pasteboard->changeCount());
    EXPECT_TRUE(eventually(isGone));
    EXPECT_TRUE(eventually([&] { return !terminal.hasOwner("CLIPBOARD"); }));
    pasteSecret();
    copied({{"UTF8_STRING", "the next copy"}});
    EXPECT_TRUE(eventually(isGone));
    pasteSecret();
    ASSERT_TRUE(write({{uniformtype::utf8PlainText, "the next paste"}}));
    EXPECT_TRUE(eventually(isGone));
    EXPECT_EQ(ask(terminal, "UTF8_STRING").bytes, "the next paste");
}

TEST_F(X11PasteboardWrite, WhatIsNoSecretStaysOnThePrimarySelection) {
    ASSERT_TRUE(write({{uniformtype::utf8PlainText, "words"}}));
    ASSERT_TRUE(pasteboard->offerAsPrimary());
    copied({{"UTF8_STRING", "the next copy"}});
    catchUp();
    EXPECT_EQ(ask(peer(), "UTF8_STRING", "PRIMARY").bytes, "words");
}

TEST_F(X11PasteboardWrite, WhatIsGivenUpIsServedToNobodyAnyMore) {
    ASSERT_TRUE(write({{uniformtype::utf8PlainText, "secret"}}));
    const qint64 changeCount = pasteboard->changeCount();
    HostileOwner& requestor = peer();
    EXPECT_EQ(ask(requestor, "UTF8_STRING").bytes, "secret");
    pasteboard->giveUp(changeCount);
    EXPECT_TRUE(eventually([&] { return !requestor.hasOwner("CLIPBOARD"); }));
    EXPECT_TRUE(eventually([&] { return pasteboard->changeCount() == changeCount + 1; }));
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
