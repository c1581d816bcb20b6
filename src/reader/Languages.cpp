// SPDX-License-Identifier: GPL-3.0-or-later
#include "reader/Languages.h"

#include <algorithm>
#include <array>
#include <map>
#include <string_view>

namespace vellumry::languages {

namespace {

struct Known {
    std::string_view name;   ///< of the recognition library
    std::string_view tag;    ///< ISO 639-1, as settings have it
    std::string_view script; ///< ISO 15924
};

/// Languages not written in Latin letters, and the Latin ones whose tag is not the beginning of their name.
constexpr std::array<Known, 60> known{
    {{"amh", "am", "Ethi"},     {"ara", "ar", "Arab"}, {"asm", "as", "Beng"}, {"bel", "be", "Cyrl"},
     {"ben", "bn", "Beng"},     {"bul", "bg", "Cyrl"}, {"ces", "cs", "Latn"}, {"chi_sim", "zh", "Hans"},
     {"chi_tra", "zh", "Hant"}, {"cym", "cy", "Latn"}, {"dan", "da", "Latn"}, {"deu", "de", "Latn"},
     {"div", "dv", "Thaa"},     {"ell", "el", "Grek"}, {"eng", "en", "Latn"}, {"est", "et", "Latn"},
     {"eus", "eu", "Latn"},     {"fas", "fa", "Arab"}, {"fra", "fr", "Latn"}, {"gle", "ga", "Latn"},
     {"grc", "", "Grek"},       {"guj", "gu", "Gujr"}, {"heb", "he", "Hebr"}, {"hin", "hi", "Deva"},
     {"hrv", "hr", "Latn"},     {"hye", "hy", "Armn"}, {"isl", "is", "Latn"}, {"jpn", "ja", "Jpan"},
     {"kan", "kn", "Knda"},     {"kat", "ka", "Geor"}, {"kaz", "kk", "Cyrl"}, {"khm", "km", "Khmr"},
     {"kir", "ky", "Cyrl"},     {"kor", "ko", "Kore"}, {"lao", "lo", "Laoo"}, {"lav", "lv", "Latn"},
     {"lit", "lt", "Latn"},     {"mal", "ml", "Mlym"}, {"mar", "mr", "Deva"}, {"mkd", "mk", "Cyrl"},
     {"mon", "mn", "Cyrl"},     {"mya", "my", "Mymr"}, {"nep", "ne", "Deva"}, {"nld", "nl", "Latn"},
     {"nor", "nb", "Latn"},     {"pan", "pa", "Guru"}, {"pol", "pl", "Latn"}, {"por", "pt", "Latn"},
     {"ron", "ro", "Latn"},     {"rus", "ru", "Cyrl"}, {"sin", "si", "Sinh"}, {"slk", "sk", "Latn"},
     {"spa", "es", "Latn"},     {"srp", "sr", "Cyrl"}, {"swe", "sv", "Latn"}, {"tam", "ta", "Taml"},
     {"tel", "te", "Telu"},     {"tha", "th", "Thai"}, {"ukr", "uk", "Cyrl"}, {"urd", "ur", "Arab"}}};

Known describe(const QString& name) {
    const std::string plain = name.toStdString();
    const auto found = std::ranges::find(known, std::string_view(plain), &Known::name);
    return found == known.end() ? Known{"", "", "Latn"} : *found;
}

bool isLanguage(const QString& name) {
    return name != QLatin1String("osd") && name != QLatin1String("equ") && name != QLatin1String("snum") &&
           !name.endsWith(QLatin1String("_vert"));
}

/// The place of a language among the user's, and behind them when it is none.
qsizetype rank(const QString& name, const QStringList& wanted) {
    const std::string_view tag = describe(name).tag;
    const QString own =
        tag.empty() ? name.left(2) : QString::fromLatin1(tag.data(), static_cast<qsizetype>(tag.size()));
    const auto isOwn = [&own](const QString& one) { return one == own || one.startsWith(own + u'-'); };
    const qsizetype place = std::ranges::find_if(wanted, isOwn) - wanted.begin();
    if (place < wanted.size())
        return place;
    return name == QLatin1String("eng") ? wanted.size() : wanted.size() + 1;
}

} // namespace

std::vector<Script> byScript(const QStringList& installed, const QStringList& wanted) {
    QStringList names;
    std::ranges::copy_if(installed, std::back_inserter(names), isLanguage);
    std::ranges::sort(names);
    std::ranges::stable_sort(names, {}, [&wanted](const QString& name) { return rank(name, wanted); });

    std::vector<std::pair<std::string_view, Script>> scripts;
    for (const QString& name : names) {
        const std::string_view code = describe(name).script;
        auto found = std::ranges::find(scripts, code, [](const auto& entry) { return entry.first; });
        if (found == scripts.end())
            found = scripts.insert(scripts.end(), {code, {}});
        found->second.languages.append(name.toLatin1());
    }
    std::ranges::stable_partition(scripts, [](const auto& entry) { return entry.first == "Latn"; });
    std::vector<Script> result;
    for (auto& [code, script] : scripts)
        result.push_back(std::move(script));
    return result;
}

} // namespace vellumry::languages
