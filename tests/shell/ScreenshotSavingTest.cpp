// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/ScreenshotSaving.h"

#include "support/Awaited.h"
#include "support/FakeFolderWatching.h"
#include "support/FakeImageCodec.h"

#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace vellumry {
namespace {

const QString preference = QStringLiteral("saveNewScreenshots");

/// The switch over an importer of a real folder, or of one that is refused.
class ScreenshotSavingTest : public ::testing::Test {
protected:
    ScreenshotSavingTest() {
        ScreenshotImporter::Hooks hooks;
        hooks.folders = [this] { return QStringList(root.path()); };
        hooks.list = [this](const QString& folder) {
            return isRefused ? std::nullopt : ScreenshotFile::namesIn(folder);
        };
        importer = std::make_unique<ScreenshotImporter>(store, images, watching, std::move(hooks));
        saving = std::make_unique<ScreenshotSaving>(*importer, defaults);
        saving->onToast = [this](const ToastMessage& message) { toasts.push_back(message); };
    }
    [[nodiscard]] bool isPreferred() const { return defaults.boolean(preference); }

    QTemporaryDir root;
    bool isRefused = false;
    ClipStore store{RetentionPolicy()};
    FakeImageCodec images;
    FakeFolderWatching watching;
    UserDefaults defaults;
    std::unique_ptr<ScreenshotImporter> importer;
    std::unique_ptr<ScreenshotSaving> saving;
    std::vector<ToastMessage> toasts;
};

TEST_F(ScreenshotSavingTest, AtLaunchThePreferenceDecides) {
    awaited(saving->startIfWanted());
    EXPECT_FALSE(importer->isWatching());
    defaults.setObject(preference, true);
    awaited(saving->startIfWanted());
    EXPECT_TRUE(importer->isWatching());
    EXPECT_TRUE(isPreferred());
}

TEST_F(ScreenshotSavingTest, AFolderRefusedAtLaunchTurnsThePreferenceOffWithoutAWord) {
    isRefused = true;
    defaults.setObject(preference, true);
    awaited(saving->startIfWanted());
    EXPECT_FALSE(isPreferred());
    EXPECT_TRUE(toasts.empty());
}

TEST_F(ScreenshotSavingTest, TheSwitchStoresWhatCameOfIt) {
    EXPECT_TRUE(awaited(saving->setSaving(true)));
    EXPECT_TRUE(isPreferred());
    EXPECT_TRUE(awaited(saving->setSaving(false)));
    EXPECT_FALSE(isPreferred());
    EXPECT_FALSE(importer->isWatching());
    isRefused = true;
    EXPECT_FALSE(awaited(saving->setSaving(true)));
    EXPECT_FALSE(isPreferred());
    EXPECT_TRUE(toasts.empty());
}

TEST_F(ScreenshotSavingTest, TheMenuSaysWhatCameOfSwitchingOn) {
    awaited(saving->toggle());
    ASSERT_EQ(toasts.size(), 1u);
    EXPECT_EQ(toasts.back().symbol, QStringLiteral("camera.viewfinder"));
    EXPECT_EQ(toasts.back().text, QStringLiteral("New screenshots will be saved in Vellumry"));
    EXPECT_EQ(toasts.back().tone, ToastMessage::Tone::success);
    awaited(saving->toggle());
    EXPECT_EQ(toasts.size(), 1u);
    EXPECT_FALSE(isPreferred());
    isRefused = true;
    awaited(saving->toggle());
    ASSERT_EQ(toasts.size(), 2u);
    EXPECT_EQ(toasts.back().symbol, QStringLiteral("folder.badge.questionmark"));
    EXPECT_EQ(toasts.back().tone, ToastMessage::Tone::warning);
    EXPECT_FALSE(isPreferred());
}

TEST_F(ScreenshotSavingTest, OfTwoPressesTheLastIsTold) {
    auto first = saving->toggle();
    auto second = saving->toggle();
    awaited(std::move(first));
    awaited(std::move(second));
    ASSERT_EQ(toasts.size(), 1u) << "the first would be taken for a folder that cannot be opened";
    EXPECT_EQ(toasts.back().tone, ToastMessage::Tone::success);
    EXPECT_TRUE(isPreferred());
}

} // namespace
} // namespace vellumry
