// SPDX-License-Identifier: GPL-3.0-or-later
#include "capture/ContentDetection.h"

#include "capture/MessageHosts.h"
#include "foundation/Text.h"

#include <QRegularExpression>
#include <QSet>
#include <algorithm>
#include <unicode/uchar.h>
#include <vector>

namespace vellumry {

namespace {

constexpr qsizetype longestLink = 4096;
constexpr qsizetype shortestMailLink = 8;

bool holdsWhitespace(QStringView text) {
    return std::ranges::any_of(text, [](QChar unit) { return text::isWhitespaceOrNewline(unit.unicode()); });
}

bool isAsciiDigit(QChar unit) {
    return unit >= u'0' && unit <= u'9';
}

bool isAllAsciiDigits(QStringView text) {
    return std::ranges::all_of(text, isAsciiDigit);
}

/// True for last labels under which a name without a scheme is rather a host than a file.
bool isKnownDomainEnding(const QString& label) {
    static const QSet<QString> endings = [] {
        const QString all = QStringLiteral("com net org io co app dev ai me gg xyz info biz tv page site online store "
                                           "shop tech blog cloud design studio so "
                                           "to fm ly edu gov us uk in de fr jp ca au nl es it se ch br cn ru eu nz ie "
                                           "be at dk fi no pt kr sg hk mx za ae "
                                           "tr id vn th ph");
        const QStringList list = all.split(u' ');
        return QSet<QString>(list.begin(), list.end());
    }();
    return endings.contains(label);
}

/// Programs write URLs with characters that RFC 3986 wants escaped ("|", "{", a lone "%"); readers know them as links
/// all the same.
QUrl parsedUrl(const QString& text) {
    const QUrl strict(text, QUrl::StrictMode);
    return strict.isValid() ? strict : QUrl(text, QUrl::TolerantMode);
}

/// `trimmed` as a domain, with a port and a path or without, and "https://" put in front.
std::optional<QUrl> bareDomain(const QString& trimmed) {
    static const QRegularExpression linkPattern(
        QStringLiteral(R"(^([a-z0-9]([a-z0-9-]*[a-z0-9])?\.)+[a-z]{2,24}(:[0-9]{1,5})?(/\S*)?$)"),
        QRegularExpression::CaseInsensitiveOption);
    if (!linkPattern.match(trimmed).hasMatch())
        return std::nullopt;

    // "readme.txt" stays text, while "foo.internal/path" can hardly be anything but a link.
    const bool hasPath = trimmed.contains(u'/');
    const QString host = trimmed.section(u'/', 0, 0).section(u':', 0, 0);
    if (!hasPath && !isKnownDomainEnding(host.section(u'.', -1).toLower()))
        return std::nullopt;
    const QUrl url = parsedUrl(QStringLiteral("https://") + trimmed);
    return url.isValid() ? std::optional(url) : std::nullopt;
}

/// The value of a character that stands for a whole number in any script; nothing for all others.
std::optional<int> wholeNumberValue(QStringView character) {
    const QList<uint> scalars = character.toUcs4();
    if (scalars.size() != 1)
        return std::nullopt;
    const double value = u_getNumericValue(static_cast<UChar32>(scalars.constFirst()));
    if (value == U_NO_NUMERIC_VALUE || value < 0 || value > 1e6 || value != static_cast<int>(value))
        return std::nullopt;
    return static_cast<int>(value);
}

bool isNumeric(QStringView character) {
    const QList<uint> scalars = character.toUcs4();
    return !scalars.isEmpty() && u_getNumericValue(static_cast<UChar32>(scalars.constFirst())) != U_NO_NUMERIC_VALUE;
}

constexpr std::size_t fewestCardDigits = 13;
constexpr std::size_t mostCardDigits = 19;

/// The digits of a text that holds nothing but digits, blanks and hyphens; empty for any other and for too many.
std::vector<int> cardDigits(const QString& text) {
    std::vector<int> digits;
    bool isPlausible = true;
    text::forEachCharacter(text, [&](QStringView character) {
        if (character == u" " || character == u"-")
            return true;
        isPlausible = isNumeric(character);
        if (const auto value = wholeNumberValue(character); isPlausible && value)
            digits.push_back(*value);
        isPlausible = isPlausible && digits.size() <= mostCardDigits;
        return isPlausible;
    });
    return isPlausible ? digits : std::vector<int>();
}

/// The check digit of ISO/IEC 7812-1, annex B.
bool satisfiesLuhn(const std::vector<int>& digits) {
    int sum = 0;
    bool isDoubled = false;
    for (auto digit = digits.rbegin(); digit != digits.rend(); ++digit) {
        sum += !isDoubled ? *digit : *digit >= 5 ? 2 * *digit - 9 : 2 * *digit;
        isDoubled = !isDoubled;
    }
    return sum % 10 == 0;
}

/// "G-" and 5 to 8 digits: a form that states its own origin.
bool isPrefixedCode(const QString& trimmed) {
    if (!trimmed.startsWith(u"G-"))
        return false;
    const QStringView digits = QStringView(trimmed).sliced(2);
    return digits.size() >= 5 && digits.size() <= 8 && isAllAsciiDigits(digits);
}

} // namespace

std::optional<QUrl> detectLink(const QString& text) {
    const QString trimmed = text::trimmed(text);
    if (trimmed.isEmpty() || text::hasMoreCharactersThan(trimmed, longestLink) || holdsWhitespace(trimmed))
        return std::nullopt;

    const QUrl url = parsedUrl(trimmed);
    const QString scheme = url.isValid() ? url.scheme().toLower() : QString();
    // "example.com:8080" parses with the domain as its scheme.
    if (scheme.isEmpty() || scheme.contains(u'.'))
        return bareDomain(trimmed);
    if ((scheme == u"http" || scheme == u"https" || scheme == u"ftp") && !url.host().isEmpty())
        return url;
    if (scheme == u"mailto" && text::characterCount(trimmed) >= shortestMailLink)
        return url;
    return std::nullopt;
}

bool detectColor(const QString& text) {
    static const QRegularExpression colorPattern(
        QStringLiteral(R"(^(#([0-9a-fA-F]{3}|[0-9a-fA-F]{6}|[0-9a-fA-F]{8})|(rgb|rgba|hsl|hsla)\(\s*[0-9.]+%?\s*,)"
                       R"(\s*[0-9.]+%?\s*,\s*[0-9.]+%?\s*(,\s*[0-9.]+%?\s*)?\))$)"),
        QRegularExpression::CaseInsensitiveOption | QRegularExpression::UseUnicodePropertiesOption);
    return colorPattern.match(text::trimmed(text)).hasMatch();
}

bool isCardNumber(const QString& text) {
    const std::vector<int> digits = cardDigits(text::trimmed(text));
    if (digits.size() < fewestCardDigits || digits.size() > mostCardDigits)
        return false;
    if (std::ranges::all_of(digits, [&digits](int digit) { return digit == digits.front(); }))
        return false;
    const int first = digits.front();
    if (first < 2 || first == 7 || first > 9)
        return false;
    return satisfiesLuhn(digits);
}

bool isOneTimeCode(const QString& text, const std::optional<QString>& sourceBundleID,
                   const std::optional<QUrl>& sourceUrl) {
    const QString trimmed = text::trimmed(text);
    if (isPrefixedCode(trimmed))
        return true;

    // Without this every short number out of a spreadsheet would vanish by itself.
    const bool isTrusted = (sourceBundleID && isMessageApp(*sourceBundleID)) || (sourceUrl && isMessageURL(*sourceUrl));
    if (!isTrusted)
        return false;

    qsizetype digits = 0;
    qsizetype pieces = 1;
    qsizetype pieceLength = 0;
    for (const QChar unit : trimmed) {
        if (unit == u' ' || unit == u'-') {
            if (pieceLength == 0 || ++pieces > 2)
                return false;
            pieceLength = 0;
        } else if (!isAsciiDigit(unit)) {
            return false;
        } else {
            ++pieceLength;
            ++digits;
        }
    }
    return pieceLength > 0 && digits >= 4 && digits <= 8;
}

} // namespace vellumry
