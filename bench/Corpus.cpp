// SPDX-License-Identifier: GPL-3.0-or-later
#include "Corpus.h"

#include "foundation/UniformType.h"

#include <QUuid>
#include <algorithm>
#include <array>
#include <cmath>
#include <map>

namespace vellumry::bench {

namespace {

constexpr std::size_t textSize = std::size_t{8} << 20;
constexpr double medianLength = 18;
constexpr double spread = 2.72; ///< of the logarithm: it gives the mean of about 700
constexpr double longestClip = 585'000;

/// Onsets and rimes of one language; its words are one to four of their pairs.
struct Language {
    std::vector<std::string> onsets;
    std::vector<std::string> rimes;
    unsigned share; ///< per cent of all text
};

const std::vector<Language>& languages() {
    static const std::vector<Language> all = {
        {{"",  "b", "c", "d",  "f", "g",  "h",  "l", "m", "n",  "p",
          "r", "s", "t", "th", "w", "st", "tr", "v", "k", "qu", "j"},
         {"a", "e", "i", "o", "u", "an", "en", "er", "in", "on", "es", "ed", "ing", "at", "ix", "ay", "ou"},
         72},
        {{"", "b", "d", "f", "g", "h", "k", "l", "m", "n", "r", "s", "sch", "t", "w", "z", "B", "G", "S"},
         {"a", "ä", "e", "ei", "en", "er", "ie", "o", "ö", "u", "ü", "ung", "aß", "é"},
         14},
        {{"б", "в", "г", "д", "к", "л", "м", "н", "п", "р", "с", "т", "П"},
         {"а", "е", "и", "о", "у", "ой", "ие", "ть"},
         7},
        {{"κ", "λ", "μ", "ν", "π", "σ", "τ"}, {"α", "ε", "ι", "ο", "ος", "ας", "ή"}, 4},
        {{"カ", "シ", "日", "本", "語", "の", "と"}, {"ア", "ン", "を", "に", "は"}, 3},
    };
    return all;
}

} // namespace

Corpus::Corpus(std::uint64_t seed)
    : m_random(seed) {
    makeText();
    for (int count = 0; count < 32; ++count) {
        QByteArray thumbnail(8000 + static_cast<qsizetype>(upTo(400)), Qt::Uninitialized);
        std::generate(thumbnail.begin(), thumbnail.end(), [this] { return static_cast<char>(m_random()); });
        m_thumbnails.push_back(thumbnail);
    }
}

void Corpus::makeText() {
    std::uniform_real_distribution<double> uniform(0, 1);
    for (const Language& language : languages()) {
        std::vector<std::string> words;
        for (int count = 0; count < 6000; ++count) {
            std::string word;
            for (std::size_t pairs = 1 + upTo(4); pairs > 0; --pairs)
                word += language.onsets[upTo(language.onsets.size())] + language.rimes[upTo(language.rimes.size())];
            words.push_back(word);
        }
        for (const std::size_t end = m_text.size() + textSize / 100 * language.share; m_text.size() < end;) {
            // A word's rank falls off as in any language: the second is half as frequent as the first.
            const double rank = std::exp(uniform(m_random) * std::log(static_cast<double>(words.size())));
            m_wordStarts.push_back(m_text.size());
            m_text += words[std::min(static_cast<std::size_t>(rank), words.size() - 1)];
            m_text += upTo(12) == 0 ? (upTo(3) == 0 ? "\n" : ", ") : " ";
        }
    }
}

QByteArray Corpus::cut(std::size_t bytes) {
    std::size_t start = m_text.size();
    while (start + bytes >= m_text.size())
        start = m_wordStarts[upTo(m_wordStarts.size())];
    // The last character is kept whole.
    while (start + bytes < m_text.size() && (static_cast<unsigned char>(m_text[start + bytes]) & 0xC0U) == 0x80)
        ++bytes;
    return {m_text.data() + start, static_cast<qsizetype>(bytes)};
}

ClipRef Corpus::nextClip() {
    static const QStringList applications{QStringLiteral("Terminal"), QStringLiteral("Firefox"),
                                          QStringLiteral("Editor"),   QStringLiteral("Mail"),
                                          QStringLiteral("Files"),    QStringLiteral("Slides")};
    auto clip = std::make_shared<Clip>();
    const quint64 high = m_random();
    clip->id = QUuid(static_cast<uint>(high), static_cast<ushort>(high >> 32), static_cast<ushort>(high >> 48), 1, 2, 3,
                     4, static_cast<uchar>(m_made >> 24), static_cast<uchar>(m_made >> 16),
                     static_cast<uchar>(m_made >> 8), static_cast<uchar>(m_made));
    clip->createdAt = clip->lastUsedAt = 1.8e9 - static_cast<double>(++m_made);
    // As random as an authentication code.
    const std::array<quint64, 4> code{m_random(), m_random(), m_random(), m_random()};
    clip->fingerprint = Fingerprint::ofCode({reinterpret_cast<const char*>(code.data()), sizeof code});
    clip->sourceAppName = applications.at(static_cast<qsizetype>(upTo(static_cast<std::size_t>(applications.size()))));
    clip->sourceBundleID = QStringLiteral("org.example.") + *clip->sourceAppName;
    if (upTo(20) == 0) {
        clip->kind = ClipKind::image;
        clip->title = QStringLiteral("Image 1920 × 1080");
        clip->thumbnail = m_thumbnails[upTo(m_thumbnails.size())];
        if (upTo(2) == 0)
            clip->imageText = QString::fromUtf8(cut(100 + upTo(1400)));
        clip->byteSize = 200'000;
        return clip;
    }
    const double length = std::lognormal_distribution<double>(std::log(medianLength), spread)(m_random);
    const QByteArray text = cut(static_cast<std::size_t>(std::clamp(length, 1.0, longestClip)));
    clip->searchText = StoredText::fromUtf8(text);
    clip->title = QString::fromUtf8(text.left(text.indexOf('\n'))).left(300);
    clip->title.shareWith(clip->searchText);
    clip->byteSize = text.size();
    return clip;
}

std::vector<ClipRef> Corpus::clips(std::size_t count) {
    std::vector<ClipRef> result(count);
    std::generate(result.begin(), result.end(), [this] { return nextClip(); });
    return result;
}

std::vector<ClipRef> Corpus::screenshots(std::size_t count, std::size_t characters) {
    std::vector<ClipRef> result;
    while (result.size() < count) {
        auto clip = std::make_shared<Clip>(*nextClip());
        clip->kind = ClipKind::image;
        clip->title = StoredText();
        clip->searchText = StoredText();
        clip->imageText = QString::fromUtf8(cut(2 * characters)).left(static_cast<qsizetype>(characters));
        result.push_back(clip);
    }
    return result;
}

ClipPayload Corpus::payloadOf(const Clip& clip) {
    ClipPayload::Item item;
    if (clip.kind == ClipKind::image)
        item.representations[uniformtype::png] = QByteArray(static_cast<qsizetype>(clip.byteSize), 'p');
    else
        item.representations[uniformtype::utf8PlainText] = clip.searchText.utf8();
    return {{item}};
}

QByteArray Corpus::piece(std::size_t length, bool isCommon, std::size_t samples) {
    std::map<QByteArray, std::size_t> counts;
    while (samples > 0) {
        const QByteArray candidate(m_text.data() + upTo(m_text.size() - length), static_cast<qsizetype>(length));
        const bool isPlain = std::all_of(candidate.begin(), candidate.end(),
                                         [](char byte) { return byte == ' ' || (byte >= 'a' && byte <= 'z'); });
        if (!isPlain || candidate.front() == ' ' || candidate.back() == ' ')
            continue;
        ++counts[candidate];
        --samples;
    }
    const auto less = [](const auto& left, const auto& right) { return left.second < right.second; };
    return (isCommon ? std::max_element(counts.begin(), counts.end(), less)
                     : std::min_element(counts.begin(), counts.end(), less))
        ->first;
}

} // namespace vellumry::bench
