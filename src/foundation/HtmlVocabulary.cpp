// SPDX-License-Identifier: GPL-3.0-or-later
#include "foundation/HtmlVocabulary.h"

#include <QHash>
#include <initializer_list>

namespace vellumry::html {

namespace {

QHash<QString, Meaning> elements() {
    QHash<QString, Meaning> made;
    const auto add = [&made](std::initializer_list<const char*> names, const Meaning& meaning) {
        for (const char* name : names)
            made.insert(QString::fromLatin1(name), meaning);
    };
    add({"b", "strong"}, {.isBold = true});
    add({"i", "em", "cite", "var", "dfn"}, {.isItalic = true});
    add({"u", "ins"}, {.isUnderlined = true});
    add({"s", "strike", "del"}, {.isStruck = true});
    add({"code", "tt", "kbd", "samp"}, {.isFixedWidth = true});
    add({"small", "sub", "sup"}, {.size = 0.83F});
    add({"big"}, {.size = 1.2F});
    add({"h1"}, {.breaks = 2, .isBold = true, .size = 2.0F});
    add({"h2"}, {.breaks = 2, .isBold = true, .size = 1.5F});
    add({"h3"}, {.breaks = 2, .isBold = true, .size = 1.17F});
    add({"h4", "h5", "h6"}, {.breaks = 2, .isBold = true});
    add({"p"}, {.breaks = 2, .endsItsOwnKind = true});
    add({"ul", "ol", "dl", "blockquote", "table", "figure", "fieldset"}, {.breaks = 2});
    add({"pre", "listing"}, {.breaks = 2, .isPreformatted = true, .isFixedWidth = true});
    add({"div",        "section", "article", "aside",  "header", "footer", "main",
         "nav",        "address", "form",    "center", "body",   "html",   "caption",
         "figcaption", "details", "summary", "legend", "tbody",  "thead",  "tfoot"},
        {.breaks = 1});
    add({"li", "tr", "dd"}, {.breaks = 1, .endsItsOwnKind = true});
    add({"dt"}, {.breaks = 1, .endsItsOwnKind = true, .isBold = true});
    add({"td"}, {.endsItsOwnKind = true});
    add({"th"}, {.endsItsOwnKind = true, .isBold = true});
    add({"hr"}, {.breaks = 2, .isVoid = true});
    add({"br", "img", "input", "meta", "link", "base", "wbr", "col", "area", "source", "track", "embed", "param"},
        {.isVoid = true});
    add({"script", "style", "title", "textarea", "iframe", "noembed", "noframes", "xmp", "plaintext"},
        {.isHidden = true, .isRaw = true});
    add({"head", "template", "svg", "math", "object", "audio", "video", "canvas", "select", "datalist", "applet"},
        {.isHidden = true});
    return made;
}

/// The names of U+00A0 to U+00FF, in their order.
constexpr const char* latin =
    "nbsp iexcl cent pound curren yen brvbar sect uml copy ordf laquo not shy reg macr deg plusmn sup2 sup3 acute "
    "micro "
    "para middot cedil sup1 ordm raquo frac14 frac12 frac34 iquest Agrave Aacute Acirc Atilde Auml Aring AElig Ccedil "
    "Egrave Eacute Ecirc Euml Igrave Iacute Icirc Iuml ETH Ntilde Ograve Oacute Ocirc Otilde Ouml times Oslash Ugrave "
    "Uacute Ucirc Uuml Yacute THORN szlig agrave aacute acirc atilde auml aring aelig ccedil egrave eacute ecirc euml "
    "igrave iacute icirc iuml eth ntilde ograve oacute ocirc otilde ouml divide oslash ugrave uacute ucirc uuml yacute "
    "thorn yuml";

QHash<QString, char16_t> references() {
    QHash<QString, char16_t> made{{QStringLiteral("amp"), u'&'},        {QStringLiteral("lt"), u'<'},
                                  {QStringLiteral("gt"), u'>'},         {QStringLiteral("quot"), u'"'},
                                  {QStringLiteral("apos"), u'\''},      {QStringLiteral("hellip"), u'\u2026'},
                                  {QStringLiteral("mdash"), u'\u2014'}, {QStringLiteral("ndash"), u'\u2013'},
                                  {QStringLiteral("lsquo"), u'\u2018'}, {QStringLiteral("rsquo"), u'\u2019'},
                                  {QStringLiteral("ldquo"), u'\u201C'}, {QStringLiteral("rdquo"), u'\u201D'},
                                  {QStringLiteral("sbquo"), u'\u201A'}, {QStringLiteral("bdquo"), u'\u201E'},
                                  {QStringLiteral("bull"), u'\u2022'},  {QStringLiteral("euro"), u'\u20AC'},
                                  {QStringLiteral("trade"), u'\u2122'}, {QStringLiteral("larr"), u'\u2190'},
                                  {QStringLiteral("uarr"), u'\u2191'},  {QStringLiteral("rarr"), u'\u2192'},
                                  {QStringLiteral("darr"), u'\u2193'},  {QStringLiteral("thinsp"), u'\u2009'},
                                  {QStringLiteral("ensp"), u'\u2002'},  {QStringLiteral("emsp"), u'\u2003'},
                                  {QStringLiteral("zwj"), u'\u200D'},   {QStringLiteral("zwnj"), u'\u200C'},
                                  {QStringLiteral("lrm"), u'\u200E'},   {QStringLiteral("rlm"), u'\u200F'},
                                  {QStringLiteral("minus"), u'\u2212'}, {QStringLiteral("infin"), u'\u221E'}};
    char16_t character = u'\u00A0';
    for (const QString& name : QString::fromLatin1(latin).split(u' '))
        made.insert(name, character++);
    return made;
}

} // namespace

const Meaning& meaningOf(const QString& name) {
    static const QHash<QString, Meaning> known = elements();
    static const Meaning nothing;
    const auto found = known.constFind(name);
    return found == known.constEnd() ? nothing : *found;
}

std::optional<QString> referenced(QStringView name) {
    static const QHash<QString, char16_t> known = references();
    if (!name.startsWith(u'#')) {
        const auto found = known.constFind(name.toString());
        return found == known.constEnd() ? std::nullopt : std::optional(QString(QChar(*found)));
    }
    const bool isHexadecimal = name.size() > 1 && (name[1] == u'x' || name[1] == u'X');
    bool isNumber = false;
    const char32_t scalar = name.sliced(isHexadecimal ? 2 : 1).toUInt(&isNumber, isHexadecimal ? 16 : 10);
    // No scalar, and what no reader shows, is the sign for a character that was lost.
    if (!isNumber || scalar == 0 || scalar > QChar::LastValidCodePoint || QChar::isSurrogate(scalar))
        return isNumber ? std::optional(QString(QChar(QChar::ReplacementCharacter))) : std::nullopt;
    return QString::fromUcs4(&scalar, 1);
}

} // namespace vellumry::html
