// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "history/file/MemoryKeyStore.h"
#include "shell/AppEnvironment.h"
#include "support/Awaited.h"
#include "support/Drafts.h"
#include "support/FakeAlarm.h"
#include "support/FakeFileBookmarks.h"
#include "support/FakeFolderWatching.h"
#include "support/FakeHotKeyRegistrar.h"
#include "support/FakeImageCodec.h"
#include "support/FakeKeyboardLayout.h"
#include "support/FakeOpener.h"
#include "support/FakePanelSurface.h"
#include "support/FakePasteKeys.h"
#include "support/FakePasteTarget.h"
#include "support/FakePasteboard.h"
#include "support/FakeSoftwareUpdater.h"
#include "support/FakeSoundPlayer.h"
#include "support/FakeStatusItem.h"
#include "support/FakeTextReader.h"
#include "support/FakeTime.h"
#include "support/ShownTexts.h"

#include <QDir>
#include <QGuiApplication>
#include <QQuickView>
#include <QTemporaryDir>
#include <atomic>
#include <functional>
#include <gtest/gtest.h>
#include <memory>

namespace vellumry {

/// A session in which the program runs once, or in which another copy was first.
class FakeSingleInstance : public SingleInstance {
public:
    bool hasOther = false;
    [[nodiscard]] bool isAnotherCopyRunning() override { return hasOther; }
};

class NobodyInFront : public FrontmostApplication {
public:
    [[nodiscard]] SourceApp current() const override { return {}; }
};

/// What a keyring is: it outlives the program, and it may refuse.
struct Keyring {
    MemoryKeyStore keys;
    std::atomic<bool> refuses = false;
    std::function<void()> onChanged = [] {}; ///< hears of a keyring that was unlocked
};

class KeyringKeyStore : public KeyStore {
public:
    explicit KeyringKeyStore(Keyring& keyring)
        : m_keyring(&keyring) {}
    [[nodiscard]] std::expected<std::optional<SymmetricKey>, KeyFailure> load(Asking asking) override {
        if (m_keyring->refuses)
            return std::unexpected(KeyFailure::locked);
        return m_keyring->keys.load(asking);
    }
    [[nodiscard]] std::expected<void, KeyFailure> save(const SymmetricKey& key, Asking asking) override {
        return m_keyring->keys.save(key, asking);
    }
    void watch(std::function<void()> onChanged) override { m_keyring->onChanged = std::move(onChanged); }

private:
    Keyring* m_keyring;
};

/// A computer for the whole program, without a display, a bus or other programs. Its disk and its keyring stay from one
/// run to the next; the parts below belong to the run that `makePlatform` was called for last.
class AppWorld : public ::testing::Test {
protected:
    [[nodiscard]] Platform makePlatform() {
        Platform platform;
        const auto put = [](auto& seam, auto*& part, auto made) {
            part = made.get();
            seam = std::move(made);
        };
        put(platform.singleInstance, instance, std::make_unique<FakeSingleInstance>());
        put(platform.defaults, defaults, std::make_unique<UserDefaults>(disk.filePath(QStringLiteral("settings"))));
        put(platform.pasteboard, pasteboard, std::make_unique<FakePasteboard>());
        put(platform.hotKeys, hotKeys, std::make_unique<FakeHotKeyRegistrar>());
        put(platform.pasteTarget, target, std::make_unique<FakePasteTarget>());
        put(platform.pasteKeys, pasteKeys, std::make_unique<FakePasteKeys>());
        put(platform.sounds, sounds, std::make_unique<FakeSoundPlayer>());
        put(platform.opener, opener, std::make_unique<FakeOpener>());
        put(platform.statusItem, statusItem, std::make_unique<FakeStatusItem>());
        put(platform.panelSurface, surface, std::make_unique<FakePanelSurface>());
        put(platform.textReader, textReader, std::make_unique<FakeTextReader>());
        put(platform.images, images, std::make_unique<FakeImageCodec>());
        put(platform.folders, folders, std::make_unique<FakeFolderWatching>());
        put(platform.maintenance, maintenance, std::make_unique<FakeAlarm>());
        if (!isFirstStart)
            defaults->setObject(QStringLiteral("onboardingDone"), true);
        platform.settingsFolder = settingsFolder;
        platform.isWaylandSession = isWaylandSession;
        for (const auto& combination : takenKeys)
            hotKeys->taken.insert(combination);
        platform.keyStore = std::make_unique<KeyringKeyStore>(keyring);
        platform.frontmost = std::make_unique<NobodyInFront>();
        platform.keyboard = std::make_unique<FakeKeyboardLayout>();
        platform.bookmarks = std::make_unique<FakeFileBookmarks>();
        platform.expiryTimer = std::make_unique<FakeTime::Timer>(time);
        platform.clock = [this] {
            ++clockReadings;
            return time.clock()();
        };
        platform.hasRoomForImages = [this](const QString& folder) {
            askedFolder = folder;
            return hasRoom;
        };
        if (hasUpdates) {
            put(platform.updater, updater, std::make_unique<FakeSoftwareUpdater>());
            platform.updateConfiguration.feedURL = QUrl(QStringLiteral("https://updates.example.org/feed"));
            platform.updateConfiguration.publicKey = QString::fromLatin1(QByteArray(32, 'k').toBase64());
        }
        platform.idleSeconds = [this] { return idleSeconds; };
        platform.returnMemory = [this] { ++memoryReturns; };
        platform.dataHome = disk.filePath(QStringLiteral("data"));
        platform.home = disk.path();
        return platform;
    }
    [[nodiscard]] QString historyFile() const { return disk.filePath(QStringLiteral("data/Vellumry/History.sqlite")); }

    /// The texts of all windows that can be seen.
    [[nodiscard]] static QStringList seenTexts() {
        QStringList texts;
        for (QWindow* window : QGuiApplication::topLevelWindows()) {
            const auto* view = qobject_cast<QQuickView*>(window);
            if (view && view->isVisible())
                texts += shownTexts(view->rootObject());
        }
        return texts;
    }
    [[nodiscard]] static bool sees(const char* text) { return seenTexts().contains(QString::fromUtf8(text)); }

    QTemporaryDir disk;
    Keyring keyring;
    FakeTime time{currentDate()};
    bool isFirstStart = false;                               ///< of the program on this computer
    bool isWaylandSession = false;                           ///< with Xwayland
    QString settingsFolder;                                  ///< that is watched
    std::vector<FakeHotKeyRegistrar::Combination> takenKeys; ///< by other programs
    bool hasUpdates = false;                                 ///< the program may replace itself
    double idleSeconds = 0;                                  ///< since the user did anything
    bool hasRoom = true;
    QString askedFolder; ///< whose volume was asked for room last
    int memoryReturns = 0;
    int clockReadings = 0; ///< how often the program asked for the time

    FakeSingleInstance* instance = nullptr;
    UserDefaults* defaults = nullptr;
    FakePasteboard* pasteboard = nullptr;
    FakeHotKeyRegistrar* hotKeys = nullptr;
    FakePasteTarget* target = nullptr;
    FakePasteKeys* pasteKeys = nullptr;
    FakeSoundPlayer* sounds = nullptr;
    FakeOpener* opener = nullptr;
    FakeStatusItem* statusItem = nullptr;
    FakeSoftwareUpdater* updater = nullptr;
    FakePanelSurface* surface = nullptr;
    FakeTextReader* textReader = nullptr;
    FakeImageCodec* images = nullptr;
    FakeFolderWatching* folders = nullptr;
    FakeAlarm* maintenance = nullptr;
};

} // namespace vellumry
