// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "foundation/UserDefaults.h"
#include "history/clips/ClipStore.h"
#include "paste/PasteEngine.h"
#include "support/Awaited.h"
#include "support/Drafts.h"
#include "support/FakePasteTarget.h"
#include "support/FakePasteboard.h"

#include <QMap>
#include <coroutine>
#include <memory>
#include <utility>
#include <vector>

namespace vellumry {

/// A paste engine with everything around it in memory: a history, a pasteboard, files, a window in front, a clock that
/// stands still. All answers come at once, so a whole paste runs inside the call that asks for it, unless it was told
/// to hold.
struct PasteWorld {
    PasteWorld() {
        defaults.registerDefaults(
            {{QStringLiteral("pasteDirectly"), true}, {QStringLiteral("plainTextByDefault"), false}});
        target.onPress = [this] { log.append(QStringLiteral("press")); };
        engine = std::make_unique<PasteEngine>(store, defaults, hooks());
        engine->onPasted = [this] { ++pastedCount; };
    }

    /// Stores the draft one second after the last.
    ClipRef add(ClipDraft draft) { return awaited(store.add(std::move(draft), ++now)); }
    ClipRef addText(const char* text) { return add(drafts::text(QString::fromUtf8(text))); }

    /// The text on the pasteboard.
    [[nodiscard]] QString pastedText() const {
        const auto& items = pasteboard.items();
        return items.empty() ? QString() : plainText(items).value_or(QString());
    }
    void wakeSleepers() {
        for (const auto handle : std::exchange(sleepers, {}))
            handle.resume();
    }

    FakePasteboard pasteboard;
    FakePasteTarget target;
    UserDefaults defaults;
    ClipStore store{RetentionPolicy{}};
    Date now = 1'700'000'000;
    QMap<QString, FileStatus> fileStatuses; ///< by path; a file that is not named is where it was
    std::optional<QString> blockedFolder;
    bool diskHangs = false;
    bool holdsSleep = false; ///< the settle delay lasts until `wakeSleepers`
    bool holdsFiles = false; ///< looks at files last until `wakeSleepers`

    QStringList log; ///< "sleep N", "focus", "press", in their order
    std::vector<QStringList> accessChecks;
    int pastedCount = 0;
    std::vector<std::coroutine_handle<>> sleepers;
    std::unique_ptr<PasteEngine> engine;

private:
    struct Wait {
        PasteWorld* world;
        bool holds;
        bool await_ready() const noexcept { return !holds; }
        void await_suspend(std::coroutine_handle<> handle) { world->sleepers.push_back(handle); }
        void await_resume() const noexcept {}
    };

    QCoro::Task<void> sleep(std::chrono::milliseconds duration) {
        log.append(QStringLiteral("sleep %1").arg(duration.count()));
        Wait wait{this, holdsSleep};
        co_await wait;
    }
    QCoro::Task<bool> regainFocus() {
        log.append(QStringLiteral("focus"));
        co_return co_await target.regainFocus();
    }
    QCoro::Task<FileAccess::Result> checkAccess(QStringList paths) {
        accessChecks.push_back(std::move(paths));
        co_return FileAccess::Result{blockedFolder};
    }
    QCoro::Task<std::optional<std::vector<FileStatus>>> runFileJob(SystemHooks::FileJob job) {
        Wait wait{this, holdsFiles};
        co_await wait;
        if (diskHangs)
            co_return std::nullopt;
        co_return job();
    }

    SystemHooks hooks() {
        SystemHooks hooks = SystemHooks::of(pasteboard, target);
        hooks.regainFocus = [this] { return regainFocus(); };
        hooks.sleep = [this](std::chrono::milliseconds duration) { return sleep(duration); };
        hooks.checkFileAccess = [this](QStringList paths) { return checkAccess(std::move(paths)); };
        hooks.fileStatus = [this](const FileRef& file) {
            return fileStatuses.value(file.path, FileStatus::available(file.path));
        };
        hooks.runFileJob = [this](SystemHooks::FileJob job) { return runFileJob(std::move(job)); };
        hooks.now = [this] { return now; };
        return hooks;
    }
};

} // namespace vellumry
