// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLocale>
#include <QString>
#include <array>

namespace vellumry {

/// Ways to rewrite a text on its way to the paste. The clip itself stays as it is.
enum class TextTransform : quint8 { lowercase, uppercase, titleCase, sentenceCase, trimWhitespace, removeLineBreaks };

inline constexpr std::array allTextTransforms{TextTransform::lowercase,      TextTransform::uppercase,
                                              TextTransform::titleCase,      TextTransform::sentenceCase,
                                              TextTransform::trimWhitespace, TextTransform::removeLineBreaks};

/// The rewritten text; letters change by the rules of `locale`. Pure; any thread.
[[nodiscard]] QString apply(TextTransform transform, const QString& text, const QLocale& locale = QLocale());
/// What the menus call it, localised; the name shows what it does.
[[nodiscard]] QString transformTitle(TextTransform transform);
/// "lowercase", "titleCase", …
[[nodiscard]] QString rawValue(TextTransform transform);

} // namespace vellumry
