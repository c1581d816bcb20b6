// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "linux/peers/ForeignFile.h"
#include "platform/files/PeerHistories.h"

#include <QTemporaryDir>
#include <deque>
#include <expected>
#include <memory>

namespace vellumry {

/// The history of Klipper since Plasma 6.3: `history3.sqlite`, whose table `main` has a row for each entry and `aux`
/// one for each form of it, with the bytes in `data/ENTRY/FORM` beside it. Learnt from its files and its published
/// source.
///
/// A connection, even one that only reads, would write beside a database with a write-ahead log: a private copy is
/// read.
class KlipperDatabaseHistory : public PeerReading {
public:
    /// `folder` holds the database. `scratch` is where the copy lies meanwhile.
    [[nodiscard]] static std::expected<std::unique_ptr<KlipperDatabaseHistory>, PeerHistory::State>
    open(const QString& folder, const QString& scratch);

    [[nodiscard]] std::optional<PeerClip> next() override;
    [[nodiscard]] bool isDamaged() const override { return m_isDamaged; }
    [[nodiscard]] Date newest() const override { return m_modified; }

private:
    struct Entry {
        QString identifier;
        QByteArray text;
        std::optional<Date> usedAt;
        bool isPinned = false;
        std::vector<std::pair<QString, QString>> forms{}; ///< type and name of its file
    };

    explicit KlipperDatabaseHistory(QString folder)
        : m_folder(std::move(folder)) {}
    [[nodiscard]] bool readEntries(const QString& database);

    QString m_folder;
    std::deque<Entry> m_entries;
    Date m_modified = 0;
    bool m_isDamaged = false;
};

} // namespace vellumry
