// SPDX-License-Identifier: GPL-3.0-or-later
#include "views/EmojiFont.h"

#include <QFont>
#include <QFontDatabase>
#include <QGuiApplication>
#include <algorithm>
#include <array>

namespace vellumry {

namespace {

/// What distributions ship, the most common one first.
const std::array coloured{QStringLiteral("Noto Color Emoji"), QStringLiteral("Twemoji"),
                          QStringLiteral("Twitter Color Emoji"), QStringLiteral("JoyPixels"),
                          QStringLiteral("OpenMoji Color")};

} // namespace

void preferColouredEmoji() {
    const auto installed =
        std::ranges::find_if(coloured, [](const QString& name) { return QFontDatabase::hasFamily(name); });
    if (installed == coloured.end())
        return;
    for (const QString& family :
         {QGuiApplication::font().family(), QFontDatabase::systemFont(QFontDatabase::FixedFont).family()}) {
        if (!QFont::substitutes(family).contains(*installed))
            QFont::insertSubstitution(family, *installed);
    }
}

} // namespace vellumry
