// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QUrl>
#include <optional>

/// What the text of a copy is. Each test is narrow and looks at the whole text, freed of white space at both ends: a
/// false alarm costs a clip that deletes itself, a miss keeps a password. Pure; any thread.
namespace vellumry {

/// The link that the text is: http, https and ftp URLs with a host, mail addresses with "mailto:", and bare domains
/// ("https://" is put in front). Nothing for a text with white space inside or of more than 4,096 characters.
[[nodiscard]] std::optional<QUrl> detectLink(const QString& text);

/// True for a colour of CSS: a hash with 3, 6 or 8 hexadecimal digits, rgb(), rgba(), hsl() and hsla().
[[nodiscard]] bool detectColor(const QString& text);

/// True for 13 to 19 digits, grouped by blanks and hyphens or not, that begin and add up as card numbers do (ISO/IEC
/// 7812).
[[nodiscard]] bool isCardNumber(const QString& text);

/// True for a one-time code: "G-" and 5 to 8 digits from anywhere; 4 to 8 digits in one or two groups when they come
/// from a program or page for messages.
[[nodiscard]] bool isOneTimeCode(const QString& text, const std::optional<QString>& sourceBundleID,
                                 const std::optional<QUrl>& sourceUrl);

/// True for a private key block anywhere in the text, and for a text that is a token of a known shape.
[[nodiscard]] bool isSecretToken(const QString& text);

} // namespace vellumry
