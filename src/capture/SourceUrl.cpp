// SPDX-License-Identifier: GPL-3.0-or-later
#include "capture/SourceUrl.h"

#include "foundation/PropertyList.h"
#include "foundation/Text.h"
#include "foundation/UniformType.h"

#include <QStringDecoder>

namespace vellumry {

namespace {

constexpr qsizetype longestUrl = 8191;
constexpr qsizetype largestWebArchive = 7'999'999;

std::optional<QString> fromUtf16(const QByteArray& bytes) {
    if (bytes.size() % 2 != 0)
        return std::nullopt;
    QStringDecoder decoder(QStringDecoder::Utf16);
    QString text = decoder.decode(bytes);
    return decoder.hasError() ? std::nullopt : std::optional(text);
}

QString textOf(const QByteArray& bytes) {
    // Plain text, which nearly all browsers give, is no property list; the decoding of one is left out for it.
    const bool mayBeList = bytes.startsWith("bplist") || bytes.trimmed().startsWith('<');
    if (const auto list = mayBeList ? PropertyList::fromBytes(bytes) : std::nullopt; list && list->string())
        return *list->string();
    if (const auto text = text::fromUtf8(bytes))
        return *text;
    return fromUtf16(bytes).value_or(QString());
}

QString trimmedOfControls(const QString& text) {
    const auto goes = [](QChar unit) {
        const auto category = unit.category();
        return text::isWhitespaceOrNewline(unit.unicode()) || category == QChar::Other_Control ||
               category == QChar::Other_Format;
    };
    qsizetype begin = 0;
    qsizetype end = text.size();
    while (begin < end && goes(text[begin]))
        ++begin;
    while (end > begin && goes(text[end - 1]))
        --end;
    return text.mid(begin, end - begin);
}

std::optional<QUrl> pageUrl(const QByteArray& bytes) {
    if (bytes.size() > longestUrl)
        return std::nullopt;
    // Browsers leave characters in the addresses of pages that RFC 3986 has no place for; web mail has them in its
    // fragments.
    const QUrl url(trimmedOfControls(textOf(bytes)), QUrl::TolerantMode);
    const QString scheme = url.scheme().toLower();
    if (!url.isValid() || (scheme != u"https" && scheme != u"http") || url.host().isEmpty())
        return std::nullopt;
    return url;
}

std::optional<QUrl> mainResourceUrl(const QByteArray& webArchive) {
    if (webArchive.size() > largestWebArchive)
        return std::nullopt;
    const auto list = PropertyList::fromBytes(webArchive);
    const PropertyList* resource = list ? list->find(QStringLiteral("WebMainResource")) : nullptr;
    const PropertyList* url = resource ? resource->find(QStringLiteral("WebResourceURL")) : nullptr;
    return url && url->string() ? pageUrl(url->string()->toUtf8()) : std::nullopt;
}

} // namespace

std::optional<QUrl> sourceURL(const PasteboardItem& item) {
    const auto& representations = item.representations;
    if (const auto source = representations.find(uniformtype::sourceUrl); source != representations.end()) {
        if (const auto url = pageUrl(source->second))
            return url;
    }
    if (const auto archive = representations.find(uniformtype::webArchive); archive != representations.end())
        return mainResourceUrl(archive->second);
    return std::nullopt;
}

} // namespace vellumry
