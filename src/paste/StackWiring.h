// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "capture/FileAccess.h"
#include "capture/FileStatus.h"
#include "history/clips/Clip.h"
#include "paste/PasteKeyListener.h"
#include "paste/PasteStack.h"
#include "paste/ToastMessage.h"

#include <QCoroTask>
#include <QObject>
#include <QTimer>
#include <chrono>
#include <functional>
#include <memory>
#include <vector>

namespace vellumry {

class ClipStore;
class ClipboardWatcher;
class PasteTarget;
class UserDefaults;

/// The Paste Stack at work: starts and stops it with its key listener, fills it from clips and from live copies, and
/// gives each paste key of the user the next item. Main thread.
class StackWiring : public QObject {
    Q_OBJECT
public:
    /// What it works with; all must outlive it.
    struct Parts {
        ClipStore& store;
        ClipboardWatcher& watcher;
        Pasteboard& pasteboard;
        PasteTarget& target;
        PasteKeys& keys;
        const KeyboardLayout& layout;
        const UserDefaults& defaults;
    };
    struct Hooks {
        std::function<void(const ToastMessage&)> showToast;
        std::function<void()> closePanel;
        std::function<QCoro::Task<FileAccess::Result>(QStringList paths)> checkFileAccess;
        /// May block; any thread.
        std::function<FileStatus(const FileRef&)> fileStatus;
        /// How long a paste key waits for a copy that is on its way to the stack.
        std::chrono::milliseconds intakeLimit{30};
    };

    /// Takes the watcher's `onRead`, `needsWholeCopies` and `onSettled`.
    StackWiring(Parts parts, Hooks hooks, QObject* parent = nullptr);
    ~StackWiring() override;

    [[nodiscard]] PasteStack& stack() { return m_stack; }
    [[nodiscard]] PasteKeyListener& listener() { return m_listener; }
    /// Stops it when it runs, else starts it with `seed`, first pasted first. The user is told when it cannot start.
    void toggle(const std::vector<ClipRef>& seed);
    /// Adds to it when it runs, else starts it with `clips`.
    void add(const std::vector<ClipRef>& clips);
    /// Nothing when it does not run.
    void stop();
    /// What would be pasted for the clips, in their order. Clips without a payload are left out, and those whose files
    /// may not be read, of which the user is told.
    [[nodiscard]] QCoro::Task<std::vector<PasteStack::Item>> stackItems(std::vector<ClipRef> clips);

    std::function<void()> onStarted = [] {};
    /// It ended by itself.
    std::function<void()> onFinished = [] {};
    std::function<void()> onStopped = [] {};

private:
    QCoro::Task<void> start(std::vector<ClipRef> seed);
    QCoro::Task<void> enqueue(std::vector<ClipRef> clips);
    QCoro::Task<void> probe(QStringList paths);
    void take(const ClipDraft& draft);
    void handlePaste(std::shared_ptr<HeldKey> key);
    QCoro::Task<void> lookForCopies();
    void pasteNow();
    void expectNext();
    void finish();
    void tellOfSkipped();
    [[nodiscard]] PasteStack::ResolvingFiles resolvingFiles();

    Parts m_parts;
    Hooks m_hooks;
    PasteStack m_stack;
    PasteKeyListener m_listener;
    /// The paste key that waits for copies to arrive.
    std::shared_ptr<HeldKey> m_waiting;
    /// What a look at the disk may take of the time of the key that is being answered.
    std::chrono::milliseconds m_fileLimit{0};
    QTimer m_intake;
    /// Told apart by number: a start whose clips are still being opened may be overtaken.
    quint64 m_startNumber = 0;
    bool m_isStarting = false;
    std::vector<ClipRef> m_seed; ///< of the start under way
};

} // namespace vellumry
