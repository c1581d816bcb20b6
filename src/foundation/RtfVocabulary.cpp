// SPDX-License-Identifier: GPL-3.0-or-later
#include "foundation/RtfVocabulary.h"

#include <QHash>
#include <QSet>
#include <algorithm>

namespace vellumry::rtf {

int codePageOfCharset(int charset) {
    switch (charset) {
    case 0:
        return 1252;
    case 77:
        return 10000;
    case 128:
        return 932;
    case 129:
        return 949;
    case 134:
        return 936;
    case 136:
        return 950;
    case 161:
        return 1253;
    case 162:
        return 1254;
    case 163:
        return 1258;
    case 177:
        return 1255;
    case 178:
        return 1256;
    case 186:
        return 1257;
    case 204:
        return 1251;
    case 222:
        return 874;
    case 238:
        return 1250;
    default:
        return 0;
    }
}

std::optional<char16_t> characterOf(const QByteArray& word) {
    static const QHash<QByteArray, char16_t> characters{
        {"par", u'\n'},         {"line", u'\n'},        {"sect", u'\n'},          {"page", u'\n'},
        {"column", u'\n'},      {"row", u'\n'},         {"nestrow", u'\n'},       {"tab", u'\t'},
        {"cell", u'\t'},        {"nestcell", u'\t'},    {"emdash", u'\u2014'},    {"endash", u'\u2013'},
        {"emspace", u'\u2003'}, {"enspace", u'\u2002'}, {"qmspace", u'\u2005'},   {"bullet", u'\u2022'},
        {"lquote", u'\u2018'},  {"rquote", u'\u2019'},  {"ldblquote", u'\u201C'}, {"rdblquote", u'\u201D'},
        {"zwj", u'\u200D'},     {"zwnj", u'\u200C'},    {"ltrmark", u'\u200E'},   {"rtlmark", u'\u200F'},
    };
    const auto found = characters.constFind(word);
    return found == characters.constEnd() ? std::nullopt : std::optional(*found);
}

bool isIgnoredDestination(const QByteArray& word) {
    static const QSet<QByteArray> words{
        "stylesheet",        "info",      "pict",       "object",    "objdata",   "header",
        "headerl",           "headerr",   "headerf",    "footer",    "footerl",   "footerr",
        "footerf",           "footnote",  "annotation", "fldinst",   "filetbl",   "listtable",
        "listoverridetable", "rsidtbl",   "revtbl",     "generator", "themedata", "datastore",
        "latentstyles",      "xe",        "tc",         "rxe",       "private",   "nonshppict",
        "shpinst",           "bkmkstart", "bkmkend",    "template",
    };
    return words.contains(word);
}

void applyStyle(TextStyle& style, QByteArrayView word, std::optional<int> parameter) {
    constexpr int leastSize = 2;
    constexpr int mostSize = 800;
    const bool isOn = parameter.value_or(1) != 0;
    if (word == "b")
        style.isBold = isOn;
    else if (word == "i")
        style.isItalic = isOn;
    else if (word == "ul" || word == "ulw" || word == "uld" || word == "uldb" || word == "ulwave")
        style.isUnderlined = isOn;
    else if (word == "ulnone")
        style.isUnderlined = false;
    else if (word == "strike" || word == "striked")
        style.isStruck = isOn;
    else if (word == "fs")
        style.size = static_cast<float>(std::clamp(parameter.value_or(int(plainStyle.size)), leastSize, mostSize));
}

} // namespace vellumry::rtf
