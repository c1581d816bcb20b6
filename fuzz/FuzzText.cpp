// SPDX-License-Identifier: GPL-3.0-or-later
#include "foundation/Text.h"

#include <cstdlib>

namespace text = vellumry::text;

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size);

int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size) {
    const QByteArray bytes(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
    const QByteArray folded = text::foldedBytes(bytes);
    if (text::foldedBytes(folded) != folded)
        std::abort();
    const QString string = QString::fromUtf8(bytes);
    if (text::folded(string.normalized(QString::NormalizationForm_D)) != text::folded(string))
        std::abort();
    const qsizetype count = text::characterCount(string);
    if (text::hasMoreCharactersThan(string, count) || text::firstCharacters(string, count) != string)
        std::abort();
    return 0;
}
