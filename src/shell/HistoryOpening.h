// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "foundation/SerialExecutor.h"
#include "history/clips/ClipStore.h"
#include "history/file/ClipDatabase.h"

#include <QObject>
#include <QTimer>
#include <atomic>
#include <chrono>
#include <functional>
#include <optional>

namespace vellumry {

/// Opens the history's file and joins it to a store that captures already. What keeps it from that (a locked keyring, a
/// full disk) may end at any time: it is tried again when the keyring tells of a change, and now and then.
///
/// Main thread; the keyring and the check of the file, which may take their time, are asked on a thread of its own. The
/// check of a file that seems sound runs while its clips are read: until it has ended, nothing is written.
class HistoryOpening : public QObject {
    Q_OBJECT

public:
    /// The folder that holds the file; throws when it cannot be had. Any thread.
    using Folder = std::function<QString()>;

    /// `store` and `keyStore` must outlive this.
    HistoryOpening(ClipStore& store, KeyStore& keyStore, Folder folder);
    /// Ends a question that the keyring may be asking.
    ~HistoryOpening() override;

    /// The first try. Where it takes a password, and `mayAsk` agrees, the user is asked for it, once.
    void start();
    /// Tries again and may ask the user for a password; what becomes of it is told anew.
    void ask();
    /// Why it did not go well so far; nothing before the first outcome and once the history is there.
    [[nodiscard]] std::optional<HistoryFailure> failure() const { return m_failure; }
    /// The first try has ended, one way or the other.
    [[nodiscard]] bool hasSettled() const { return m_isOpen || m_failure; }

    /// The keyring is about to ask the user; false puts that off until `ask`.
    std::function<bool()> mayAsk = [] { return true; };
    std::function<void()> onOpened = [] {};
    /// Called when there is a reason, and when it has become another.
    std::function<void(HistoryFailure failure)> onFailed = [](HistoryFailure) {};

private:
    using Opened = std::expected<OpenedHistory, HistoryFailure>;

    [[nodiscard]] Opened open(KeyStore::Asking asking, FileCheck check);
    QCoro::Task<bool> isSound();
    void attempt(KeyStore::Asking asking);
    void finish(Opened opened);
    QCoro::Task<void> join(OpenedHistory opened);
    void fail(HistoryFailure failure);

    ClipStore* m_store;
    KeyStore* m_keyStore;
    Folder m_folder;
    std::optional<HistoryFailure> m_failure;
    bool m_isOpen = false;
    bool m_isTrying = false;
    bool m_isWorthAnother = false;
    bool m_checksFirst = false; ///< the file was not what it seemed
    bool m_isToAsk = true;      ///< the user was not asked for a password yet
    int m_busyTries = 0;
    std::chrono::milliseconds m_delay;
    QTimer m_retry;
    QTimer m_change;
    std::atomic<bool> m_isEnding = false;
    SerialExecutor m_executor{"Opening"}; // last, so that its thread has ended before what it works on goes
};

} // namespace vellumry
