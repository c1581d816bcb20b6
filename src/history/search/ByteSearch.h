// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <cstddef>

namespace vellumry {

/// How often text of many languages has a byte: the greater the more often, at most 200. Only the order means anything.
[[nodiscard]] unsigned char frequencyOfByte(unsigned char byte);

/// Finds one sequence of bytes in long stretches of memory, at the speed of that memory: it looks at the two bytes of
/// the needle that text seldom has, many places at a time. A value, prepared once for each needle; any thread.
class ByteSearch {
public:
    /// `needle` may not be empty.
    explicit ByteSearch(QByteArray needle);

    /// The first place of the needle in [begin, end), or null. Reads no byte outside.
    [[nodiscard]] const char* find(const char* begin, const char* end) const;
    /// The same for the text in lower case, which is ASCII and needs no copy for it. The needle must be in lower case.
    [[nodiscard]] const char* findInAnyCase(const char* begin, const char* end) const;
    [[nodiscard]] const QByteArray& needle() const { return m_needle; }

private:
    enum class Case { asItIs, any };

    /// Examines as many whole blocks as fit; `begin` is moved behind what it has ruled out.
    template <Case letters>
    const char* findInBlocks(const char*& begin, const char* end) const;
    template <Case letters>
    [[nodiscard]] bool isAt(const char* place) const;

    QByteArray m_needle;
    bool m_isAscii = true;
    std::size_t m_rare = 0;   ///< where in the needle its rarest byte stands
    std::size_t m_second = 0; ///< its second rarest, elsewhere; the same when the needle has one byte
};

} // namespace vellumry
