// SPDX-License-Identifier: GPL-3.0-or-later

// What is left of a secret when it is gone: in the history file, its companions, and this process's own memory. Linked
// with the wiping heap, as the program is.

#include "foundation/Logging.h"
#include "history/file/DatabaseTest.h"
#include "support/Drafts.h"
#include "torture/MemoryScan.h"

#include <QRandomGenerator>

namespace vellumry {
namespace {

using namespace Qt::StringLiterals;

struct Traces {
    std::vector<std::pair<const char*, HiddenNeedle>> needles;

    void add(const char* name, QByteArrayView bytes) { needles.emplace_back(name, HiddenNeedle(bytes)); }
    [[nodiscard]] QStringList inMemory() const {
        QStringList found;
        for (const auto& [name, needle] : needles) {
            if (const std::size_t count = needle.countInMemory())
                found.append(QString::fromLatin1(name) + u" %1×"_s.arg(count));
        }
        return found;
    }
    [[nodiscard]] QStringList inBytes(const QByteArray& bytes) const {
        QStringList found;
        for (const auto& [name, needle] : needles) {
            if (needle.countIn(bytes) > 0)
                found.append(QString::fromLatin1(name));
        }
        return found;
    }
};

/// Digits and letters that are nowhere else, of any length.
QByteArray madeUp(qsizetype length) {
    QByteArray text;
    while (text.size() < length)
        text += "0123456789bcdfghjkmnpqrstvwxz"[QRandomGenerator::system()->bounded(29)];
    return text;
}

QByteArray utf16(const QString& string) {
    return QByteArray(reinterpret_cast<const char*>(string.constData()), string.size() * 2);
}

class Residue : public DatabaseTest, public testing::WithParamInterface<qsizetype> {
protected:
    /// The rules of the log are read, as at the start of the program: the loader's first visit to some functions saves
    /// the vector registers on the stack, with what was last copied in them.
    Residue() { EXPECT_TRUE(logging::history().isWarningEnabled()); }

    /// Adds a secret of so many characters and learns what it looks like in its several forms. No copy of it stays
    /// here.
    void addSecret(ClipStore& store, qsizetype length) {
        const QByteArray utf8 = madeUp(length);
        // The middle, since the heap's own bookkeeping may overwrite the first bytes of what is free.
        const QByteArrayView middle = QByteArrayView(utf8).sliced(4, std::min<qsizetype>(length - 4, 24));
        m_traces.add("text", middle);
        m_traces.add("UTF-16", utf16(QString::fromLatin1(middle)));
        ClipDraft draft = drafts::secret(QString::fromLatin1(utf8));
        draft.title.truncate(300);
        draft.thumbnail = QByteArray("thumbnail of ") + utf8;
        const ClipRef clip = awaited(store.add(std::move(draft), 10));
        m_id = clip->id;
        EXPECT_TRUE(store.search(QString::fromLatin1(utf8.first(12)), ClipFilter::all).empty());
        EXPECT_TRUE(awaited(store.payload(m_id)));
        awaited(store.markUsed(m_id, 12));
        awaited(store.setImageText(m_id, QString::fromLatin1(utf8), false));
        EXPECT_EQ(store.search(QString::fromLatin1(utf8.first(12)), ClipFilter::all).size(), 1U);
    }
    void learnSealedForms() {
        auto database = m_history.connect();
        auto row = database.prepare("SELECT meta, payload, fingerprint FROM clips WHERE expires IS NOT NULL;");
        ASSERT_TRUE(row.step());
        // The last part of a long value stands at the end of a page of its own.
        m_traces.add("sealed meta", row.blob(0).last(24));
        m_traces.add("sealed payload", row.blob(1).first(24));
        m_traces.add("end of sealed payload", row.blob(1).last(24));
    }
    void addOthers(ClipStore& store, Date now) {
        for (int i = 0; i < 20; ++i)
            awaited(store.add(drafts::text(QString::fromLatin1(madeUp(50))), now + i));
    }
    Traces m_traces;
    QUuid m_id;
};

TEST_P(Residue, NothingOfAnExpiredSecretIsLeftInMemoryOrFile) {
    const auto store = m_history.openStore();
    addOthers(*store, 1);
    addSecret(*store, GetParam());
    learnSealedForms();
    ASSERT_EQ(m_traces.inMemory().filter(u"text"_s).size(), 1) << "the test must find what is there";
    ASSERT_EQ(m_traces.inBytes(allBytes()).size(), 3) << "sealed, and only sealed, it is in the file";

    awaited(store->enforceRetention(100));
    ASSERT_FALSE(store->find(m_id));
    EXPECT_EQ(m_traces.inBytes(allBytes()).join(u", "_s).toStdString(), "");
    EXPECT_EQ(m_traces.inMemory().join(u", "_s).toStdString(), "");
    EXPECT_EQ(store->clips().size(), 20U);
}

TEST_P(Residue, NothingOfADeletedSecretIsLeftWithoutAFileEither) {
    ClipStore store{RetentionPolicy()};
    addOthers(store, 1);
    addSecret(store, GetParam());
    ASSERT_FALSE(m_traces.inMemory().isEmpty());
    awaited(store.remove({m_id}, false));
    EXPECT_EQ(m_traces.inMemory().join(u", "_s).toStdString(), "");
}

TEST_P(Residue, NothingOfASecretThatCouldNotBeWrittenIsLeft) {
    const auto store = m_history.openStore();
    addOthers(*store, 1);
    execute("CREATE TRIGGER no_insert BEFORE INSERT ON clips BEGIN SELECT RAISE(ABORT, 'no'); END;");
    {
        const QByteArray utf8 = madeUp(GetParam());
        m_traces.add("text", QByteArrayView(utf8).sliced(4, 14));
        m_traces.add("UTF-16", utf16(QString::fromLatin1(utf8.sliced(4, 14))));
        const ClipRef clip = awaited(store->add(drafts::secret(QString::fromLatin1(utf8)), 10));
        ASSERT_TRUE(clip && store->isBehind());
        awaited(store->remove({clip->id}, false));
    }
    // The history's thread tells that it failed just before it lets go of the row.
    EXPECT_TRUE(awaited(store->payload(store->clips().front()->id)));
    EXPECT_EQ(m_traces.inMemory().join(u", "_s).toStdString(), "");
}

INSTANTIATE_TEST_SUITE_P(Characters, Residue, testing::Values(19, 300, 5'000, 300'000),
                         testing::PrintToStringParamName());

} // namespace
} // namespace vellumry
