// SPDX-License-Identifier: GPL-3.0-or-later
#include "linux/look/SaidLook.h"

#include <gtest/gtest.h>

using namespace vellumry;

TEST(DesktopLook, EachChoiceComesFromTheFirstPlaceThatSaysIt) {
    const SaidLook portal{.isDark = false, .isHighContrast = true, .reducesMotion = false};
    const SaidLook plasma{.isDark = true, .accent = 0x3daee9, .isHighContrast = false};
    const SaidLook xSettings{.accent = 0x112233, .reducesMotion = true, .textScale = 1.5};
    const DesktopLook look = lookOf({portal, plasma, xSettings});
    EXPECT_EQ(look.isDark, false);
    EXPECT_EQ(look.accent, 0x3daee9U);
    EXPECT_TRUE(look.isHighContrast);
    EXPECT_FALSE(look.reducesMotion);
    EXPECT_EQ(look.textScale, 1.5);
    EXPECT_EQ(lookOf({SaidLook(), SaidLook()}), DesktopLook());
}

TEST(DesktopLook, ThemesAreDarkOrOfHighContrastByTheirNames) {
    EXPECT_EQ(lookOfNames(QStringLiteral("Greybird-dark"), {}).isDark, true);
    EXPECT_EQ(lookOfNames(QStringLiteral("Adwaita-Dark"), {}).isDark, true);
    EXPECT_EQ(lookOfNames(QStringLiteral("Adwaita"), {}).isDark, false);
    EXPECT_EQ(lookOfNames(QStringLiteral("HighContrastInverse"), {}).isDark, true);
    EXPECT_EQ(lookOfNames(QStringLiteral("HighContrastInverse"), {}).isHighContrast, true);
    EXPECT_EQ(lookOfNames({}, {}), SaidLook());
}

TEST(DesktopLook, AFontLargerThanTheUsualOnesMakesTextsLarger) {
    const auto scale = [](const char* font) { return lookOfNames({}, QString::fromLatin1(font)).textScale; };
    EXPECT_EQ(scale("Sans 10"), 1.0);
    EXPECT_EQ(scale("Cantarell 11"), 1.0);
    EXPECT_EQ(scale("Noto Sans Bold Italic 16.5"), 1.5);
    EXPECT_EQ(scale("Sans 9"), 0.9);
    for (const char* nothing : {"", "Sans", "12", "Sans 0", "Sans -3", "Sans nan", "Sans 1000"})
        EXPECT_EQ(scale(nothing), std::nullopt) << nothing;
}
