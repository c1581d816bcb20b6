// SPDX-License-Identifier: GPL-3.0-or-later
#include "linux/update/Appcast.h"

#include "linux/update/Signature.h"

#include <QXmlStreamReader>
#include <algorithm>
#include <optional>

namespace vellumry {

namespace {

constexpr qint64 longestFile = qint64(1) << 30;
constexpr std::size_t mostItems = 1000;
constexpr qsizetype longestVersion = 40;

const QByteArray signatureBegin = "<!-- signature: ";
const QByteArray signatureEnd = " -->";

/// What was signed; nothing when the signature is missing or not by the holder of the key.
std::optional<QByteArray> signedPart(const QByteArray& feed, const QByteArray& publicKey) {
    const QByteArray whole = feed.endsWith('\n') ? feed.chopped(1) : feed;
    const qsizetype line = whole.lastIndexOf('\n') + 1;
    const QByteArray comment = whole.mid(line);
    // Begin and end share a blank: a comment that holds nothing between them has both and is shorter than the two.
    if (comment.size() < signatureBegin.size() + signatureEnd.size() || !comment.startsWith(signatureBegin) ||
        !comment.endsWith(signatureEnd))
        return std::nullopt;
    const QByteArray signature =
        QByteArray::fromBase64(comment.mid(signatureBegin.size()).chopped(signatureEnd.size()));
    const QByteArray content = feed.left(line);
    return signature::isOf(content, signature, publicKey) ? std::optional(content) : std::nullopt;
}

QString attribute(const QXmlStreamReader& xml, QLatin1String name) {
    for (const QXmlStreamAttribute& each : xml.attributes()) {
        if (each.name() == name)
            return each.value().toString();
    }
    return QString();
}

void readEnclosure(const QXmlStreamReader& xml, AppcastItem& item) {
    item.url = QUrl(attribute(xml, QLatin1String("url")), QUrl::StrictMode);
    item.length = attribute(xml, QLatin1String("length")).toLongLong();
    item.signature = QByteArray::fromBase64(attribute(xml, QLatin1String("edSignature")).toLatin1());
    if (const QString version = attribute(xml, QLatin1String("version")); !version.isEmpty())
        item.version = versionNumber(version);
    if (const QString shown = attribute(xml, QLatin1String("shortVersionString")); !shown.isEmpty())
        item.displayVersion = shown;
}

AppcastItem readItem(QXmlStreamReader& xml) {
    AppcastItem item;
    while (xml.readNextStartElement()) {
        if (xml.name() == QLatin1String("enclosure")) {
            readEnclosure(xml, item);
            xml.skipCurrentElement();
        } else if (xml.name() == QLatin1String("version")) {
            item.version = versionNumber(xml.readElementText());
        } else if (xml.name() == QLatin1String("shortVersionString")) {
            item.displayVersion = xml.readElementText().trimmed();
        } else {
            item.isCritical = item.isCritical || xml.name() == QLatin1String("criticalUpdate");
            xml.skipCurrentElement();
        }
    }
    if (item.displayVersion.isEmpty())
        item.displayVersion = item.version.toString();
    return item;
}

bool isUsable(const AppcastItem& item) {
    return !item.version.isNull() && item.displayVersion.size() <= longestVersion && item.url.isValid() &&
           item.length > 0 && item.length <= longestFile && !item.signature.isEmpty();
}

} // namespace

QVersionNumber versionNumber(const QString& text) {
    const QString wanted = text.trimmed();
    qsizetype suffix = 0;
    const QVersionNumber version = QVersionNumber::fromString(wanted, &suffix);
    return suffix == wanted.size() && wanted.size() <= longestVersion ? version : QVersionNumber();
}

OrReason<std::vector<AppcastItem>> readAppcast(const QByteArray& feed, const QByteArray& publicKey) {
    const auto content = signedPart(feed, publicKey);
    if (!content)
        return std::unexpected(Reason{QStringLiteral("the feed is not signed by the key that was built in")});
    std::vector<AppcastItem> items;
    QXmlStreamReader xml(*content);
    while (!xml.atEnd() && items.size() <= mostItems) {
        if (xml.readNext() == QXmlStreamReader::DTD)
            xml.raiseError(QStringLiteral("no document type is expected"));
        if (!xml.isStartElement() || xml.name() != QLatin1String("item"))
            continue;
        AppcastItem item = readItem(xml);
        if (!xml.hasError() && !isUsable(item))
            xml.raiseError(QStringLiteral("an item cannot be used"));
        items.push_back(std::move(item));
    }
    if (xml.hasError() || items.size() > mostItems)
        return std::unexpected(Reason{QStringLiteral("the feed cannot be read: ") + xml.errorString()});
    std::ranges::stable_sort(items, {}, &AppcastItem::version);
    return items;
}

} // namespace vellumry
