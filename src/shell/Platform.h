// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "foundation/Date.h"
#include "foundation/UserDefaults.h"
#include "platform/desktop/Capability.h"
#include "platform/desktop/DateTimer.h"
#include "platform/desktop/DesktopExtension.h"
#include "platform/desktop/DesktopLook.h"
#include "platform/desktop/InstalledApplications.h"
#include "platform/desktop/KeyStore.h"
#include "platform/desktop/LoginItem.h"
#include "platform/desktop/Opener.h"
#include "platform/desktop/SingleInstance.h"
#include "platform/desktop/SoftwareUpdater.h"
#include "platform/desktop/SoundPlayer.h"
#include "platform/desktop/StatusItem.h"
#include "platform/display/DragSource.h"
#include "platform/display/HotKeyRegistrar.h"
#include "platform/display/KeyboardLayout.h"
#include "platform/display/PanelSurface.h"
#include "platform/display/PasteKeys.h"
#include "platform/display/PasteTarget.h"
#include "platform/display/Pasteboard.h"
#include "platform/display/SourceApp.h"
#include "platform/files/FileBookmarks.h"
#include "platform/files/FolderWatching.h"
#include "platform/files/ImageCodec.h"
#include "platform/files/PeerHistories.h"
#include "platform/files/TextReader.h"
#include "shell/HistoryFolder.h"
#include "shell/TimerAlarm.h"
#include "shell/UpdateController.h"

#include <QString>
#include <functional>
#include <memory>
#include <vector>

class QAccessibleInterface;

namespace vellumry {

/// Everything the program needs of the system, one implementation a seam, chosen by the entry point. All are present;
/// where the system lacks a capability, its stand-in says so by its answers. Outlives the environment. Main thread.
struct Platform {
    std::unique_ptr<SingleInstance> singleInstance;
    std::unique_ptr<UserDefaults> defaults;
    std::unique_ptr<KeyStore> keyStore;
    std::unique_ptr<Pasteboard> pasteboard;
    std::unique_ptr<FrontmostApplication> frontmost;
    std::unique_ptr<HotKeyRegistrar> hotKeys;
    std::unique_ptr<KeyboardLayout> keyboard;
    std::unique_ptr<PasteTarget> pasteTarget;
    std::unique_ptr<PasteKeys> pasteKeys;
    std::unique_ptr<SoundPlayer> sounds;
    std::unique_ptr<Opener> opener;
    std::unique_ptr<StatusItem> statusItem;
    std::unique_ptr<PanelSurface> panelSurface;
    std::unique_ptr<DragSource> drags; ///< null where nothing can be dragged out of our windows
    std::unique_ptr<ImageCodec> images;
    std::unique_ptr<TextReader> textReader;
    std::unique_ptr<FileBookmarks> bookmarks;
    std::unique_ptr<FolderWatching> folders;
    std::unique_ptr<InstalledApplications> applications;
    std::unique_ptr<DesktopLookSource> look; ///< null where nothing says how programs are to look
    /// Null where no other clipboard program can have left anything.
    std::unique_ptr<PeerHistories> peers;
    /// Null where nothing starts programs at login: the choice is refused then.
    std::unique_ptr<LoginItem> loginItem;
    /// Null where the program cannot replace itself.
    std::unique_ptr<SoftwareUpdater> updater;
    UpdateConfiguration updateConfiguration;
    /// Since the last key or movement of the pointer; 0 where the system does not say.
    std::function<double()> idleSeconds = [] { return 0.0; };
    /// Tells assistive technology which row of a list the keys work on while the focus lies elsewhere.
    std::function<void(QAccessibleInterface& row)> tellActiveRow = [](QAccessibleInterface&) {};
    /// What punctual expiry waits with; null where the system has nothing better than an interval.
    std::unique_ptr<DateTimer> expiryTimer;
    /// What the session offers and lacks, as far as the start has found out.
    std::vector<Capability> capabilities;
    /// What of it changes while the program runs, asked anew for each report: permissions of the user, for one.
    std::function<std::vector<Capability>()> standing = [] { return std::vector<Capability>(); };
    /// Finds out the rest: asks the disk and other processes. May block; any thread.
    std::function<std::vector<Capability>()> findCapabilities = [] { return std::vector<Capability>(); };
    /// The session is one of Wayland, and we see what goes on among its X11 programs.
    bool isWaylandSession = false;
    /// What the time between two rounds of maintenance is waited with.
    std::unique_ptr<Alarm> maintenance = std::make_unique<TimerAlarm>(Qt::VeryCoarseTimer);
    /// What could be switched on for more to work in this session; null without.
    std::unique_ptr<DesktopExtension> extension;
    /// What time it is.
    Clock clock = currentDate;
    /// Whether there is room for pictures where this folder lies.
    std::function<bool(const QString& folder)> hasRoomForImages = &vellumry::hasRoomForImages;
    /// Gives memory back that a while of rest does not need.
    std::function<void()> returnMemory = [] {};
    /// The program runs in a confined package, where opening a file may bring up a question of the system.
    bool isConfined = false;
    /// The folder that holds the application's own folder: $XDG_DATA_HOME.
    QString dataHome;
    /// The folder of the settings file, which is watched; empty: a change counts within 15 seconds.
    QString settingsFolder;
    /// The user's home folder.
    QString home;
};

} // namespace vellumry
