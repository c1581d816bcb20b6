// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "history/search/LookAlike.h"
#include "history/search/LookAlikeAlphabet.h"
#include "history/search/LookAlikeScan.h"

#include <cstdint>
#include <optional>
#include <span>
#include <variant>
#include <vector>

namespace vellumry {

/// The keys of one text, in the fewest bytes that hold them; wiped when they go.
class LookAlikeText {
public:
    LookAlikeText(const LookAlikeKeys& keys, LookAlikeAlphabet& alphabet);
    ~LookAlikeText();
    LookAlikeText(const LookAlikeText&) = delete;
    LookAlikeText& operator=(const LookAlikeText&) = delete;

    /// Bytes of the alphabet, else the keys themselves.
    using Storage = std::variant<std::vector<std::uint8_t>, std::vector<std::uint16_t>, std::vector<std::uint32_t>>;
    [[nodiscard]] const Storage& storage() const { return m_storage; }
    /// Asks for the first keys, so that they are there when they are read a little later.
    void prefetch() const;

private:
    Storage m_storage;
};

/// One query, prepared once to be looked for in many texts.
class LookAlikeMatcher {
public:
    /// For texts of this alphabet that exist already.
    LookAlikeMatcher(std::span<const std::uint32_t> query, const LookAlikeAlphabet& alphabet);

    /// The first start of a tolerated stretch.
    [[nodiscard]] std::optional<std::size_t> find(const LookAlikeText& text) const;
    [[nodiscard]] std::optional<std::size_t> find(std::span<const std::uint32_t> text) const;

private:
    int m_allowed;
    LookAlikeQuery<std::uint8_t> m_bytes;
    LookAlikeQuery<std::uint16_t> m_units;
    LookAlikeQuery<std::uint32_t> m_scalars;
};

} // namespace vellumry
