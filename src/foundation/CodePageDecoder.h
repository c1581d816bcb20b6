// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QString>
#include <map>
#include <memory>

struct UConverter;

namespace vellumry {

/// Turns bytes of Windows and Macintosh code pages into text. Keeps its converters; one thread.
class CodePageDecoder {
public:
    CodePageDecoder();
    ~CodePageDecoder();
    CodePageDecoder(const CodePageDecoder&) = delete;
    CodePageDecoder& operator=(const CodePageDecoder&) = delete;

    /// Bytes without a meaning become U+FFFD; an unknown code page is read as 1252.
    [[nodiscard]] QString decoded(const QByteArray& bytes, int codePage);

private:
    struct ConverterCloser {
        void operator()(UConverter* converter) const;
    };
    using Converter = std::unique_ptr<UConverter, ConverterCloser>;
    [[nodiscard]] static Converter opened(int codePage);

    std::map<int, Converter> m_converters;
};

} // namespace vellumry
