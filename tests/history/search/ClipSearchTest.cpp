// SPDX-License-Identifier: GPL-3.0-or-later
#include "history/search/ClipSearch.h"

#include <functional>
#include <gtest/gtest.h>

namespace vellumry {
namespace {

using namespace Qt::StringLiterals;
using Clips = std::vector<ClipRef>;

ClipRef clipWith(const std::function<void(Clip&)>& change) {
    Clip clip;
    clip.id = QUuid::createUuid();
    change(clip);
    return std::make_shared<const Clip>(std::move(clip));
}

ClipRef textClip(const QString& text) {
    return clipWith([&](Clip& clip) {
        clip.title = text;
        clip.searchText = text;
    });
}

ClipRef pictureOf(const QString& text) {
    return clipWith([&](Clip& clip) {
        clip.kind = ClipKind::image;
        clip.title = u"Image"_s;
        clip.imageText = text;
    });
}

ClipRef secretFrom(const QString& application, const QString& text) {
    return clipWith([&](Clip& clip) {
        clip.title = text;
        clip.searchText = text;
        clip.sourceAppName = application;
        clip.expiresAt = 100;
    });
}

ClipRef changed(const ClipRef& clip, const std::function<void(Clip&)>& change) {
    Clip copy = *clip;
    change(copy);
    return std::make_shared<const Clip>(std::move(copy));
}

/// What a search answers about one clip.
bool finds(const ClipRef& clip, const QString& query) {
    ClipSearch search;
    return search.search({clip}, query, ClipFilter::all).size() == 1;
}

TEST(ClipSearch, ABlankQueryListsWhatTheFilterAllows) {
    ClipSearch search;
    const ClipRef text = textClip(u"one"_s);
    const ClipRef picture = pictureOf(u"two"_s);
    const Clips clips{text, picture};
    for (const QString& query : {QString(), u"   "_s, u" \t\n"_s}) {
        EXPECT_EQ(search.search(clips, query, ClipFilter::all), clips);
        EXPECT_EQ(search.search(clips, query, ClipFilter::images), Clips{picture});
    }
}

TEST(ClipSearch, PinnedClipsComeInTheOrderOfTheHistory) {
    const auto pinned = [](const QString& text, qint64 order) {
        return changed(textClip(text), [&](Clip& clip) {
            clip.isPinned = true;
            clip.pinOrder = order;
        });
    };
    const Clips clips{pinned(u"a"_s, 3), textClip(u"a"_s), pinned(u"a"_s, 1), pinned(u"b"_s, 2)};
    ClipSearch search;
    EXPECT_EQ(search.search(clips, QString(), ClipFilter::pinned), (Clips{clips[0], clips[2], clips[3]}));
    EXPECT_EQ(search.search(clips, u"a"_s, ClipFilter::pinned), (Clips{clips[0], clips[2]}));
}

TEST(ClipSearch, CaseAccentsAndWidthMakeNoDifference) {
    EXPECT_TRUE(finds(textClip(u"un café noir"_s), u"CAFE"_s));
    EXPECT_TRUE(finds(textClip(u"un cafe noir"_s), u"Café"_s));
    EXPECT_TRUE(finds(textClip(u"xabcx"_s), u"ａｂｃ"_s));
    EXPECT_TRUE(finds(textClip(u"ＡＢＣ"_s), u"abc"_s));
    EXPECT_TRUE(finds(textClip(u"Straße"_s), u"STRASSE"_s));
}

TEST(ClipSearch, EverythingThatAReaderRemembersIsSearched) {
    const ClipRef clip = clipWith([](Clip& it) {
        it.title = u"the title"_s;
        it.searchText = u"the words"_s;
        it.sourceAppName = u"Editor"_s;
        it.imageText = u"the picture"_s;
    });
    for (const QString& query : {u"title"_s, u"words"_s, u"editor"_s, u"picture"_s})
        EXPECT_TRUE(finds(clip, query)) << query.toStdString();
    EXPECT_FALSE(finds(clip, u"absent"_s));
}

TEST(ClipSearch, LineFeedsStandBetweenTheFields) {
    const ClipRef clip = clipWith([](Clip& it) {
        it.title = u"one"_s;
        it.searchText = u"two"_s;
        it.sourceAppName = u"three"_s;
    });
    EXPECT_TRUE(finds(clip, u"one\ntwo\nthree"_s));
    EXPECT_FALSE(finds(clip, u"onetwo"_s));
}

TEST(ClipSearch, ANeedleDoesNotReachIntoTheNextClip) {
    ClipSearch search;
    EXPECT_TRUE(search.search({textClip(u"one"_s), textClip(u"two"_s)}, u"one\ntwo"_s, ClipFilter::all).empty());
}

TEST(ClipSearch, ASensitiveClipIsFoundByItsApplicationOnly) {
    const ClipRef secret = secretFrom(u"Terminal"_s, u"hunter2"_s);
    EXPECT_FALSE(finds(secret, u"hunter"_s));
    EXPECT_TRUE(finds(secret, u"TERM"_s));
    EXPECT_FALSE(finds(changed(secret, [](Clip& clip) { clip.sourceAppName.reset(); }), u"hunter"_s));
}

TEST(ClipSearch, TheImageTextOfASensitiveClipStaysReachable) {
    const ClipRef secret = changed(pictureOf(u"boarding pass"_s), [](Clip& clip) { clip.expiresAt = 100; });
    EXPECT_TRUE(finds(secret, u"boarding"_s));
    EXPECT_FALSE(finds(secret, u"image"_s));
}

TEST(ClipSearch, ARescuedSecretIsFoundByItsText) {
    ClipSearch search;
    const ClipRef secret = secretFrom(u"Terminal"_s, u"hunter2"_s);
    EXPECT_TRUE(search.search({secret}, u"hunter"_s, ClipFilter::all).empty());
    const ClipRef pinned = changed(secret, [](Clip& clip) {
        clip.expiresAt.reset();
        clip.isPinned = true;
    });
    EXPECT_EQ(search.search({pinned}, u"hunter"_s, ClipFilter::all), Clips{pinned});
}

TEST(ClipSearch, ATextThatBecameSensitiveIsNotFoundAnyMore) {
    ClipSearch search;
    const ClipRef plain = textClip(u"hunter2"_s);
    EXPECT_EQ(search.search({plain}, u"hunter"_s, ClipFilter::all).size(), 1U);
    const ClipRef secret = changed(plain, [](Clip& clip) { clip.expiresAt = 100; });
    search.forgetText(plain->id);
    EXPECT_TRUE(search.search({secret}, u"hunter"_s, ClipFilter::all).empty());
}

TEST(ClipSearch, MisreadPicturesAreFound) {
    EXPECT_TRUE(finds(pictureOf(u"He110 W0r1d"_s), u"hello world"_s));
    EXPECT_TRUE(finds(pictureOf(u"your involce"_s), u"invoice"_s));
    EXPECT_FALSE(finds(pictureOf(u"abcdX"_s), u"abcde"_s));
    EXPECT_TRUE(finds(pictureOf(u"abcdeX"_s), u"abcdef"_s));
    EXPECT_FALSE(finds(pictureOf(QString()), u"abcdef"_s));
}

TEST(ClipSearch, TypingErrorsInTextAreNotForgiven) {
    EXPECT_FALSE(finds(textClip(u"the involce"_s), u"invoice"_s));
    EXPECT_FALSE(finds(textClip(u"abcdeX"_s), u"abcdef"_s));
}

TEST(ClipSearch, NewImageTextIsFindableAtOnce) {
    ClipSearch search;
    const ClipRef before = pictureOf(u"first reading"_s);
    EXPECT_EQ(search.search({before}, u"f1rst"_s, ClipFilter::all).size(), 1U);
    const ClipRef after = changed(before, [](Clip& clip) { clip.imageText = u"second reading"_s; });
    search.forgetText(before->id);
    search.forgetLookAlikes(before->id);
    EXPECT_EQ(search.search({after}, u"second"_s, ClipFilter::all), Clips{after});
    EXPECT_EQ(search.search({after}, u"5econd"_s, ClipFilter::all), Clips{after});
    EXPECT_TRUE(search.search({after}, u"first"_s, ClipFilter::all).empty());
}

TEST(ClipSearch, WhatWasForgottenOfAClipThatStaysIsMadeAnew) {
    ClipSearch search;
    const Clips clips{textClip(u"first words"_s), pictureOf(u"second w0rds"_s)};
    EXPECT_EQ(search.search(clips, u"w0rds"_s, ClipFilter::all), Clips{clips[1]});
    for (const ClipRef& clip : clips) {
        search.forgetText(clip->id);
        search.forgetLookAlikes(clip->id);
    }
    EXPECT_EQ(search.search(clips, u"words"_s, ClipFilter::all), clips);
}

TEST(ClipSearch, WhoGoesOnTypingSeesFewerClipsAndMoreAgainWhenDeleting) {
    ClipSearch search;
    const Clips clips{textClip(u"alpha"_s), textClip(u"alps"_s), textClip(u"beta"_s), pictureOf(u"a1pine"_s)};
    EXPECT_EQ(search.search(clips, u"a"_s, ClipFilter::all).size(), 4U);
    EXPECT_EQ(search.search(clips, u"alp"_s, ClipFilter::all), (Clips{clips[0], clips[1], clips[3]}));
    EXPECT_EQ(search.search(clips, u"alph"_s, ClipFilter::all), Clips{clips[0]});
    EXPECT_EQ(search.search(clips, u"al"_s, ClipFilter::all), (Clips{clips[0], clips[1], clips[3]}));
    EXPECT_EQ(search.search(clips, u"alp"_s, ClipFilter::images), Clips{clips[3]});
    EXPECT_EQ(search.search(clips, u"alp"_s, ClipFilter::text), (Clips{clips[0], clips[1]}));
}

TEST(ClipSearch, ALongerQueryMayForgiveMoreThanAShorterOne) {
    ClipSearch search;
    const Clips clips{pictureOf(u"abcXef"_s)};
    EXPECT_TRUE(search.search(clips, u"abcde"_s, ClipFilter::all).empty());
    EXPECT_EQ(search.search(clips, u"abcdef"_s, ClipFilter::all), clips);
}

TEST(ClipSearch, KeepsNoClipAlive) {
    ClipSearch search;
    ClipRef clip = textClip(u"fleeting"_s);
    const std::weak_ptr<const Clip> watcher = clip;
    EXPECT_EQ(search.search({clip}, u"fleet"_s, ClipFilter::all).size(), 1U);
    clip.reset();
    EXPECT_TRUE(watcher.expired());
}

TEST(ClipSearch, FollowsAClipThatMovesToTheTopAndOneThatGoes) {
    ClipSearch search;
    Clips clips;
    for (int number = 0; number < 50; ++number)
        clips.push_back(textClip(u"clip number %1"_s.arg(number)));
    EXPECT_EQ(search.search(clips, u"number"_s, ClipFilter::all), clips);
    const ClipRef used = changed(clips[30], [](Clip& clip) { clip.lastUsedAt = 9; });
    clips.erase(clips.begin() + 30);
    clips.insert(clips.begin(), used);
    EXPECT_EQ(search.search(clips, u"number"_s, ClipFilter::all), clips);
    search.forgetText(clips[10]->id);
    search.forgetLookAlikes(clips[10]->id);
    clips.erase(clips.begin() + 10);
    EXPECT_EQ(search.search(clips, u"number"_s, ClipFilter::all), clips);
    EXPECT_EQ(search.search(clips, u"number 30"_s, ClipFilter::all), Clips{used});
}

/// Prepares until all is done; the number of slices that it took.
int prepared(ClipSearch& search, const Clips& clips, qint64 revision, std::chrono::microseconds budget) {
    int slices = 1;
    while (!search.prepare(clips, revision, budget))
        ++slices;
    return slices;
}

TEST(ClipSearch, WhatWasPreparedIsFoundAsIfItHadNotBeen) {
    const Clips clips{textClip(u"Strasse"_s), pictureOf(u"invoice"_s), secretFrom(u"Terminal"_s, u"hunter2"_s)};
    ClipSearch search;
    (void)prepared(search, clips, 1, std::chrono::seconds(1));
    EXPECT_EQ(search.search(clips, u"STRASSE"_s, ClipFilter::all, 1), Clips{clips[0]});
    EXPECT_EQ(search.search(clips, u"lnvoice"_s, ClipFilter::all, 1), Clips{clips[1]});
    EXPECT_EQ(search.search(clips, u"hunter2"_s, ClipFilter::all, 1), Clips());
    EXPECT_EQ(search.search(clips, u"termi"_s, ClipFilter::all, 1), Clips{clips[2]});
}

TEST(ClipSearch, PreparingGoesOnWhereTheLastSliceEnded) {
    Clips clips;
    for (int number = 0; number < 5000; ++number)
        clips.push_back(textClip(u"text %1 "_s.arg(number).repeated(40)));
    ClipSearch search;
    EXPECT_GT(prepared(search, clips, 1, std::chrono::microseconds(200)), 1);
    EXPECT_EQ(search.search(clips, u"text 4999 "_s, ClipFilter::all, 1), Clips{clips.back()});
}

TEST(ClipSearch, BehindAChangeOnlyWhatIsNewIsLookedAt) {
    Clips clips{secretFrom(u"Terminal"_s, u"hunter2"_s)};
    for (int number = 0; number < 5000; ++number)
        clips.push_back(textClip(u"text %1 "_s.arg(number)));
    ClipSearch search;
    (void)prepared(search, clips, 1, std::chrono::seconds(1));
    constexpr std::chrono::microseconds noTime{0};
    search.forgetText(clips.back()->id);
    clips.pop_back();
    EXPECT_TRUE(search.prepare(clips, 2, noTime));
    clips.insert(clips.begin(), textClip(u"newcomer"_s));
    EXPECT_FALSE(search.prepare(clips, 3, noTime));
    (void)prepared(search, clips, 3, std::chrono::seconds(1));
    EXPECT_TRUE(search.prepare(clips, 4, noTime));
    EXPECT_EQ(search.search(clips, u"newcomer"_s, ClipFilter::all, 4), Clips{clips.front()});
    EXPECT_EQ(search.search(clips, u"text 4998 "_s, ClipFilter::all, 4), Clips{clips.back()});
}

TEST(ClipSearch, BehindASearchNothingIsLeftToPrepare) {
    Clips clips{secretFrom(u"Terminal"_s, u"hunter2"_s)};
    for (int number = 0; number < 5000; ++number)
        clips.push_back(textClip(u"text %1 "_s.arg(number)));
    ClipSearch search;
    (void)search.search(clips, u"text"_s, ClipFilter::all, 1);
    constexpr std::chrono::microseconds noTime{0};
    EXPECT_TRUE(search.prepare(clips, 1, noTime)) << "all clips are gone through once more behind each keystroke";
    clips.insert(clips.begin(), textClip(u"newcomer"_s));
    EXPECT_FALSE(search.prepare(clips, 2, noTime));
}

TEST(ClipSearch, WhatChangesWhileTheRestIsPreparedIsFoundAsItIsNow) {
    Clips clips;
    for (int number = 0; number < 500; ++number)
        clips.push_back(textClip(u"old %1 "_s.arg(number).repeated(100)));
    ClipSearch search;
    EXPECT_FALSE(search.prepare(clips, 1, std::chrono::microseconds(1)) && clips.size() > 16);
    const ClipRef gone = clips.front();
    search.forgetText(gone->id);
    clips.erase(clips.begin());
    search.forgetText(clips.front()->id);
    clips.front() = changed(clips.front(), [](Clip& clip) { clip.searchText = u"new"_s; });
    (void)prepared(search, clips, 2, std::chrono::microseconds(100));
    EXPECT_EQ(search.search(clips, u"new"_s, ClipFilter::all, 2), Clips{clips.front()});
    EXPECT_EQ(search.search(clips, u"old 0 "_s, ClipFilter::all, 2), Clips());
}

TEST(ClipSearch, TextsThatWentDoNotPileUpWhereNothingIsSearchedFor) {
    Clips clips;
    ClipSearch search;
    constexpr int kept = 50;
    for (int number = 0; number < 2000; ++number) {
        clips.push_back(textClip(u"text %1 "_s.arg(number).repeated(1000)));
        if (clips.size() > kept) {
            search.forgetText(clips.front()->id);
            clips.erase(clips.begin());
        }
        (void)prepared(search, clips, number, std::chrono::seconds(1));
    }
    EXPECT_LT(search.capacity(), std::size_t{4} << 20); // all of them took 18 MB
    EXPECT_EQ(search.search(clips, u"text 1999 "_s, ClipFilter::all, 1999), Clips{clips.back()});
    EXPECT_EQ(search.search(clips, u"text 1949 "_s, ClipFilter::all, 1999), Clips());
    EXPECT_EQ(search.search(clips, u"text"_s, ClipFilter::all, 1999), clips);
}

TEST(ClipSearch, ATextThatChangedIsFoundAsItIsNowWhenItsPlaceWasGivenToAnother) {
    Clips clips{textClip(u"first "_s.repeated(200'000)), textClip(u"second"_s)};
    ClipSearch search;
    (void)prepared(search, clips, 1, std::chrono::seconds(1));
    EXPECT_EQ(search.search(clips, u"first"_s, ClipFilter::all, 1), Clips{clips[0]});
    search.forgetText(clips[0]->id);
    clips[0] = changed(clips[0], [](Clip& clip) { clip.searchText = u"renewed"_s; });
    clips.insert(clips.begin(), textClip(u"newcomer"_s));
    (void)prepared(search, clips, 2, std::chrono::seconds(1));
    EXPECT_EQ(search.search(clips, u"newcomer"_s, ClipFilter::all, 2), Clips{clips[0]});
    EXPECT_EQ(search.search(clips, u"renewed"_s, ClipFilter::all, 2), Clips{clips[1]});
    EXPECT_EQ(search.search(clips, u"second"_s, ClipFilter::all, 2), Clips{clips[2]});
}

} // namespace
} // namespace vellumry
