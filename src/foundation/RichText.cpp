// SPDX-License-Identifier: GPL-3.0-or-later
#include "foundation/RichText.h"

#include "foundation/HtmlParser.h"
#include "foundation/RtfParser.h"

#include <QStringDecoder>

namespace vellumry {

std::optional<QString> textOfRtf(const QByteArray& rtf) {
    return RtfParser(rtf).text();
}

std::optional<StyledText> styledRtf(const QByteArray& rtf) {
    return RtfParser(rtf).styledText();
}

StyledText styledHtml(const QByteArray& html) {
    // Without a mark it is UTF-8; some programs write UTF-16 and say so.
    const auto marked = QStringConverter::encodingForData(html);
    QStringDecoder decoder(marked.value_or(QStringConverter::Utf8));
    const QString text = decoder(html);
    return HtmlParser(text).styledText();
}

} // namespace vellumry
