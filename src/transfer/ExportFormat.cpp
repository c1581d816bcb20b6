// SPDX-License-Identifier: GPL-3.0-or-later
#include "transfer/ExportFormat.h"

#include "foundation/UniformType.h"

#include <QHash>
#include <QJsonArray>
#include <QSet>
#include <algorithm>

namespace vellumry::exportformat {

namespace {

QString extensionOf(const QString& type) {
    static const QHash<QString, QString> extensions{
        {uniformtype::utf8PlainText, QStringLiteral("txt")},
        {uniformtype::html, QStringLiteral("html")},
        {uniformtype::rtf, QStringLiteral("rtf")},
        {uniformtype::png, QStringLiteral("png")},
        {uniformtype::tiff, QStringLiteral("tiff")},
        {uniformtype::jpeg, QStringLiteral("jpg")},
        {uniformtype::heic, QStringLiteral("heic")},
        {uniformtype::pdf, QStringLiteral("pdf")},
        {uniformtype::url, QStringLiteral("url.txt")},
        {uniformtype::fileUrl, QStringLiteral("files.txt")},
        {QStringLiteral("image/gif"), QStringLiteral("gif")},
        {QStringLiteral("image/webp"), QStringLiteral("webp")},
        {QStringLiteral("image/svg+xml"), QStringLiteral("svg")},
    };
    return extensions.value(type, QStringLiteral("bin"));
}

/// Every item is the address of a file and nothing else.
bool isFileList(const std::vector<PasteboardItem>& items) {
    return !items.empty() && std::ranges::all_of(items, [](const PasteboardItem& item) {
        const auto address = item.representations.find(uniformtype::fileUrl);
        return item.representations.size() == 1 && item.order == QStringList{uniformtype::fileUrl} &&
               address != item.representations.end() && !address->second.contains('\n') && !address->second.isEmpty();
    });
}

QJsonArray codedItems(const std::vector<PasteboardItem>& items, const QString& number, std::vector<File>& files) {
    QJsonArray coded;
    for (std::size_t index = 0; index < items.size(); ++index) {
        const QString stem = index == 0 ? number : number + u'-' + QString::number(index + 1);
        QSet<QString> used;
        QJsonObject forms;
        for (const auto& [type, bytes] : items[index].representations) {
            const QString extension = extensionOf(type);
            QString name = stem + u'.' + extension;
            for (int again = 2; used.contains(name); ++again)
                name = stem + u'_' + QString::number(again) + u'.' + extension;
            used.insert(name);
            files.emplace_back(name, bytes);
            forms.insert(type, name);
        }
        QJsonObject item{{QStringLiteral("forms"), forms}};
        if (items[index].order)
            item.insert(QStringLiteral("order"), QJsonArray::fromStringList(*items[index].order));
        coded.append(item);
    }
    return coded;
}

std::optional<std::vector<PasteboardItem>> decodedItems(const QJsonArray& coded, const ReadFile& read) {
    std::vector<PasteboardItem> items;
    for (const QJsonValue& value : coded) {
        PasteboardItem item;
        const QJsonObject forms = value[QStringLiteral("forms")].toObject();
        for (auto form = forms.begin(); form != forms.end(); ++form) {
            auto bytes = read(form.value().toString());
            if (!bytes)
                return std::nullopt;
            item.representations.emplace(form.key(), std::move(*bytes));
        }
        if (const QJsonValue order = value[QStringLiteral("order")]; order.isArray()) {
            item.order = QStringList();
            for (const QJsonValue& type : order.toArray())
                item.order->append(type.toString());
        }
        items.push_back(std::move(item));
    }
    return items;
}

std::optional<std::vector<PasteboardItem>> decodedList(const QString& name, const ReadFile& read) {
    const auto bytes = read(name);
    if (!bytes)
        return std::nullopt;
    std::vector<PasteboardItem> items;
    for (const QByteArray& line : bytes->split('\n')) {
        if (!line.isEmpty())
            items.push_back({{{uniformtype::fileUrl, line}}, QStringList{uniformtype::fileUrl}});
    }
    return items;
}

void insertText(QJsonObject& object, const char* key, const std::optional<QString>& text) {
    if (text)
        object.insert(QLatin1String(key), *text);
}

std::optional<QString> textOf(const QJsonObject& object, const char* key) {
    const QJsonValue value = object[QLatin1String(key)];
    return value.isString() ? std::optional(value.toString()) : std::nullopt;
}

} // namespace

QJsonObject coded(const ImportEntry& entry, int number, std::vector<File>& files) {
    const QString stem = QStringLiteral("%1").arg(number, 6, 10, QLatin1Char('0'));
    QJsonObject object{{QStringLiteral("createdAt"), entry.provenance.createdAt},
                       {QStringLiteral("lastUsedAt"), entry.provenance.lastUsedAt}};
    insertText(object, "title", entry.title);
    insertText(object, "source", entry.source.bundleID);
    insertText(object, "sourceName", entry.source.name);
    if (entry.provenance.isPinned)
        object.insert(QStringLiteral("pin"), entry.provenance.pinOrder);
    if (entry.isScreenshot)
        object.insert(QStringLiteral("isScreenshot"), true);
    const std::vector<PasteboardItem>& items = entry.payload.items;
    if (!isFileList(items)) {
        object.insert(QStringLiteral("items"), codedItems(items, stem, files));
        return object;
    }
    QByteArray list;
    for (const PasteboardItem& item : items)
        list += item.representations.at(uniformtype::fileUrl) + '\n';
    const QString name = stem + QStringLiteral(".files.txt");
    files.emplace_back(name, list);
    object.insert(QStringLiteral("files"), name);
    return object;
}

std::optional<ImportEntry> decoded(const QJsonObject& object, const ReadFile& read) {
    ImportEntry entry;
    const QJsonValue created = object[QStringLiteral("createdAt")];
    const QJsonValue used = object[QStringLiteral("lastUsedAt")];
    if (!created.isDouble() || !used.isDouble())
        return std::nullopt;
    entry.provenance.createdAt = created.toDouble();
    entry.provenance.lastUsedAt = used.toDouble();
    const QJsonValue pin = object[QStringLiteral("pin")];
    entry.provenance.isPinned = pin.isDouble();
    entry.provenance.pinOrder = pin.toInteger();
    entry.title = textOf(object, "title");
    entry.source = {textOf(object, "source"), textOf(object, "sourceName")};
    entry.isScreenshot = object[QStringLiteral("isScreenshot")].toBool();
    const auto list = textOf(object, "files");
    auto items = list ? decodedList(*list, read) : decodedItems(object[QStringLiteral("items")].toArray(), read);
    if (!items)
        return std::nullopt;
    entry.payload.items = std::move(*items);
    return entry;
}

bool isPlainName(const QString& name) {
    return !name.isEmpty() && !name.startsWith(u'.') && std::ranges::all_of(name, [](QChar letter) {
        return letter.unicode() < 0x80 &&
               (letter.isLetterOrNumber() || letter == u'.' || letter == u'-' || letter == u'_');
    });
}

} // namespace vellumry::exportformat
