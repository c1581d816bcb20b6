// SPDX-License-Identifier: GPL-3.0-or-later
#include "foundation/Localisation.h"

#include "foundation/InterfaceLocale.h"

#include <QCoreApplication>
#include <QDirIterator>
#include <QFile>
#include <QRegularExpression>
#include <QTranslator>
#include <gtest/gtest.h>
#include <string_view>

namespace vellumry {

namespace {

/// Every key that the sources look up: the literal arguments of localised().
QStringList keysInSources() {
    static const QRegularExpression call(
        QStringLiteral("\\b(?:localised|counted|words)\\(\\s*((?:\"(?:[^\"\\\\]|\\\\.)*\"\\s*)+)"));
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

class EachCatalogue : public ::testing::TestWithParam<const char*> {
protected:
    EachCatalogue() { isOpen = catalogue.open(QString::fromLatin1(GetParam())); }
    ~EachCatalogue() override { QCoreApplication::removeTranslator(&catalogue); }

    Catalogue catalogue;
    bool isOpen = false;
};

TEST_P(EachCatalogue, HasAWordingForEveryTextOfTheSources) {
    ASSERT_TRUE(isOpen);
    const QStringList keys = keysInSources();
    EXPECT_FALSE(keys.isEmpty());
    const bool isEnglish = std::string_view(GetParam()) == "en";
    for (const QString& key : keys) {
        const QString wording = catalogue.translate("Vellumry", key.toUtf8().constData(), nullptr, -1);
        // English is the key itself where it says nothing else.
        EXPECT_FALSE(wording.isEmpty() && (!isEnglish || speaksOfAnotherSystem(key))) << qPrintable(key);
        EXPECT_FALSE(speaksOfAnotherSystem(wording)) << qPrintable(wording);
    }
}

TEST_P(EachCatalogue, HasEveryFormOfATextThatCounts) {
    ASSERT_TRUE(isOpen);
    int counting = 0;
    for (const QString& key : keysInSources()) {
        if (!key.contains(QLatin1String("%n")))
            continue;
        ++counting;
        for (const int count : {0, 1, 2, 3, 11, 100, 5000}) {
            const QString wording = catalogue.translate("Vellumry", key.toUtf8().constData(), nullptr, count);
            EXPECT_FALSE(wording.isEmpty()) << qPrintable(key) << count;
            EXPECT_FALSE(wording.contains(QLatin1String("%n"))) << qPrintable(wording);
        }
    }
    EXPECT_GT(counting, 20);
}

TEST_P(EachCatalogue, WritesNumbersAsItsLanguageDoes) {
    ASSERT_TRUE(isOpen);
    QCoreApplication::installTranslator(&catalogue);
    EXPECT_EQ(localised("en"), QString::fromLatin1(GetParam()));
    const QString number = usersLocaleIn(QString::fromLatin1(GetParam())).toString(5000);
    EXPECT_TRUE(localised("%n clips", 5000).contains(number)) << qPrintable(localised("%n clips", 5000));
}

INSTANTIATE_TEST_SUITE_P(Localisation, EachCatalogue,
                         ::testing::Values("ar", "de", "en", "es", "fr", "ja", "pt_BR", "zh_CN"),
                         [](const auto& each) { return std::string(each.param); });

TEST(Localisation, ArabicHasSixPluralForms) {
    Catalogue catalogue;
    ASSERT_TRUE(catalogue.open(QStringLiteral("ar")));
    QStringList forms;
    for (const int count : {0, 1, 2, 3, 11, 100}) {
        QString form = catalogue.translate("Vellumry", "%n clips", nullptr, count);
        forms.append(form.remove(usersLocaleIn(QStringLiteral("ar")).toString(count)));
    }
    EXPECT_EQ(forms.removeDuplicates(), 0);
}

/// Gives the environment back as it was.
class LanguageEnvironment {
protected:
    LanguageEnvironment() {
        for (const char* variable : variables)
            before.append(qgetenv(variable));
    }
    ~LanguageEnvironment() {
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

struct LanguageCase {
    const char* name;
    const char* language;
    const char* all;
    const char* messages;
    const char* lang;
    QStringList wanted;
};

class WantedLanguages : protected LanguageEnvironment, public ::testing::TestWithParam<LanguageCase> {};

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

struct InstalledCase {
    const char* name;
    const char* language;
    const char* lang;
    const char* taken;
    qsizetype warnings;
};

/// One installation in a given environment, and what the log warns of in it.
class InstalledLanguage : protected LanguageEnvironment, public ::testing::TestWithParam<InstalledCase> {
protected:
    ~InstalledLanguage() override {
        for (auto* installed : QCoreApplication::instance()->findChildren<QTranslator*>())
            delete installed; // which takes it out as well
    }
    static void install(const InstalledCase& given) {
        set("LANGUAGE", given.language);
        set("LC_ALL", "");
        set("LC_MESSAGES", "");
        set("LANG", given.lang);
        warnings.clear();
        const QtMessageHandler before =
            qInstallMessageHandler([](QtMsgType type, const QMessageLogContext&, const QString& text) {
                if (type == QtWarningMsg)
                    warnings.append(text);
            });
        installCatalogue();
        qInstallMessageHandler(before);
    }

    static inline QStringList warnings;
};

TEST_P(InstalledLanguage, IsTheBestThatThereIsAndALocaleThatDoesNotExistIsToldOnce) {
    install(GetParam());
    EXPECT_EQ(localised("en"), QString::fromLatin1(GetParam().taken));
    EXPECT_EQ(warnings.size(), GetParam().warnings) << qPrintable(warnings.join(u'\n'));
    EXPECT_FALSE(speaksOfAnotherSystem(localised("⌘"))) << "English lies beneath every language";
}

// "C.UTF-8" with LANGUAGE is untranslated; "C" as LC_ALL exists everywhere.
INSTANTIATE_TEST_SUITE_P(Each, InstalledLanguage,
                         ::testing::Values(InstalledCase{"NoneWanted", "", "C.UTF-8", "en", 0},
                                           InstalledCase{"NoLocaleAtAll", "", "", "en", 0},
                                           InstalledCase{"UnknownLocale", "", "tlh_XX.UTF-8", "en", 1},
                                           InstalledCase{"CountryOfALanguage", "", "de_XX.UTF-8", "de", 1},
                                           InstalledCase{"CountryWithItsOwn", "", "pt_BR.nosuchcoding", "pt_BR", 1},
                                           InstalledCase{"AnotherWritingIsNotTaken", "", "zh_TW.nosuchcoding", "en", 1},
                                           InstalledCase{"TheSameWritingIs", "", "zh_SG.nosuchcoding", "zh_CN", 1},
                                           InstalledCase{"FirstThatThereIs", "tlh:ja:de", "xx_XX.UTF-8", "ja", 1},
                                           InstalledCase{"EnglishBeforeOthers", "en:de", "xx_XX.UTF-8", "en", 1}),
                         [](const auto& each) { return std::string(each.param.name); });

} // namespace vellumry
