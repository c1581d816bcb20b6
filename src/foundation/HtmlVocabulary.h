// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "foundation/StyledText.h"

#include <QString>
#include <QStringView>
#include <optional>

/// The elements and character references of HTML (WHATWG, HTML Living Standard) that matter to a styled text. Pure; any
/// thread.
namespace vellumry::html {

/// What an element does to the text in it.
struct Meaning {
    quint8 breaks = 0; ///< line breaks around it: 1 for a block, 2 for one with a margin
    bool isVoid = false;
    bool isHidden = false;
    bool isRaw = false; ///< its content is no markup
    bool isPreformatted = false;
    bool endsItsOwnKind = false; ///< another one of its name ends it: `li`, `p`, `td`
    bool isBold = false;
    bool isItalic = false;
    bool isUnderlined = false;
    bool isStruck = false;
    bool isFixedWidth = false;
    float size = 1; ///< times what is around it
};

/// Of an element by its name in small letters; of an unknown one, nothing special.
[[nodiscard]] const Meaning& meaningOf(const QString& name);

/// The text of a reference between "&" and ";", "amp" or "#x20AC"; nothing for an unknown one.
[[nodiscard]] std::optional<QString> referenced(QStringView name);

/// What stands between words and attributes, and counts as one blank in a text (HTML Standard 13.2: ASCII whitespace).
[[nodiscard]] inline bool isBlank(QChar character) {
    return character == u' ' || character == u'\n' || character == u'\t' || character == u'\r' || character == u'\f';
}

} // namespace vellumry::html
