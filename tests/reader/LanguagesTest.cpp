// SPDX-License-Identifier: GPL-3.0-or-later
#include "reader/Languages.h"

#include "reader/LanguageData.h"

#include <QCoreApplication>
#include <QDir>
#include <gtest/gtest.h>

namespace vellumry {
namespace {

using languages::byScript;
using Scripts = std::vector<languages::Script>;

QStringList names(std::initializer_list<const char*> list) {
    QStringList result;
    for (const char* name : list)
        result << QString::fromLatin1(name);
    return result;
}

TEST(Languages, AreGroupedByScriptLatinFirst) {
    const Scripts expected{{{"eng", "deu", "fra"}}, {{"ell"}}, {{"jpn"}}, {{"rus", "ukr"}}};
    EXPECT_EQ(byScript(names({"ukr", "jpn", "fra", "ell", "eng", "deu", "rus"}), {}), expected);
}

TEST(Languages, TheUsersOwnComeFirstInTheirScriptAndTheirScriptBehindLatin) {
    const Scripts expected{{{"fra", "eng", "deu"}}, {{"jpn"}}, {{"ell"}}};
    EXPECT_EQ(byScript(names({"deu", "ell", "eng", "fra", "jpn"}), names({"ja-JP", "fr-FR", "fr"})), expected);
}

TEST(Languages, WhatIsNoLanguageIsLeftOut) {
    const Scripts expected{{{"eng"}}, {{"jpn"}}};
    EXPECT_EQ(byScript(names({"osd", "equ", "snum", "eng", "jpn", "jpn_vert"}), {}), expected);
}

TEST(Languages, DataInstalledWithTheProgramIsLookedForBehindThatOfTheSystem) {
    const QString own = QDir::cleanPath(QCoreApplication::applicationDirPath() + QStringLiteral("/../share/tessdata"));
    const QStringList folders = languagedata::folders();
    EXPECT_EQ(folders.last(), own);
    EXPECT_LT(folders.indexOf(QStringLiteral("/usr/share/tessdata")), folders.size() - 1);
}

TEST(Languages, AnUnknownNameIsTakenForLatin) {
    EXPECT_EQ(byScript(names({"quz", "eng"}), {}), (Scripts{{{"eng", "quz"}}}));
}

TEST(Languages, WithoutLatinTheUsersScriptIsFirst) {
    EXPECT_EQ(byScript(names({"ell", "rus"}), names({"ru-RU"})), (Scripts{{{"rus"}}, {{"ell"}}}));
}

TEST(Languages, NoneGiveNone) {
    EXPECT_TRUE(byScript({}, names({"de"})).empty());
}

} // namespace
} // namespace vellumry
