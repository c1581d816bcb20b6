// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/HistoryOpening.h"

#include "foundation/Logging.h"
#include "history/file/HistoryFile.h"

#include <QPointer>
#include <algorithm>
#include <cerrno>
#include <utility>

namespace vellumry {

namespace {

using namespace std::chrono_literals;

constexpr std::chrono::milliseconds firstDelay = 1s;
constexpr std::chrono::milliseconds longestDelay = 60s;
/// A keyring says several things about one unlocking, and the last of them counts.
constexpr std::chrono::milliseconds settling = 300ms;
/// Another process that looks at the file for a moment is nothing to tell the user.
constexpr int mostBusyTries = 3;

} // namespace

HistoryOpening::HistoryOpening(ClipStore& store, KeyStore& keyStore, Folder folder)
    : m_store(&store)
    , m_keyStore(&keyStore)
    , m_folder(std::move(folder))
    , m_delay(firstDelay) {
    for (QTimer* timer : {&m_retry, &m_change})
        timer->setSingleShot(true);
    m_change.setInterval(settling);
    connect(&m_retry, &QTimer::timeout, this, [this] { attempt(KeyStore::Asking::forbidden); });
    // A question that stands is left alone: gnome-keyring 42 dies when one is dismissed after an unlocking elsewhere.
    // `attempt` tries again once the question is answered.
    connect(&m_change, &QTimer::timeout, this, [this] { attempt(KeyStore::Asking::forbidden); });
}

HistoryOpening::~HistoryOpening() {
    m_isEnding = true;
    m_keyStore->interrupt();
}

void HistoryOpening::start() {
    m_store->setOpening(true);
    m_keyStore->watch([self = QPointer<HistoryOpening>(this)] {
        if (self && !self->m_isOpen)
            self->m_change.start();
    });
    attempt(KeyStore::Asking::forbidden);
}

void HistoryOpening::ask() {
    m_isToAsk = false;
    if (!m_isTrying)
        m_failure.reset();
    attempt(KeyStore::Asking::allowed);
}

void HistoryOpening::attempt(KeyStore::Asking asking) {
    if (m_isOpen)
        return;
    m_isWorthAnother = m_isTrying;
    if (std::exchange(m_isTrying, true))
        return;
    m_retry.stop();
    const FileCheck check = m_checksFirst ? FileCheck::first : FileCheck::beside;
    m_executor.post([this, self = QPointer<HistoryOpening>(this), asking, check] {
        // This waits for the thread before it goes; what is posted may come later.
        const auto opened = std::make_shared<Opened>(open(asking, check));
        postToMain([self, opened] {
            if (self)
                self->finish(std::move(*opened));
        });
    });
}

HistoryOpening::Opened HistoryOpening::open(KeyStore::Asking asking, FileCheck check) {
    if (m_isEnding)
        return std::unexpected(HistoryFailure::keyringAbsent);
    QString folder;
    try {
        folder = m_folder();
    } catch (const std::exception&) {
        return std::unexpected(HistoryFailure::folderNotWritable);
    }
    try {
        return ClipDatabase::openHistory(folder, *m_keyStore, asking, check);
    } catch (const std::exception&) {
        return std::unexpected(HistoryFailure::fileUnreadable);
    }
}

void HistoryOpening::finish(Opened opened) {
    if (opened)
        join(*std::move(opened));
    else
        fail(opened.error());
}

QCoro::Task<bool> HistoryOpening::isSound() {
    auto check = [folder = m_folder] { return historyfile::passesCheck(folder() + u'/' + historyfile::fileName); };
    auto checking = m_executor.run(std::move(check));
    co_return co_await checking;
}

QCoro::Task<void> HistoryOpening::join(OpenedHistory opened) {
    const QPointer<HistoryOpening> self(this);
    std::optional<HistoryFailure> failure;
    bool isJoined = false;
    ClipStore::FileVerdict verdict;
    if (!opened.isChecked)
        verdict = [this] { return isSound(); };
    try {
        auto joining = m_store->attach(std::move(opened.database), opened.recoveredFromDamage, std::move(verdict));
        isJoined = co_await joining;
    } catch (const SQLiteError& error) {
        failure = historyFailureOf(error, opened.path);
    } catch (const std::exception&) {
        failure = HistoryFailure::fileUnreadable;
    }
    if (!self)
        co_return;
    // Whatever it was, the next try looks through the file before its clips are shown.
    m_checksFirst = !isJoined;
    if (failure) {
        fail(*failure);
        co_return;
    }
    m_isTrying = false;
    if (!isJoined) {
        attempt(KeyStore::Asking::forbidden);
        co_return;
    }
    m_isOpen = true;
    if (std::exchange(m_failure, std::nullopt))
        qCWarning(logging::shell) << "the history is open again";
    qCInfo(logging::shell) << "the history is there: clips" << m_store->clips().size();
    onOpened();
}

void HistoryOpening::fail(HistoryFailure failure) {
    m_isTrying = false;
    const bool isForWantOfAPassword =
        failure == HistoryFailure::keyringLocked || failure == HistoryFailure::keyringRefused;
    if (isForWantOfAPassword && std::exchange(m_isToAsk, false) && mayAsk()) {
        attempt(KeyStore::Asking::allowed);
        return;
    }
    if (std::exchange(m_isWorthAnother, false))
        m_change.start();
    m_retry.start(m_delay);
    m_delay = std::min(m_delay * 2, longestDelay);
    m_busyTries = failure == HistoryFailure::fileBusy ? m_busyTries + 1 : 0;
    if (m_failure == failure || (m_busyTries > 0 && m_busyTries < mostBusyTries))
        return;
    m_failure = failure;
    qCWarning(logging::shell) << "the history is kept in memory:" << reasonOf(failure);
    m_store->setOpening(false);
    onFailed(failure);
}

} // namespace vellumry
