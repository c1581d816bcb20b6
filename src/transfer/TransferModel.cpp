// SPDX-License-Identifier: GPL-3.0-or-later
#include "transfer/TransferModel.h"

#include "foundation/Localisation.h"
#include "transfer/HistoryExport.h"
#include "transfer/HistoryImport.h"

#include <QDate>
#include <QFileInfo>
#include <QPointer>
#include <utility>

namespace vellumry {

TransferModel::TransferModel(HistoryImport& import, HistoryExport& exporting, Hooks hooks)
    : m_import(&import)
    , m_export(&exporting)
    , m_hooks(std::move(hooks)) {}

TransferModel::~TransferModel() = default;

QString TransferModel::suggestedFolder() const {
    const QString plain =
        m_hooks.home + u'/' + localised("Vellumry %1").arg(QDate::currentDate().toString(Qt::ISODate));
    QString path = plain;
    for (int again = 2; QFileInfo::exists(path); ++again)
        path = QStringLiteral("%1 (%2)").arg(plain).arg(again);
    return path;
}

/// What was typed, below the home folder where it does not begin at the root.
QString TransferModel::pathOf(const QString& folder) const {
    const QString typed = folder.trimmed();
    if (typed == u'~' || typed.startsWith(u"~/"))
        return m_hooks.home + typed.sliced(1);
    return typed.startsWith(u'/') ? typed : m_hooks.home + u'/' + typed;
}

bool TransferModel::begin(const QString& message) {
    if (m_isBusy)
        return false;
    m_isBusy = true;
    m_last = {};
    m_message = message;
    Q_EMIT changed();
    return true;
}

void TransferModel::end(const QString& message) {
    m_isBusy = false;
    m_message = message;
    Q_EMIT changed();
}

void TransferModel::stop() {
    m_import->stop();
    m_export->stop();
}

void TransferModel::forgetMessage() {
    if (m_isBusy)
        return;
    m_message.clear();
    m_last = {};
    Q_EMIT changed();
}

QCoro::Task<void> TransferModel::runLook() {
    // A search that runs may have passed what has come since.
    m_looksAgain = m_isLooking;
    if (std::exchange(m_isLooking, true))
        co_return;
    Q_EMIT changed();
    const QPointer<TransferModel> self(this);
    std::vector<PeerHistory> found;
    do {
        m_looksAgain = false;
        auto finding = m_import->find();
        found = co_await finding;
        if (!self)
            co_return;
    } while (m_looksAgain);
    m_isLooking = false;
    const QStringList done = m_hooks.imported();
    m_histories.setHistories(std::move(found), {done.begin(), done.end()});
    Q_EMIT changed();
}

void TransferModel::importHistory(int line) {
    const auto& histories = m_histories.histories();
    if (line < 0 || static_cast<std::size_t>(line) >= histories.size())
        return;
    const PeerHistory& history = histories[static_cast<std::size_t>(line)];
    if (begin(localised("Importing…")))
        runImport(history.identifier, history.clips);
}

QCoro::Task<void> TransferModel::runImport(QString identifier, int expected) {
    const QPointer<TransferModel> self(this);
    m_import->onProgress = [self, expected](const ImportOutcome& soFar) {
        if (!self)
            return;
        const int looked = std::min(soFar.looked(), expected);
        self->m_message = localised("Importing %1 of %2…").arg(looked).arg(expected);
        Q_EMIT self->changed();
    };
    auto importing = m_import->importPeer(identifier);
    const ImportOutcome outcome = co_await importing;
    if (!self)
        co_return;
    if (!outcome.isMissing && !outcome.isStopped)
        m_hooks.noteImported(identifier);
    finishImport(outcome);
    const QStringList done = m_hooks.imported();
    m_histories.setHistories(m_histories.histories(), {done.begin(), done.end()});
}

void TransferModel::importFolder(const QString& folder) {
    if (!folder.trimmed().isEmpty() && begin(localised("Importing…")))
        runFolderImport(pathOf(folder));
}

QCoro::Task<void> TransferModel::runFolderImport(QString folder) {
    const QPointer<TransferModel> self(this);
    m_import->onProgress = [self](const ImportOutcome& soFar) {
        if (!self)
            return;
        self->m_message = localised("Importing… %1").arg(soFar.looked());
        Q_EMIT self->changed();
    };
    auto importing = m_import->importFolder(folder);
    const ImportOutcome outcome = co_await importing;
    if (!self)
        co_return;
    if (outcome.isMissing)
        end(localised("%1 holds no finished export of Vellumry.").arg(folder));
    else
        finishImport(outcome);
}

void TransferModel::finishImport(const ImportOutcome& outcome) {
    m_last = outcome;
    end(outcome.text());
    if (outcome.added > 0)
        m_hooks.onImported();
}

QCoro::Task<void> TransferModel::runUndo() {
    if (!canUndo())
        co_return;
    const ImportOutcome last = m_last;
    if (!begin(localised("Taking it back…")))
        co_return;
    const QPointer<TransferModel> self(this);
    auto undoing = m_import->undo(last);
    co_await undoing;
    if (self)
        end(localised("The import was taken back."));
}

void TransferModel::exportTo(const QString& folder) {
    if (!folder.trimmed().isEmpty() && begin(localised("Exporting…")))
        runExport(pathOf(folder));
}

QCoro::Task<void> TransferModel::runExport(QString folder) {
    const QPointer<TransferModel> self(this);
    m_export->onProgress = [self](const ExportOutcome& soFar) {
        if (!self)
            return;
        self->m_message = localised("Exporting… %1").arg(soFar.clips);
        Q_EMIT self->changed();
    };
    auto exporting = m_export->run(folder);
    const ExportOutcome outcome = co_await exporting;
    if (self)
        end(outcome.text(folder));
}

} // namespace vellumry
