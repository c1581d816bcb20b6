// SPDX-License-Identifier: GPL-3.0-or-later
#include "capture/screenshots/ScreenshotNames.h"

#include <gtest/gtest.h>

namespace vellumry::screenshotnames {
namespace {

struct Named {
    const char* tool;
    const char* file;
};

class ToolsName : public ::testing::TestWithParam<Named> {};

TEST_P(ToolsName, IsKnown) {
    EXPECT_TRUE(isScreenshotName(QString::fromUtf8(GetParam().file))) << GetParam().file;
}

INSTANTIATE_TEST_SUITE_P(
    ScreenshotNames, ToolsName,
    ::testing::Values(
        Named{"Gnome", "Screenshot from 2026-03-09 14-05-00.png"},
        Named{"GnomeAgain", "Screenshot from 2026-03-09 14-05-00-1.png"},
        Named{"GnomeGerman", "Bildschirmfoto vom 2026-03-09 14-05-00.png"},
        Named{"GnomeFrench", "Capture d’écran du 2026-03-09 14-05-00.png"},
        Named{"GnomeUnknownLanguage", "Sgrin-lun o 2026-03-09 14-05-00.png"},
        Named{"Kde", "Screenshot_20260309_140500.png"}, Named{"KdeSecond", "Screenshot_20260309_140500-1.png"},
        Named{"KdeJpeg", "Screenshot_20260309_140500.jpg"}, Named{"Xfce", "Screenshot_2026-03-09_14-05-00.png"},
        Named{"XfceSpanish", "Captura de pantalla_2026-03-09_14-05-00.png"},
        Named{"Mate", "Screenshot at 2026-03-09 14-05-00.png"},
        Named{"Elementary", "Screenshot from 2026-03-09 14.05.00.png"},
        Named{"Deepin", "DeepinScreenshot_20260309140500.png"}, Named{"Scrot", "2026-03-09-140500_1920x1080_scrot.png"},
        Named{"Grim", "20260309_14h05m00s_grim.png"}, Named{"Hyprshot", "2026-03-09-140500_hyprshot.png"},
        Named{"Flameshot", "2026-03-09_14-05.png"}, Named{"FlameshotSecond", "2026-03-09_14-05-1.png"},
        Named{"Swappy", "swappy-20260309_140500.png"}, Named{"Japanese", "スクリーンショット 2026-03-09 14-05-00.png"},
        Named{"JapaneseDecomposed", "スクリーンショット_20260309_140500.png"},
        Named{"Russian", "Снимок экрана от 2026-03-09 14-05-00.png"}, Named{"Chinese", "截图 2026-03-09 14-05-00.png"}),
    [](const auto& row) { return std::string(row.param.tool); });

class OrdinaryName : public ::testing::TestWithParam<Named> {};

TEST_P(OrdinaryName, IsNotTakenForOne) {
    EXPECT_FALSE(isScreenshotName(QString::fromUtf8(GetParam().file))) << GetParam().file;
}

INSTANTIATE_TEST_SUITE_P(
    ScreenshotNames, OrdinaryName,
    ::testing::Values(Named{"Camera", "IMG_20260309_140500.jpg"}, Named{"Telephone", "20260309_140500.jpg"},
                      Named{"TelephonePng", "20260309_140500.png"}, Named{"Pixel", "PXL_20260309_140500123.jpg"},
                      Named{"Messenger", "WhatsApp Image 2026-03-09 at 14.05.00.jpeg"},
                      Named{"NoDate", "screenshot of the bug.png"}, Named{"Picture", "holiday.png"},
                      Named{"DayAlone", "2026-03-09.png"}, Named{"NoSuchMonth", "Screenshot 2026-13-09 14-05-00.png"},
                      Named{"LongerNumber", "invoice 12026030914.png"}, Named{"Scroll", "2026-03-09 scrotum.png"},
                      Named{"MomentOfAJpeg", "2026-03-09_14-05.jpg"}, Named{"Empty", ""}),
    [](const auto& row) { return std::string(row.param.tool); });

TEST(ScreenshotNames, KnowsTheFoldersOfDesktops) {
    EXPECT_TRUE(isScreenshotFolderName(QStringLiteral("Screenshots")));
    EXPECT_TRUE(isScreenshotFolderName(QStringLiteral("Bildschirmfotos")));
    EXPECT_TRUE(isScreenshotFolderName(QString::fromUtf8("Captures d’écran")));
    EXPECT_FALSE(isScreenshotFolderName(QStringLiteral("Holidays")));
    EXPECT_FALSE(isScreenshotFolderName(QString()));
}

} // namespace
} // namespace vellumry::screenshotnames
