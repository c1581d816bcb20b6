// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "capture/screenshots/ScreenshotImporter.h"
#include "support/Awaited.h"
#include "support/FakeFolderWatching.h"
#include "support/FakeImageCodec.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <atomic>
#include <gtest/gtest.h>
#include <memory>

namespace vellumry {

/// An importer over real folders, with a history in memory. What happens in the folders is told by hand, and the
/// second between two attempts passes when the test says so.
class ScreenshotWorld : public ::testing::Test {
protected:
    static constexpr Date now = 1773065130.0;

    ScreenshotWorld() {
        images.summary.pixelSize = QSize(640, 480);
        images.summary.thumbnail = "small";
        makeImporter({shots()});
    }

    void makeImporter(QStringList folders) {
        ScreenshotImporter::Hooks hooks;
        hooks.folders = [folders] { return folders; };
        hooks.list = [count = listings](const QString& folder) {
            ++*count;
            return ScreenshotFile::namesIn(folder);
        };
        hooks.after = [this](std::chrono::milliseconds delay, std::function<void()> function) {
            delays.push_back(delay);
            later.push_back(std::move(function));
        };
        hooks.now = [] { return now; };
        importer = std::make_unique<ScreenshotImporter>(store, images, watching, std::move(hooks));
        importer->onImported = [this](const ClipRef& clip) {
            imported.append(clip->searchText.toString().section(u'\n', 1, 1));
        };
    }
    [[nodiscard]] bool start() { return awaited(importer->start()); }

    [[nodiscard]] QString shots() const { return root.filePath(QStringLiteral("shots")); }
    [[nodiscard]] QString path(const QString& name) const { return shots() + u'/' + name; }
    void makeFolder() { ASSERT_TRUE(QDir().mkpath(shots())); }
    void write(const QString& name, const QByteArray& bytes) {
        QFile file(path(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly | QIODevice::Append));
        ASSERT_EQ(file.write(bytes), bytes.size());
    }
    /// Tells the importer that something happened, and waits until it has looked at everything.
    void change() {
        watching.change();
        finishScan();
    }
    /// Lets the second pass that incomplete files are given.
    void passSecond() {
        for (const auto& function : std::exchange(later, {}))
            function();
        finishScan();
    }
    void finishScan() {
        EXPECT_TRUE(eventually([this] { return !importer->isScanning(); }));
    }

    static QByteArray png(const QByteArray& content = "pixels") { return pngBeginning(content) + pngEnd(); }
    static QByteArray pngBeginning(const QByteArray& content = "pixels") {
        return QByteArray("\x89PNG\r\n\x1a\n", 8) + content;
    }
    static QByteArray pngEnd() { return QByteArray("\0\0\0\0IEND\xAE\x42\x60\x82", 12); }

    QTemporaryDir root;
    ClipStore store{RetentionPolicy()};
    FakeImageCodec images;
    FakeFolderWatching watching;
    /// How often a folder was listed. Held by all that may still list one, on threads that outlive a test.
    std::shared_ptr<std::atomic<int>> listings = std::make_shared<std::atomic<int>>(0);
    std::vector<std::function<void()>> later;
    std::vector<std::chrono::milliseconds> delays;
    QStringList imported; ///< file names, as the clips' search text has them
    std::unique_ptr<ScreenshotImporter> importer;
};

} // namespace vellumry
