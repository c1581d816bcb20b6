// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "history/clips/ClipStore.h"
#include "support/Awaited.h"
#include "support/Drafts.h"

#include <gtest/gtest.h>

namespace vellumry {

/// A memory-only store, whose operations never suspend.
class MemoryStoreTest : public testing::Test {
protected:
    ClipRef add(const ClipDraft& draft, Date now) { return awaited(m_store.add(draft, now)); }
    ClipRef addText(const QString& string, Date now) { return add(drafts::text(string), now); }
    void pin(const ClipRef& clip, bool isPinned, Date now) { awaited(m_store.setPinned(clip->id, isPinned, now)); }
    [[nodiscard]] ClipRef current(const ClipRef& clip) const { return m_store.find(clip->id); }
    [[nodiscard]] QStringList titles() const {
        QStringList list;
        for (const ClipRef& clip : m_store.clips())
            list.append(clip->title.toString());
        return list;
    }
    ClipStore m_store{RetentionPolicy()};
};

} // namespace vellumry
