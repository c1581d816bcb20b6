// SPDX-License-Identifier: GPL-3.0-or-later
#include "foundation/Text.h"
#include "history/search/ClipSearch.h"
#include "history/search/LookAlike.h"

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

ClipRef changed(const ClipRef& clip, const std::function<void(Clip&)>& change) {
    Clip copy = *clip;
    change(copy);
    return std::make_shared<const Clip>(std::move(copy));
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
        const auto keys = m_keys.try_emplace(clip.id, lookAlikeKeysOf(clip.imageText->toString())).first;
        return lookAlikeMatch(queryKeys, keys->second).has_value();
    }
    QByteArray foldedBytes(const Clip& clip) {
        if (clip.isSensitive())
            return text::foldedBytes(clip.sourceAppName.value_or(QString()));
        const QString haystack = clip.title.toString() + u'\n' + clip.searchText.toString() + u'\n' +
                                 clip.sourceAppName.value_or(QString()) + u'\n' +
                                 clip.imageText.value_or(StoredText()).toString();
        return m_folded.try_emplace(clip.id, text::foldedBytes(QStringView(haystack))).first->second;
    }

    std::map<QUuid, QByteArray> m_folded;
    std::map<QUuid, LookAlikeKeys> m_keys;
};

/// A history that changes at random, and two searches that must agree about it.
class ChangingHistory {
public:
    explicit ChangingHistory(unsigned seed)
        : m_random(seed) {}

    void change() {
        ++m_revision;
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
            ASSERT_EQ(m_search.search(m_clips, text, filter, maybeRevision()), m_plain.search(m_clips, text, filter))
                << text.toStdString() << ", filter " << rawValue(filter).toStdString();
        }
        ASSERT_EQ(m_search.search(m_clips, query, ClipFilter::all), m_plain.search(m_clips, query, ClipFilter::all));
    }

private:
    QString words(int count) {
        static const QStringList vocabulary{u"hello"_s,   u"He110"_s,   u"café"_s,   u"CAFE\u0301"_s, u"ｗｉｄｅ"_s,
                                            u"invoice"_s, u"lnvo1ce"_s, u"Straße"_s, u"日本"_s,       u"привет"_s,
                                            u"a"_s,       u"1"_s,       u"😀"_s};
        QStringList chosen;
        for (int number = 0; number < count; ++number)
            chosen << vocabulary.at(static_cast<qsizetype>(m_random() % static_cast<unsigned>(vocabulary.size())));
        return chosen.join(m_random() % 5 == 0 ? u'\n' : u' ');
    }

    QString plainWords(int count) {
        static const QStringList vocabulary{u"hello"_s, u"HELLO"_s, u"Invoice"_s, u"a[@`{"_s, u"Cafe"_s};
        QStringList chosen;
        for (int number = 0; number < count; ++number)
            chosen << vocabulary.at(static_cast<qsizetype>(m_random() % static_cast<unsigned>(vocabulary.size())));
        return words(1).left(1) == u"a"_s ? chosen.join(u'\n') : chosen.join(u' ');
    }

    void fill(Clip& clip) {
        clip.kind = static_cast<ClipKind>(m_random() % 6);
        clip.title = words(1);
        clip.searchText = words(static_cast<int>(m_random() % 6));
        clip.sourceAppName = m_random() % 3 == 0 ? std::optional<QString>() : words(1);
        // So long and plain that it is searched where it lies.
        if (m_random() % 4 == 0)
            clip.searchText = plainWords(600);
        clip.imageText.reset();
        if (m_random() % 2 != 0)
            clip.imageText = words(static_cast<int>(m_random() % 30));
        clip.isPinned = m_random() % 4 == 0;
        clip.expiresAt = m_random() % 5 == 0 ? std::optional<Date>(100) : std::nullopt;
    }

    /// Its owner may number the clips or not, and change its mind.
    std::optional<qint64> maybeRevision() {
        return m_random() % 4 == 0 ? std::optional<qint64>() : std::optional(m_revision);
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
    qint64 m_revision = 0;
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
