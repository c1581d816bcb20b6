// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "capture/ClipboardWatcher.h"
#include "foundation/UserDefaults.h"
#include "history/clips/ClipStore.h"
#include "paste/StackWiring.h"
#include "support/Awaited.h"
#include "support/Drafts.h"
#include "support/FakeFileBookmarks.h"
#include "support/FakeImageCodec.h"
#include "support/FakeKeyboardLayout.h"
#include "support/FakePasteKeys.h"
#include "support/FakePasteTarget.h"
#include "support/FakePasteboard.h"

#include <coroutine>
#include <memory>
#include <utility>
#include <vector>

namespace vellumry {

inline const QString gone = QStringLiteral("/home/u/gone.txt");
inline const QString there = QStringLiteral("/home/u/there.txt");

/// A Paste Stack with everything around it in memory: pasteboard, history, keys, disk.
struct StackWorld {
    StackWorld() {
        defaults.registerDefaults({{QStringLiteral("plainTextByDefault"), false}});
        watcher.start();
        StackWiring::Hooks hooks;
        hooks.showToast = [this](const ToastMessage& message) { toasts.push_back(message); };
        hooks.closePanel = [this] { ++panelCloses; };
        hooks.checkFileAccess = [this](QStringList paths) { return checkAccess(std::move(paths)); };
        hooks.fileStatus = [](const FileRef& file) {
            return file.path == gone ? FileStatus::missing() : FileStatus::available(file.path);
        };
        hooks.intakeLimit = std::chrono::milliseconds(1);
        wiring = std::make_unique<StackWiring>(
            StackWiring::Parts{store, watcher, pasteboard, target, keys, layout, defaults}, std::move(hooks));
        wiring->onStarted = [this] { log.append(QStringLiteral("started")); };
        wiring->onFinished = [this] { log.append(QStringLiteral("finished")); };
        wiring->onStopped = [this] { log.append(QStringLiteral("stopped")); };
    }

    QCoro::Task<FileAccess::Result> checkAccess(QStringList paths) {
        accessChecks.push_back(std::move(paths));
        Wait wait{this};
        co_await wait;
        co_return FileAccess::Result{blockedFolder};
    }
    void wakeChecks() {
        for (const auto handle : std::exchange(waitingChecks, {}))
            handle.resume();
    }
    ClipRef add(ClipDraft draft) { return awaited(store.add(std::move(draft), ++now)); }
    ClipRef addText(const char* text) { return add(drafts::text(QString::fromUtf8(text))); }
    void copy(const char* text) {
        pasteboard.copyText(QString::fromUtf8(text));
        watcher.tick(currentDate());
    }
    [[nodiscard]] QString onBoard() const {
        return pasteboard.items().empty() ? QString() : plainText(pasteboard.items()).value_or(QString());
    }
    [[nodiscard]] PasteStack& stack() { return wiring->stack(); }
    /// True when the key found something new on the pasteboard.
    bool press() { return keys.press()->contents == HeldKey::Contents::fresh; }

    FakePasteboard pasteboard;
    FakePasteTarget target;
    FakePasteKeys keys;
    FakeKeyboardLayout layout;
    FakeFileBookmarks bookmarks;
    FakeImageCodec images;
    UserDefaults defaults;
    ClipStore store{RetentionPolicy{}};
    ClipboardWatcher watcher{pasteboard, store, defaults, bookmarks, images, [] { return SourceApp(); }};
    Date now = 1'700'000'000;
    std::optional<QString> blockedFolder;
    std::vector<QStringList> accessChecks;
    std::vector<ToastMessage> toasts;
    QStringList log;
    int panelCloses = 0;
    bool holdsChecks = false; ///< looks at files last until `wakeChecks`
    std::vector<std::coroutine_handle<>> waitingChecks;
    std::unique_ptr<StackWiring> wiring;

private:
    struct Wait {
        StackWorld* world;
        bool await_ready() const noexcept { return !world->holdsChecks; }
        void await_suspend(std::coroutine_handle<> handle) { world->waitingChecks.push_back(handle); }
        void await_resume() const noexcept {}
    };
};

} // namespace vellumry
