// SPDX-License-Identifier: GPL-3.0-or-later
#include "history/TextTransform.h"

#include "foundation/Localisation.h"
#include "foundation/Text.h"

#include <QStringList>
#include <algorithm>
#include <memory>
#include <stdexcept>
#include <unicode/brkiter.h>
#include <unicode/casemap.h>
#include <unicode/locid.h>
#include <unicode/uchar.h>
#include <unicode/unistr.h>
#include <utility>

namespace vellumry {

namespace {

QByteArray nameOf(const QLocale& locale) { return locale.name().toLatin1(); }

/// Calls one of ICU's case mappings, which say how much room they need.
template <typename Mapping>
QString mapped(const QString& text, const Mapping& mapping) {
    QString result(text.size() + text.size() / 8 + 16, Qt::Uninitialized);
    for (;;) {
        UErrorCode status = U_ZERO_ERROR;
        const int32_t length = mapping(reinterpret_cast<const char16_t*>(text.utf16()), static_cast<int32_t>(text.size()),
                                       reinterpret_cast<char16_t*>(result.data()), static_cast<int32_t>(result.size()),
                                       status);
        if (status == U_BUFFER_OVERFLOW_ERROR) {
            result.resize(length);
            continue;
        }
        if (U_FAILURE(status) != 0)
            throw std::runtime_error(u_errorName(status));
        result.resize(length);
        return result;
    }
}

QString lowercased(const QString& text, const QLocale& locale) {
    return mapped(text, [name = nameOf(locale)](auto... arguments) {
        auto [source, length, target, room, status] = std::tie(arguments...);
        return icu::CaseMap::toLower(name.constData(), 0, source, length, target, room, nullptr, status);
    });
}

} // namespace

} // namespace vellumry
