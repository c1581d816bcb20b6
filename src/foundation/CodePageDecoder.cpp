// SPDX-License-Identifier: GPL-3.0-or-later
#include "foundation/CodePageDecoder.h"

#include <unicode/ucnv.h>

namespace vellumry {

namespace {

constexpr int westernEuropean = 1252;
constexpr std::size_t mostConverters = 32;

QByteArray nameOf(int codePage) {
    switch (codePage) {
    case 10000:
        return "macintosh";
    case 20127:
        return "us-ascii";
    case 65001:
        return "utf-8";
    case 874:
    case 932:
    case 936:
    case 949:
    case 950:
        return "windows-" + QByteArray::number(codePage);
    default:
        return (codePage >= 1250 && codePage <= 1258 ? "windows-" : "cp") + QByteArray::number(codePage);
    }
}

} // namespace

CodePageDecoder::CodePageDecoder() = default;
CodePageDecoder::~CodePageDecoder() = default;

void CodePageDecoder::ConverterCloser::operator()(UConverter* converter) const {
    ucnv_close(converter);
}

CodePageDecoder::Converter CodePageDecoder::opened(int codePage) {
    UErrorCode status = U_ZERO_ERROR;
    Converter converter(ucnv_open(nameOf(codePage).constData(), &status));
    if (U_FAILURE(status) && codePage != westernEuropean)
        return opened(westernEuropean);
    return converter;
}

QString CodePageDecoder::decoded(const QByteArray& bytes, int codePage) {
    auto known = m_converters.find(codePage);
    if (known == m_converters.end()) {
        // A document that names hundreds of code pages is no document; it must not fill memory with tables.
        const bool hasRoom = m_converters.size() < mostConverters;
        known = m_converters.emplace(codePage, hasRoom ? opened(codePage) : Converter()).first;
    }
    UConverter* converter = known->second.get();
    if (!converter)
        return QString::fromLatin1(bytes);
    // No code page makes more than two units of a byte.
    QString text(2 * bytes.size() + 2, Qt::Uninitialized);
    UErrorCode status = U_ZERO_ERROR;
    const int32_t length =
        ucnv_toUChars(converter, reinterpret_cast<UChar*>(text.data()), static_cast<int32_t>(text.size()),
                      bytes.constData(), static_cast<int32_t>(bytes.size()), &status);
    text.truncate(U_SUCCESS(status) ? length : 0);
    return text;
}

} // namespace vellumry
