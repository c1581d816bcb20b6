// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "history/file/ClipDatabase.h"
#include "support/DamagedPage.h"
#include "support/TemporaryHistory.h"

#include <QFile>
#include <gtest/gtest.h>

namespace vellumry {

inline ClipRef someClip(Date used, const QString& title = QStringLiteral("title")) {
    auto clip = std::make_shared<Clip>();
    clip->id = QUuid::createUuid();
    clip->title = title;
    clip->lastUsedAt = used;
    clip->fingerprint = Fingerprint::ofText(clip->id.toByteArray());
    return clip;
}

/// A history file, worked on and looked into.
class DatabaseTest : public testing::Test {
protected:
    void insert(ClipDatabase& database, const ClipRef& clip, const ClipPayload& payload = {}) {
        awaited(database.insert(clip, payload));
    }
    [[nodiscard]] std::vector<ClipRef> load(ClipDatabase& database) { return awaited(database.loadAll()); }
    void execute(const char* sql) const { m_history.connect().execute(sql); }
    [[nodiscard]] QByteArray query(const char* sql) const {
        auto database = m_history.connect();
        auto row = database.prepare(sql);
        return row.step() ? row.text(0).toByteArray() : QByteArray();
    }
    [[nodiscard]] QByteArray allBytes() const {
        QByteArray bytes;
        for (const char* suffix : historyfile::companionSuffixes) {
            QFile file(m_history.path() + QLatin1StringView(suffix));
            if (file.open(QIODevice::ReadOnly))
                bytes += file.readAll();
        }
        return bytes;
    }
    /// Spoils the page of the row that was used then, not that of any other row.
    void damageRowOf(Date used) const { damagePageOfRow(m_history.path(), used); }
    TemporaryHistory m_history;
};

} // namespace vellumry
