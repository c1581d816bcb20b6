// SPDX-License-Identifier: GPL-3.0-or-later
#include "foundation/Localisation.h"

#include <QCoreApplication>
#include <QDirIterator>
#include <QFile>
#include <QRegularExpression>
#include <QTranslator>
#include <gtest/gtest.h>
#include <memory>

namespace vellumry {

namespace {

/// Every key that the sources look up: the literal arguments of localised().
QStringList keysInSources() {
    static const QRegularExpression call(
        QStringLiteral("\\b(?:localised|text|tr|words)\\(\\s*((?:\"(?:[^\"\\\\]|\\\\.)*\"\\s*)+)"));
    static const QRegularExpression literal(QStringLiteral("\"((?:[^\"\\\\]|\\\\.)*)\""));
    QStringList keys;
    QDirIterator files(QStringLiteral(VELLUMRY_SOURCE_FOLDER),
                       {QStringLiteral("*.cpp"), QStringLiteral("*.h"), QStringLiteral("*.qml")}, QDir::Files,
                       QDirIterator::Subdirectories);
    while (files.hasNext()) {
        QFile file(files.next());
        if (!file.open(QIODevice::ReadOnly))
            continue;
        const QString text = QString::fromUtf8(file.readAll());
        for (auto match = call.globalMatch(text); match.hasNext();) {
            QString key;
            for (auto part = literal.globalMatch(match.next().captured(1)); part.hasNext();)
                key += part.next().captured(1);
            keys.append(key.replace(QStringLiteral("\\\""), QStringLiteral("\"")));
        }
    }
    return keys;
}

/// What only users of another system would understand.
bool speaksOfAnotherSystem(const QString& text) {
    static const QRegularExpression words(QStringLiteral(
        "\\bMac\\b|macOS|Keychain|Finder|System Settings|Privacy & Security|[\u2318\u2303\u2325\u21E7]"));
    return words.match(text).hasMatch();
}

} // namespace

TEST(Localisation, AnUnknownTextIsItsOwnWording) {
    EXPECT_EQ(localised("No catalogue has heard of this · ⌘"), QStringLiteral("No catalogue has heard of this · ⌘"));
}

TEST(Localisation, TheCatalogueOfEnglishGivesTheLinuxWording) {
    QTranslator catalogue;
    ASSERT_TRUE(catalogue.load(QStringLiteral(":/i18n/vellumry_en.qm")));
    QCoreApplication::installTranslator(&catalogue);
    EXPECT_EQ(localised("Copied. Press ⌘V to paste"), QStringLiteral("Copied. Press Ctrl+V to paste"));
    EXPECT_EQ(localised("Vellumry can't reach your Keychain"), QStringLiteral("Vellumry can't reach your keyring"));
    EXPECT_EQ(localised("⌃"), QStringLiteral("Super+"));
    EXPECT_EQ(localised("Nothing pinned at ⌃⌥%1 yet. Pin a clip with ⌘P").arg(3),
              QStringLiteral("Nothing pinned at Super+Alt+3 yet. Pin a clip with Ctrl+P"));
    QCoreApplication::removeTranslator(&catalogue);
    EXPECT_EQ(localised("⌃"), QStringLiteral("⌃"));
}

TEST(Localisation, ATextThatCountsHasTheFormOfItsNumber) {
    EXPECT_EQ(localised("%n characters", 1), QStringLiteral("1 characters"));
    QTranslator catalogue;
    ASSERT_TRUE(catalogue.load(QStringLiteral(":/i18n/vellumry_en.qm")));
    QCoreApplication::installTranslator(&catalogue);
    EXPECT_EQ(localised("%n characters", 1), QStringLiteral("1 character"));
    EXPECT_EQ(localised("%n characters", 2), QStringLiteral("2 characters"));
    EXPECT_EQ(localised("%n characters", 0), QStringLiteral("0 characters"));
    QCoreApplication::removeTranslator(&catalogue);
}

TEST(Localisation, NoWordingShownSpeaksOfAnotherSystem) {
    QTranslator catalogue;
    ASSERT_TRUE(catalogue.load(QStringLiteral(":/i18n/vellumry_en.qm")));
    QCoreApplication::installTranslator(&catalogue);
    const QStringList keys = keysInSources();
    EXPECT_FALSE(keys.isEmpty());
    for (const QString& key : keys)
        EXPECT_FALSE(speaksOfAnotherSystem(localised(key.toUtf8().constData())))
            << "no wording for: " << qPrintable(key);
    QCoreApplication::removeTranslator(&catalogue);
}

struct LanguageCase {
    const char* name;
    const char* language;
    const char* all;
    const char* messages;
    const char* lang;
    QStringList wanted;
};

class WantedLanguages : public ::testing::TestWithParam<LanguageCase> {
protected:
    WantedLanguages() {
        for (const char* variable : variables)
            before.append(qgetenv(variable));
    }
    ~WantedLanguages() override {
        for (std::size_t index = 0; index < std::size(variables); ++index)
            set(variables[index], before[qsizetype(index)]);
    }
    static void set(const char* variable, const QByteArray& value) {
        if (value.isEmpty())
            qunsetenv(variable);
        else
            qputenv(variable, value);
    }

    static constexpr const char* variables[] = {"LANGUAGE", "LC_ALL", "LC_MESSAGES", "LANG"};
    QByteArrayList before;
};

TEST_P(WantedLanguages, AreThoseOfTheEnvironmentInItsOrder) {
    const LanguageCase& given = GetParam();
    set("LANGUAGE", given.language);
    set("LC_ALL", given.all);
    set("LC_MESSAGES", given.messages);
    set("LANG", given.lang);
    EXPECT_EQ(wantedLanguages(), given.wanted);
}

INSTANTIATE_TEST_SUITE_P(
    Each, WantedLanguages,
    ::testing::Values(LanguageCase{"Nothing", "", "", "", "", {}},
                      LanguageCase{"LangAlone", "", "", "", "de_AT.UTF-8", {"de_AT"}},
                      LanguageCase{"MessagesBeforeLang", "", "", "fr_FR.UTF-8", "de_DE.UTF-8", {"fr_FR"}},
                      LanguageCase{"AllBeforeMessages", "", "es_ES.UTF-8", "fr_FR", "de_DE", {"es_ES"}},
                      LanguageCase{"LanguageBeforeAll", "pt_BR:ja", "es_ES.UTF-8", "", "", {"pt_BR", "ja", "es_ES"}},
                      LanguageCase{"CodingAndCurrencyAreNoLanguage", "", "", "", "de_DE.ISO-8859-15@euro", {"de_DE"}},
                      LanguageCase{"CIsUntranslatedWhateverLanguageSays", "de", "C", "", "de_DE", {}},
                      LanguageCase{"CWithACodingToo", "de", "", "", "C.UTF-8", {}},
                      LanguageCase{"ALocaleThatDoesNotExist", "", "", "", "tlh_XX.UTF-8", {"tlh_XX"}}),
    [](const auto& each) { return std::string(each.param.name); });

TEST(Localisation, InstallingTakesTheLinuxWordingAsTheLastResort) {
    installCatalogue();
    EXPECT_EQ(localised("⌘"), QStringLiteral("Ctrl+"));
}

} // namespace vellumry
