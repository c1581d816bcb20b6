// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "transfer/ExportOutcome.h"
#include "transfer/HistoryListModel.h"
#include "transfer/ImportOutcome.h"

#include <QCoroTask>
#include <QObject>
#include <QStringList>
#include <functional>
#include <qqmlregistration.h>

namespace vellumry {

class HistoryExport;
class HistoryImport;

/// What the windows show of imports and exports. One of either runs at a time. Main thread.
class TransferModel : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("The program has it.")
    Q_PROPERTY(vellumry::HistoryListModel* histories READ histories CONSTANT)
    Q_PROPERTY(int historyCount READ historyCount NOTIFY changed)
    Q_PROPERTY(bool isLooking READ isLooking NOTIFY changed)
    Q_PROPERTY(bool isBusy READ isBusy NOTIFY changed)
    Q_PROPERTY(bool canUndo READ canUndo NOTIFY changed)
    Q_PROPERTY(QString message READ message NOTIFY changed)
    Q_PROPERTY(QString suggestedFolder READ suggestedFolder NOTIFY changed)

public:
    struct Hooks {
        /// Identifiers of the histories that were imported, as the settings have them.
        std::function<QStringList()> imported = [] { return QStringList(); };
        std::function<void(const QString& identifier)> noteImported = [](const QString&) {};
        /// Clips have come that may have text to be read.
        std::function<void()> onImported = [] {};
        QString home{};
    };

    /// Both must outlive this.
    TransferModel(HistoryImport& import, HistoryExport& exporting, Hooks hooks);
    ~TransferModel() override;

    [[nodiscard]] HistoryListModel* histories() { return &m_histories; }
    [[nodiscard]] int historyCount() const { return m_histories.rowCount(); }
    [[nodiscard]] bool isLooking() const { return m_isLooking; }
    [[nodiscard]] bool isBusy() const { return m_isBusy; }
    [[nodiscard]] bool canUndo() const { return !m_isBusy && !m_last.clips.isEmpty(); }
    /// How far it is, or what became of it; empty before the first.
    [[nodiscard]] const QString& message() const { return m_message; }
    /// A folder in the user's home that is not there yet.
    [[nodiscard]] QString suggestedFolder() const;

    /// Finds what other programs have left; what is shown stays until then. Asked again meanwhile, it searches again.
    Q_INVOKABLE void look() { runLook(); }
    Q_INVOKABLE void importHistory(int line);
    Q_INVOKABLE void importFolder(const QString& folder);
    Q_INVOKABLE void exportTo(const QString& folder);
    Q_INVOKABLE void undoImport() { runUndo(); }
    Q_INVOKABLE void stop();
    /// Nothing is told of what was done before, unless it still goes on.
    Q_INVOKABLE void forgetMessage();

Q_SIGNALS:
    void changed();

private:
    QCoro::Task<void> runLook();
    QCoro::Task<void> runImport(QString identifier, int expected);
    QCoro::Task<void> runFolderImport(QString folder);
    QCoro::Task<void> runExport(QString folder);
    QCoro::Task<void> runUndo();
    [[nodiscard]] bool begin(const QString& message);
    void end(const QString& message);
    void finishImport(const ImportOutcome& outcome);
    [[nodiscard]] QString pathOf(const QString& folder) const;

    HistoryImport* m_import;
    HistoryExport* m_export;
    Hooks m_hooks;
    HistoryListModel m_histories;
    bool m_isLooking = false;
    bool m_looksAgain = false;
    bool m_isBusy = false;
    QString m_message;
    ImportOutcome m_last;
};

} // namespace vellumry
