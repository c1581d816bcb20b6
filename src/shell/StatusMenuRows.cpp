// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/StatusMenuRows.h"

#include "foundation/Localisation.h"
#include "foundation/Text.h"

#include <QColor>
#include <algorithm>

namespace vellumry {

namespace {

constexpr qsizetype longestTitle = 48;
constexpr qsizetype longestNote = 500;

QString titleOf(const Clip& clip) {
    if (clip.isSensitive())
        return localised("Hidden · deletes itself soon");
    QString title = clip.title.toString();
    title.replace(u'\n', u' ');
    if (!text::hasMoreCharactersThan(title, longestTitle))
        return title;
    return text::firstCharacters(title, longestTitle - 1) + QStringLiteral("…");
}

/// Three digits stand for six, four for eight. CSS writes alpha last, Qt first.
QString colourOf(const QString& title) {
    QString digits = text::trimmed(title);
    if (!digits.startsWith(u'#'))
        return QString();
    digits.remove(0, 1);
    const auto isHexadecimal = [](QChar digit) {
        return (digit >= u'0' && digit <= u'9') || (digit.toLower() >= u'a' && digit.toLower() <= u'f');
    };
    if (!std::ranges::all_of(digits, isHexadecimal))
        return QString();
    if (digits.size() == 3) {
        QString doubled;
        for (const QChar digit : std::as_const(digits))
            doubled += QString(2, digit);
        digits = doubled;
    }
    if (digits.size() == 6)
        digits += QStringLiteral("ff");
    if (digits.size() != 8)
        return QString();
    return QColor(u'#' + digits.mid(6) + digits.left(6)).name(QColor::HexArgb);
}

QString symbolOf(const Clip& clip) {
    switch (clip.kind) {
    case ClipKind::text:
        return clip.isSensitive() ? QStringLiteral("lock.fill") : QStringLiteral("text.alignleft");
    case ClipKind::richText:
        return QStringLiteral("doc.richtext");
    case ClipKind::link:
        return QStringLiteral("link");
    case ClipKind::image:
        return QStringLiteral("photo");
    case ClipKind::file:
        return QStringLiteral("doc");
    case ClipKind::color:
        break;
    }
    return QStringLiteral("paintpalette");
}

} // namespace

ActionMenuItem clipRow(const Clip& clip) {
    ActionMenuItem row{.text = titleOf(clip), .symbol = symbolOf(clip)};
    if (clip.isSensitive())
        return row;
    row.note = text::firstCharacters(clip.title.toString(), longestNote);
    if (clip.kind == ClipKind::color)
        row.swatch = colourOf(clip.title.toString());
    // Without a text it would be a separator.
    if (row.text.isEmpty())
        row.text = QStringLiteral(" ");
    return row;
}

} // namespace vellumry
