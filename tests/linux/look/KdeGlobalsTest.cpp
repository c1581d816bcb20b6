// SPDX-License-Identifier: GPL-3.0-or-later
#include "linux/look/KdeGlobals.h"

#include "linux/files/InotifyFolderWatching.h"
#include "support/Eventually.h"

#include <QSaveFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

using namespace vellumry;

namespace {

const QByteArray breezeDark = "[Colors:View]\nBackgroundNormal=27,30,32\n\n[Colors:Window]\nBackgroundNormal=42,46,50\n"
                              "[General]\nAccentColor=233,61,88\nColorScheme=BreezeDark\n"
                              "font=Noto Sans,13,-1,5,50,0,0,0,0,0\n\n[KDE]\nAnimationDurationFactor[$i]=0\n";

void write(const QString& path, const QByteArray& text) {
    // As Plasma does: a new file in the place of the old one.
    QSaveFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.write(text) == text.size() && file.commit());
}

} // namespace

TEST(KdeGlobals, SaysTheColoursTheFontAndWhetherThingsMove) {
    const SaidLook said = KdeGlobals::lookOf(breezeDark);
    EXPECT_EQ(said.isDark, true);
    EXPECT_EQ(said.accent, 0xe93d58U);
    EXPECT_EQ(said.reducesMotion, true);
    ASSERT_TRUE(said.textScale);
    EXPECT_NEAR(*said.textScale, 13.0 / 11, 0.001);
}

TEST(KdeGlobals, ALightSchemeIsLightAndItsSelectionIsTheAccentWhereNoneWasChosen) {
    const SaidLook said = KdeGlobals::lookOf("[Colors:Window]\nBackgroundNormal=239,240,241\n"
                                             "[Colors:Selection]\nBackgroundNormal=#3daee9\n[KDE]\n"
                                             "AnimationDurationFactor=0.5\n");
    EXPECT_EQ(said.isDark, false);
    EXPECT_EQ(said.accent, 0x3daee9U);
    EXPECT_EQ(said.reducesMotion, false);
    EXPECT_FALSE(said.textScale);
}

TEST(KdeGlobals, WhatCannotBeReadSaysNothing) {
    for (const char* text : {"", "BackgroundNormal=1,2,3", "[Colors:Window]\nBackgroundNormal=1,2",
                             "[General]\nAccentColor=", "[General]\nAccentColor=300,0,0\nfont=Noto Sans",
                             "[KDE]\nAnimationDurationFactor=fast", "[[[]\n=\n"})
        EXPECT_EQ(KdeGlobals::lookOf(text), SaidLook()) << text;
}

TEST(KdeGlobals, AChangeOfTheFileIsFollowed) {
    const QTemporaryDir folder;
    InotifyFolderWatching folders;
    int changes = 0;
    const KdeGlobals settings(folder.path(), folders, [&changes] { ++changes; });
    EXPECT_EQ(settings.said(), SaidLook()) << "nothing is waited for";
    write(folder.filePath(QStringLiteral("kdeglobals")), breezeDark);
    ASSERT_TRUE(eventually([&] { return settings.said().isDark == true; }));
    EXPECT_EQ(changes, 1);
    write(folder.filePath(QStringLiteral("kdeglobals")), "[Colors:Window]\nBackgroundNormal=239,240,241\n");
    ASSERT_TRUE(eventually([&] { return settings.said().isDark == false; }));
    EXPECT_FALSE(settings.said().accent);
}
