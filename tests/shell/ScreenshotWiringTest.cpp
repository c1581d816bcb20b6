// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/AppEnvironmentWorld.h"

#include <QImage>
#include <map>

namespace vellumry {
namespace {

/// Screenshots as the environment takes them in; they go into a folder of the test's own.
class ScreenshotWiring : public AppEnvironmentWorld {
protected:
    void SetUp() override {
        set("HOME", disk.path());
        set("XDG_CONFIG_HOME", disk.filePath(QStringLiteral("config")));
        set("XDG_SCREENSHOTS_DIR", disk.filePath(QStringLiteral("shots")));
        ASSERT_TRUE(QDir(disk.path()).mkdir(QStringLiteral("shots")));
        keyring.refuses = true; // in memory, an import ends within one turn of the event loop
        launch();
        images->summary = {QSize(4, 4), QByteArray("thumbnail"), true};
        defaults->setObject(QStringLiteral("saveNewScreenshots"), true);
        environment->start();
        runUntil([this] { return folders->activeCount == 1; });
        // Watching begins before all is known that is there already; beginning again tells when it is.
        EXPECT_TRUE(awaited(environment->screenshotSaving().setSaving(true)));
    }
    void TearDown() override {
        AppEnvironmentWorld::TearDown();
        for (const auto& [variable, value] : m_before)
            value.isNull() ? qunsetenv(variable) : qputenv(variable, value);
    }
    /// A tool saves a screenshot.
    void take() {
        ++m_taken;
        QImage image(4, 4, QImage::Format_RGB32);
        image.fill(static_cast<uint>(m_taken)); // another picture each time
        ASSERT_TRUE(image.save(disk.filePath(QStringLiteral("shots/") + nameOfLast())));
        folders->change();
    }
    /// The first that comes in is this one.
    void takeOneAndAwait() {
        take();
        runUntil([this] { return !store().clips().empty(); });
        EXPECT_EQ(store().clips().size(), 1U);
        EXPECT_TRUE(store().clips().front()->searchText.toString().contains(nameOfLast()));
    }
    [[nodiscard]] QString nameOfLast() const {
        return QStringLiteral("Screenshot from 2026-11-21 15-00-0%1.png").arg(m_taken);
    }

private:
    void set(const char* variable, const QString& value) {
        m_before[variable] = qgetenv(variable);
        qputenv(variable, value.toUtf8());
    }
    std::map<const char*, QByteArray> m_before;
    int m_taken = 0;
};

TEST_F(ScreenshotWiring, ComeInAndAreRead) {
    takeOneAndAwait();
    EXPECT_TRUE(environment->textReader().isReading(store().clips().front()->id));
}

TEST_F(ScreenshotWiring, StayOutDuringAPauseForGood) {
    environment->watcher().pausedUntil = time.clock()() + 60;
    const int before = clockReadings;
    take();
    runUntil([&] { return clockReadings > before; });
    time.pass(61);
    takeOneAndAwait();
}

TEST_F(ScreenshotWiring, StayOutWhenTheDiskIsFull) {
    hasRoom = false;
    take();
    runUntil([&] { return askedFolder == QFileInfo(historyFile()).path(); });
    hasRoom = true;
    takeOneAndAwait();
}

} // namespace
} // namespace vellumry
