// SPDX-License-Identifier: GPL-3.0-or-later
#include "panel/PreviewContent.h"

#include "foundation/FileUrl.h"
#include "foundation/InterfaceLocale.h"
#include "foundation/Localisation.h"
#include "foundation/Text.h"
#include "panel/PreviewButtons.h"
#include "panel/RowAppearance.h"

#include <QColor>
#include <QDir>
#include <QFileInfo>
#include <QSet>
#include <QUrl>
#include <algorithm>
#include <cmath>

namespace vellumry {

namespace {

using Body = PreviewContent::Body;

QString detailsOf(const Clip& clip, std::optional<qsizetype> characters) {
    QStringList parts;
    if (clip.isScreenshot)
        parts.append(localised("Image · Screenshot"));
    parts.append(clip.sourceAppName ? localised("Copied from %1").arg(*clip.sourceAppName)
                                    : localised("Copied from an unknown app"));
    if (characters)
        parts.append(localised("%n characters", int(std::min<qsizetype>(*characters, INT_MAX))));
    if (clip.isPinned)
        parts.append(localised("Pinned clip"));
    return parts.join(QStringLiteral(" · "));
}

Body bodyOf(const Clip& clip) {
    if (clip.isSensitive())
        return Body::sensitive;
    switch (clip.kind) {
    case ClipKind::text:
    case ClipKind::richText:
        return Body::text;
    case ClipKind::link:
        return Body::link;
    case ClipKind::image:
        return Body::image;
    case ClipKind::color:
        return Body::color;
    case ClipKind::file:
        return Body::file;
    }
    return Body::none;
}

QString number(double value) {
    return QString::number(value, 'g', 3);
}

PreviewContent::Color colorOf(const Clip& clip) {
    PreviewContent::Color result{.swatch = row::swatchOf(clip), .text = clip.title.toString()};
    const QColor color(result.swatch);
    if (result.swatch.isEmpty() || !color.isValid())
        return result;
    const bool isOpaque = color.alpha() == 255;
    result.hex = color.name(QColor::HexRgb);
    if (!isOpaque)
        result.hex += QStringLiteral("%1").arg(color.alpha(), 2, 16, QLatin1Char('0'));
    const QString alpha = isOpaque ? QString() : QStringLiteral(", ") + number(color.alphaF());
    const QString model = isOpaque ? QString() : QStringLiteral("a");
    result.rgb = QStringLiteral("rgb%1(%2, %3, %4%5)")
                     .arg(model)
                     .arg(color.red())
                     .arg(color.green())
                     .arg(color.blue())
                     .arg(alpha);
    // Grey has no hue of its own; Qt says -1.
    const int hue = std::max(0, int(std::lround(color.hslHueF() * 360)));
    result.hsl = QStringLiteral("hsl%1(%2, %3%, %4%%5)")
                     .arg(model)
                     .arg(hue)
                     .arg(std::lround(color.hslSaturationF() * 100))
                     .arg(std::lround(color.lightnessF() * 100))
                     .arg(alpha);
    return result;
}

/// The folder of a path as a user would write it.
QString placeOf(const QString& path) {
    const QString folder = QFileInfo(path).path();
    const QString home = QDir::homePath();
    return folder == home || folder.startsWith(home + u'/') ? u'~' + folder.mid(home.size()) : folder;
}

QString symbolOfFile(const FileRef& ref, const FileFacts* facts) {
    static const QSet<QString> pictures{QStringLiteral("png"),  QStringLiteral("jpg"),  QStringLiteral("jpeg"),
                                        QStringLiteral("gif"),  QStringLiteral("webp"), QStringLiteral("heic"),
                                        QStringLiteral("heif"), QStringLiteral("tif"),  QStringLiteral("tiff"),
                                        QStringLiteral("bmp"),  QStringLiteral("svg"),  QStringLiteral("avif")};
    if (facts && facts->isFolder)
        return QStringLiteral("folder");
    return pictures.contains(fileurl::pathExtension(ref.name).toLower()) ? QStringLiteral("photo")
                                                                         : QStringLiteral("doc");
}

PreviewContent::Entry fileOf(const FileRef& ref, const FileStatus* status, const FileFacts* facts) {
    PreviewContent::Entry file{.name = ref.name, .symbol = symbolOfFile(ref, facts), .isFile = true};
    if (facts && facts->size)
        file.size = interfaceLocale().formattedDataSize(*facts->size, 1, QLocale::DataSizeSIFormat);
    if (!status)
        return file;
    switch (status->kind) {
    case FileStatus::Case::available:
        break;
    case FileStatus::Case::moved:
        file.symbol = QStringLiteral("arrow.turn.down.right");
        file.place = placeOf(status->payload);
        break;
    case FileStatus::Case::inTrash:
        file.note = localised("In the Trash. Pastes until the Trash is emptied");
        break;
    case FileStatus::Case::volumeUnavailable:
        file.note = localised("On “%1”, which isn't connected").arg(status->payload);
        break;
    case FileStatus::Case::missing:
        file.note = localised("Deleted");
        file.isMissing = true;
        break;
    }
    return file;
}

QString moreOf(qsizetype count) {
    return count > previewListLength ? localised("%n more", int(count - previewListLength)) : QString();
}

void describeFiles(PreviewContent& content, const Clip& clip, const PreviewSources& sources) {
    const auto statuses = sources.files ? sources.files(clip.id) : std::vector<FileStatus>();
    const auto facts = sources.facts ? sources.facts(clip.id) : std::vector<FileFacts>();
    const auto listed = std::min<std::size_t>(clip.files.size(), std::size_t(previewListLength));
    for (std::size_t index = 0; index < listed; ++index)
        content.entries.push_back(fileOf(clip.files[index], index < statuses.size() ? &statuses[index] : nullptr,
                                         index < facts.size() ? &facts[index] : nullptr));
    content.more = moreOf(qsizetype(clip.files.size()));
    const auto isMissing = [](const FileStatus& status) { return status.kind == FileStatus::Case::missing; };
    if (std::ranges::any_of(statuses, isMissing))
        content.note = localised("Vellumry keeps a link to files you copy, not a copy of the file, so a deleted file "
                                 "can't be pasted. Moved or renamed files are followed automatically.");
}

/// What a picture's words add, for an image and for files that are pictures.
void describeTextInImage(PreviewContent& content, const Clip& clip, const PreviewSources& sources) {
    if (clip.kind != ClipKind::image && !clip.isImageFile())
        return;
    content.textInImage = clip.imageText.value_or(StoredText()).toString();
    content.isReadingText = !clip.imageText && sources.isReading && sources.isReading(clip.id);
    content.offersReading = clip.isImageFile() && !clip.imageText && !content.isReadingText;
}

PreviewContent previewOfOne(const Clip& clip, const PreviewSources& sources) {
    PreviewContent content{.body = bodyOf(clip), .ids = {clip.id}};
    std::optional<qsizetype> characters = sources.characters;
    switch (content.body) {
    case Body::sensitive:
        content.text = localised("Sensitive · deletes itself");
        content.expiresAt = clip.expiresAt;
        characters.reset();
        break;
    case Body::text:
    case Body::link:
        content.text = clip.searchText.toString();
        if (content.body == Body::link)
            content.host = QUrl(content.text.trimmed()).host();
        content.isFixedWidth = clip.sourceBundleID && row::isCodeApp(*clip.sourceBundleID);
        if (content.body == Body::text && !characters && content.text.size() <= countedAtOnce)
            characters = text::characterCount(content.text);
        break;
    case Body::color:
        content.color = colorOf(clip);
        break;
    case Body::file:
        describeFiles(content, clip, sources);
        break;
    case Body::image:
    case Body::none:
    case Body::several:
        break;
    }
    if (content.body != Body::sensitive)
        describeTextInImage(content, clip, sources);
    if (content.body != Body::text)
        characters.reset();
    content.details = detailsOf(clip, characters);
    content.showsTransforms = sources.showsTransforms && clip.canBeTransformed();
    content.buttons = preview::buttonsOfOne(clip, sources);
    return content;
}

QString mergeNote(const std::vector<ClipRef>& clips) {
    const auto is = [](ClipKind kind) { return [kind](const ClipRef& clip) { return clip->kind == kind; }; };
    if (std::ranges::any_of(clips, is(ClipKind::image)))
        return localised("Images can't be merged. Drag them out, or paste them one by one with Stack.");
    if (std::ranges::all_of(clips, is(ClipKind::file)))
        return localised("Merge makes one clip with all these files.");
    return localised("Merge joins them into one clip, one per line, in the order you copied them.");
}

PreviewContent::Entry entryOf(const Clip& clip) {
    // Line breaks became blanks, and rows show a run of these as one.
    return {.name = row::titleOf(clip).simplified(),
            .symbol = row::symbolOf(clip),
            .thumbnail = row::thumbnailOf(clip),
            .swatch = row::swatchOf(clip)};
}

PreviewContent previewOfSeveral(const PreviewSources& sources) {
    const auto& clips = sources.clips;
    PreviewContent content{.body = Body::several};
    for (const ClipRef& clip : clips) {
        content.ids.push_back(clip->id);
        if (qsizetype(content.entries.size()) < previewListLength)
            content.entries.push_back(entryOf(*clip));
    }
    content.heading = localised("%n clips selected", int(clips.size()));
    content.more = moreOf(qsizetype(clips.size()));
    content.note = mergeNote(clips);
    content.buttons = preview::buttonsOfSeveral(sources);
    return content;
}

} // namespace

PreviewContent previewContent(const PreviewSources& sources) {
    if (sources.clips.empty())
        return {};
    if (sources.clips.size() > 1)
        return previewOfSeveral(sources);
    return previewOfOne(*sources.clips.front(), sources);
}

QString countdownText(double secondsLeft) {
    const auto seconds = qint64(std::ceil(std::max(0.0, secondsLeft)));
    const QLocale locale = interfaceLocale();
    const QString rest = locale.toString(seconds % 60);
    const QString left =
        seconds < 60 ? localised("%1 s").arg(rest)
                     : locale.toString(seconds / 60) + u':' + (seconds % 60 < 10 ? locale.zeroDigit() + rest : rest);
    return localised("Hidden. Deletes itself in %1").arg(left);
}

} // namespace vellumry
