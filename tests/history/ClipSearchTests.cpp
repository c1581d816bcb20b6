// SPDX-License-Identifier: GPL-3.0-or-later
#include "history/ClipSearch.h"

#include "foundation/Text.h"
#include "history/LookAlike.h"

#include <algorithm>
#include <functional>
#include <gtest/gtest.h>
#include <map>
#include <random>

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
    return clipWith([&](Clip& clip) { clip.title = text; clip.searchText = text; });
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

/// The definition, clip by clip, with the two caches that belong to it.
class PlainSearch {
public:
    Clips search(const Clips& clips, const QString& query, ClipFilter filter) {
        const QString trimmed = text::trimmed(query);
        const QByteArray needle = text::foldedBytes(trimmed);
        const LookAlikeKeys queryKeys = lookAlikeKeysOf(trimmed);
        Clips result;
        for (const ClipRef& clip : clips)
            if (passes(*clip, filter) && (needle.isEmpty() || matches(*clip, needle, queryKeys)))
                result.push_back(clip);
        return result;
    }
    void forgetText(const QUuid& id) { m_folded.erase(id); }
    void forgetLookAlikes(const QUuid& id) { m_keys.erase(id); }

private:
    bool matches(const Clip& clip, const QByteArray& needle, const LookAlikeKeys& queryKeys) {
        if (foldedBytes(clip).contains(needle))
            return true;
        if (!clip.imageText || clip.imageText->isEmpty())
            return false;
        const auto keys = m_keys.try_emplace(clip.id, lookAlikeKeysOf(*clip.imageText)).first;
        return lookAlikeMatch(queryKeys, keys->second).has_value();
    }
    QByteArray foldedBytes(const Clip& clip) {
        if (clip.isSensitive())
            return text::foldedBytes(clip.sourceAppName.value_or(QString()));
        const QString haystack = clip.title + u'\n' + clip.searchText.toString() + u'\n' +
                                 clip.sourceAppName.value_or(QString()) + u'\n' + clip.imageText.value_or(QString());
        return m_folded.try_emplace(clip.id, text::foldedBytes(QStringView(haystack))).first->second;
    }

    std::map<QUuid, QByteArray> m_folded;
    std::map<QUuid, LookAlikeKeys> m_keys;
};

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
        return changed(textClip(text), [&](Clip& clip) { clip.isPinned = true; clip.pinOrder = order; });
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
    const ClipRef pinned = changed(secret, [](Clip& clip) { clip.expiresAt.reset(); clip.isPinned = true; });
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

/// A history that changes at random, and two searches that must agree about it.
class ChangingHistory {
public:
    explicit ChangingHistory(unsigned seed) : m_random(seed) {}

    void change() {
        const auto kindOfChange = m_clips.empty() ? 0U : m_random() % 8;
        if (kindOfChange <= 3)
            insert(m_random() % (m_clips.size() + 1), clipWith([this](Clip& clip) { fill(clip); }));
        else if (kindOfChange == 4)
            remove(m_random() % m_clips.size());
        else if (kindOfChange == 5)
            moveToTop(m_random() % m_clips.size());
        else
            rewrite(m_random() % m_clips.size());
    }

    void compare() {
        QString query = m_random() % 3 == 0 ? words(1) : words(2);
        if (m_random() % 3 != 0)
            query.truncate(1 + static_cast<qsizetype>(m_random() % 8));
        const auto filter = allClipFilters.at(m_random() % allClipFilters.size());
        for (qsizetype typed = 1; typed <= query.size(); ++typed) {
            const QString text = query.first(typed);
            ASSERT_EQ(m_search.search(m_clips, text, filter), m_plain.search(m_clips, text, filter))
                << text.toStdString() << ", filter " << rawValue(filter).toStdString();
        }
        ASSERT_EQ(m_search.search(m_clips, query, ClipFilter::all), m_plain.search(m_clips, query, ClipFilter::all));
    }

private:
    QString words(int count) {
        static const QStringList vocabulary{u"hello"_s, u"He110"_s, u"café"_s,  u"CAFE\u0301"_s, u"ｗｉｄｅ"_s, u"invoice"_s,
                                            u"lnvo1ce"_s, u"Straße"_s, u"日本"_s, u"привет"_s, u"a"_s,  u"1"_s, u"😀"_s};
        QStringList chosen;
        for (int number = 0; number < count; ++number)
            chosen << vocabulary.at(static_cast<qsizetype>(m_random() % static_cast<unsigned>(vocabulary.size())));
        return chosen.join(m_random() % 5 == 0 ? u'\n' : u' ');
    }

    void fill(Clip& clip) {
        clip.kind = static_cast<ClipKind>(m_random() % 6);
        clip.title = words(1);
        clip.searchText = words(static_cast<int>(m_random() % 6));
        clip.sourceAppName = m_random() % 3 == 0 ? std::optional<QString>() : words(1);
        clip.imageText = m_random() % 2 == 0 ? std::optional<QString>() : words(static_cast<int>(m_random() % 30));
        clip.isPinned = m_random() % 4 == 0;
        clip.expiresAt = m_random() % 5 == 0 ? std::optional<Date>(100) : std::nullopt;
    }

    void forget(const QUuid& id) {
        m_search.forgetText(id);
        m_plain.forgetText(id);
        m_search.forgetLookAlikes(id);
        m_plain.forgetLookAlikes(id);
    }
    void insert(std::size_t position, ClipRef clip) {
        m_clips.insert(m_clips.begin() + static_cast<std::ptrdiff_t>(position), std::move(clip));
    }
    void remove(std::size_t position) {
        forget(m_clips[position]->id);
        m_clips.erase(m_clips.begin() + static_cast<std::ptrdiff_t>(position));
    }
    void moveToTop(std::size_t position) {
        const ClipRef used = changed(m_clips[position], [](Clip& clip) { clip.lastUsedAt += 1; });
        m_clips.erase(m_clips.begin() + static_cast<std::ptrdiff_t>(position));
        insert(0, used);
    }
    void rewrite(std::size_t position) {
        m_clips[position] = changed(m_clips[position], [this](Clip& clip) { fill(clip); });
        forget(m_clips[position]->id);
    }

    std::mt19937 m_random;
    Clips m_clips;
    ClipSearch m_search;
    PlainSearch m_plain;
};

class RandomHistory : public testing::TestWithParam<unsigned> {};

TEST_P(RandomHistory, IsSearchedAsTheDefinitionSays) {
    ChangingHistory history(GetParam());
    for (int step = 0; step < 200; ++step) {
        for (int changes = step % 7; changes > 0; --changes)
            history.change();
        ASSERT_NO_FATAL_FAILURE(history.compare()) << "step " << step;
    }
}

INSTANTIATE_TEST_SUITE_P(Seeds, RandomHistory, testing::Values(1U, 2U, 3U, 4U));

} // namespace
} // namespace vellumry
