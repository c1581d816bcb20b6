// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "history/clips/Clip.h"

#include <QByteArray>
#include <cstdint>
#include <random>
#include <string>
#include <vector>

namespace vellumry::bench {

/// Clips as people who copy all day have them, the same for the same seed: most are a few words, a few are whole files
/// (median 18 characters, mean about 700, at most 585,000), one in twenty is a picture with a thumbnail of 8 KB, every
/// second of these with text that was read out of it. The words come from made-up vocabularies in several scripts.
class Corpus {
public:
    explicit Corpus(std::uint64_t seed);

    [[nodiscard]] std::vector<ClipRef> clips(std::size_t count);
    /// Pictures only, each with that many characters of text.
    [[nodiscard]] std::vector<ClipRef> screenshots(std::size_t count, std::size_t characters);
    /// What the clip's pasteboard held.
    [[nodiscard]] static ClipPayload payloadOf(const Clip& clip);
    /// A piece of the running text that all clips are cut from, in ASCII: of `samples` pieces the one that is most, or
    /// least, often among them.
    [[nodiscard]] QByteArray piece(std::size_t length, bool isCommon, std::size_t samples);

private:
    void makeText();
    [[nodiscard]] QByteArray cut(std::size_t bytes);
    [[nodiscard]] ClipRef nextClip();
    [[nodiscard]] std::size_t upTo(std::size_t bound) { return static_cast<std::size_t>(m_random() % bound); }

    std::mt19937_64 m_random;
    std::string m_text;
    std::vector<std::size_t> m_wordStarts;
    std::vector<QByteArray> m_thumbnails;
    std::uint64_t m_made = 0;
};

} // namespace vellumry::bench
