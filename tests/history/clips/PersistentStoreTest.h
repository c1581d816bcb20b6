// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "history/file/DatabaseTest.h"
#include "support/Drafts.h"

namespace vellumry {

/// A store over a history file.
class PersistentStoreTest : public DatabaseTest {
protected:
    void SetUp() override { m_store = m_history.openStore(); }
    void reopen() {
        m_store.reset();
        m_store = m_history.openStore();
    }
    ClipRef add(const ClipDraft& draft, Date now) { return awaited(m_store->add(draft, now)); }
    void refuseWrites() const {
        execute("CREATE TRIGGER no_insert BEFORE INSERT ON clips BEGIN SELECT RAISE(ABORT, 'no'); END;"
                "CREATE TRIGGER no_update BEFORE UPDATE ON clips BEGIN SELECT RAISE(ABORT, 'no'); END;"
                "CREATE TRIGGER no_delete BEFORE DELETE ON clips BEGIN SELECT RAISE(ABORT, 'no'); END;");
    }
    void allowWrites() const { execute("DROP TRIGGER no_insert; DROP TRIGGER no_update; DROP TRIGGER no_delete;"); }
    [[nodiscard]] qint64 rowCount() const {
        auto database = m_history.connect();
        auto row = database.prepare("SELECT count(*) FROM clips;");
        row.step();
        return row.integer(0);
    }
    std::unique_ptr<ClipStore> m_store;
};

} // namespace vellumry
