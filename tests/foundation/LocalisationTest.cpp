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

TEST(Localisation, InstallingTakesTheLinuxWordingAsTheLastResort) {
    installCatalogue();
    EXPECT_EQ(localised("⌘"), QStringLiteral("Ctrl+"));
}

} // namespace vellumry
