// SPDX-License-Identifier: GPL-3.0-or-later
#include "panel/DragContents.h"

#include "capture/FileStatus.h"
#include "foundation/FileUrl.h"
#include "foundation/Localisation.h"
#include "foundation/Text.h"
#include "foundation/UniformType.h"
#include "paste/PasteboardWriter.h"

#include <algorithm>
#include <array>

namespace vellumry {

namespace {

constexpr qsizetype longestName = 80;

/// An item as it goes out: without the mark of our own copies, and with a plain text.
PasteboardItem draggedText(const PasteboardItem& item) {
    PasteboardItem dragged = PasteboardWriter::makePasteboardItem(item, 1);
    if (!dragged.representations.contains(uniformtype::utf8PlainText)) {
        if (const auto text = plainText(item)) {
            dragged.representations[uniformtype::utf8PlainText] = text->toUtf8();
            dragged.order->append(uniformtype::utf8PlainText);
        }
    }
    return dragged;
}

QString trimmedOfLines(QString text) {
    const auto isLineEnd = [](QChar character) { return character == u'\n' || character == u'\r'; };
    while (!text.isEmpty() && isLineEnd(text.back()))
        text.chop(1);
    qsizetype start = 0;
    while (start < text.size() && isLineEnd(text.at(start)))
        ++start;
    return text.sliced(start);
}

PasteboardItem joinedTexts(const std::vector<const ClipPayload*>& texts) {
    QStringList lines;
    for (const ClipPayload* payload : texts) {
        if (const auto text = plainText(payload->items))
            lines.append(trimmedOfLines(*text));
    }
    return {{{uniformtype::utf8PlainText, lines.join(u'\n').toUtf8()}}, QStringList{uniformtype::utf8PlainText}};
}

/// The picture's bytes with the extension that they need; PNG where there is one. The type that they have is added to
/// `types`.
void addPicture(DragSource::Content& content, QStringList& types, const Clip& clip, const ClipPayload& payload) {
    struct Form {
        const QString& type;
        const char16_t* extension;
    };
    const std::array forms{Form{uniformtype::png, u".png"}, Form{uniformtype::jpeg, u".jpg"},
                           Form{uniformtype::tiff, u".tiff"}, Form{uniformtype::heic, u".heic"}};
    for (const Form& form : forms) {
        for (const PasteboardItem& item : payload.items) {
            const auto found = item.representations.find(form.type);
            if (found == item.representations.end())
                continue;
            QString name = pictureFileName(clip.title.toString());
            name.replace(name.size() - 4, 4, QString::fromUtf16(form.extension));
            content.files.push_back({name, found->second});
            types.append(form.type);
            return;
        }
    }
}

void addFiles(DragSource::Content& content, const std::vector<FileStatus>& statuses) {
    for (const FileStatus& status : statuses) {
        if (const auto path = status.path())
            content.items.push_back({{{uniformtype::fileUrl, fileurl::urlOf(*path)}}, std::nullopt});
    }
}

} // namespace

QString pictureFileName(const QString& title) {
    QString name = title;
    name.replace(u'/', u'-').replace(u':', u'-');
    name = name.trimmed();
    if (name.isEmpty())
        name = localised("Image");
    return text::firstCharacters(name, longestName) + QStringLiteral(".png");
}

DragSource::Content dragContents(const std::vector<ClipRef>& clips, const QHash<QUuid, ClipPayload>& payloads,
                                 const PanelModel::FileStatuses& statuses) {
    DragSource::Content content;
    std::vector<const ClipPayload*> texts;
    QStringList pictures;
    for (const ClipRef& clip : clips) {
        if (clip->kind == ClipKind::file) {
            addFiles(content, statuses.value(clip->id));
            continue;
        }
        const auto payload = payloads.constFind(clip->id);
        if (payload == payloads.constEnd())
            continue;
        if (clip->kind == ClipKind::image)
            addPicture(content, pictures, *clip, *payload);
        else if (!payload->items.empty())
            texts.push_back(&*payload);
    }
    if (texts.size() == 1)
        content.items.insert(content.items.begin(), draggedText(texts.front()->items.front()));
    else if (!texts.empty())
        content.items.insert(content.items.begin(), joinedTexts(texts));
    // A program that takes pictures gets the picture itself.
    if (content.files.size() == 1 && content.items.empty())
        content.items.push_back({{{pictures.front(), content.files.front().bytes}}, pictures});
    return content;
}

} // namespace vellumry
