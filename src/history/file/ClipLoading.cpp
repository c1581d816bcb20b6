// SPDX-License-Identifier: GPL-3.0-or-later
#include "history/file/ClipLoading.h"

#include "foundation/BulkWork.h"
#include "foundation/Logging.h"
#include "foundation/SerialExecutor.h"
#include "history/clips/StringPool.h"
#include "history/file/ClipMetaReader.h"
#include "history/file/RowIdentity.h"
#include "history/file/Unsealer.h"

#include <algorithm>
#include <atomic>
#include <iterator>
#include <mutex>
#include <utility>

namespace vellumry {

namespace {

constexpr std::size_t rowsPerBatch = 256;
/// So much sealed content is read ahead at the most; a start should not need twice the memory.
constexpr int batchesAhead = 8;

/// A row's plain columns in the clip that it will be, and where its sealed meta lies.
struct Row {
    std::shared_ptr<Clip> clip;
    qsizetype offset;
    qsizetype size;
};

struct Batch {
    std::vector<Row> rows;
    QByteArray sealed;
    std::vector<ClipRef> clips;
    std::exception_ptr error;
    std::atomic_flag isClaimed;
};

/// What one thread needs to decode.
class Decoder {
public:
    explicit Decoder(const SymmetricKey& key)
        : m_unsealer(key) {}

    void decode(Batch& batch) {
        batch.clips.reserve(batch.rows.size());
        for (Row& row : batch.rows) {
            const auto plain = m_unsealer.open(QByteArrayView(batch.sealed).sliced(row.offset, row.size));
            auto meta = plain ? decodeMeta(*plain, &m_pool) : std::nullopt;
            if (!meta)
                continue;
            std::move(*meta).applyTo(*row.clip);
            batch.clips.push_back(std::move(row.clip));
        }
        batch.rows = {};
    }

private:
    Unsealer m_unsealer;
    StringPool m_pool;
};

/// The clip without its sealed part; null for a row that is none.
std::shared_ptr<Clip> clipOf(const SQLiteDatabase::Statement& row) {
    const auto id = rowidentity::uuidOf(row.text(0));
    const qint64 kind = row.integer(1);
    if (!id || kind < 0 || kind > static_cast<qint64>(ClipKind::color))
        return nullptr;
    auto clip = std::make_shared<Clip>();
    clip->id = *id;
    clip->kind = static_cast<ClipKind>(kind);
    clip->createdAt = row.real(2);
    clip->lastUsedAt = row.real(3);
    clip->pinOrder = row.integer(4);
    clip->isPinned = clip->pinOrder != 0;
    if (!row.isNull(5))
        clip->expiresAt = row.real(5);
    clip->fingerprint = Fingerprint::ofText(row.text(6));
    clip->byteSize = row.integer(7);
    return clip;
}

} // namespace

struct ClipLoading::Private {
    explicit Private(const SymmetricKey& historyKey)
        : key(historyKey)
        , decoder(key) {}

    /// Decodes the batch unless another thread has begun it.
    void decode(Batch& batch, Decoder& with) {
        if (batch.isClaimed.test_and_set())
            return;
        try {
            with.decode(batch);
        } catch (...) {
            batch.error = std::current_exception();
        }
        {
            const std::lock_guard lock(mutex);
            spare.push_back(std::exchange(batch.sealed, {}));
        }
        --waiting;
    }

    /// An empty batch; of one that is done, its room for what is sealed: no new memory for each.
    std::unique_ptr<Batch> newBatch() {
        auto batch = std::make_unique<Batch>();
        const std::lock_guard lock(mutex);
        if (!spare.empty()) {
            batch->sealed = std::move(spare.back());
            spare.pop_back();
            batch->sealed.resize(0);
        }
        return batch;
    }

    void close() {
        Batch& batch = *batches.back();
        ++waiting;
        if (!helper) {
            helperDecoder = std::make_unique<Decoder>(key);
            helper = std::make_unique<SerialExecutor>("History rows");
        }
        helper->post([this, &batch] {
            const BulkWork work;
            decode(batch, *helperDecoder);
        });
        if (waiting > batchesAhead)
            decode(batch, decoder);
        batches.push_back(newBatch());
    }

    const SymmetricKey& key;
    Decoder decoder;
    std::size_t taken = 0;
    std::vector<std::unique_ptr<Batch>> batches;
    std::mutex mutex;
    std::vector<QByteArray> spare; ///< guarded by the mutex
    std::atomic<int> waiting = 0;
    std::unique_ptr<Decoder> helperDecoder;
    std::unique_ptr<SerialExecutor> helper; // last, so that its thread has ended before what it works on goes
};

ClipLoading::ClipLoading(const ClipCrypto& crypto)
    : d(std::make_unique<Private>(crypto.key())) {
    d->batches.push_back(std::make_unique<Batch>());
}

ClipLoading::~ClipLoading() = default;

void ClipLoading::take(const SQLiteDatabase::Statement& row) {
    ++d->taken;
    auto clip = clipOf(row);
    if (!clip)
        return;
    Batch& batch = *d->batches.back();
    const QByteArrayView sealed = row.blob(8);
    batch.rows.push_back({std::move(clip), batch.sealed.size(), sealed.size()});
    batch.sealed.append(sealed);
    if (batch.rows.size() == rowsPerBatch)
        d->close();
}

std::vector<ClipRef> ClipLoading::finish() {
    ++d->waiting;
    for (auto batch = d->batches.rbegin(); batch != d->batches.rend(); ++batch)
        d->decode(**batch, d->decoder);
    d->helper.reset();
    std::vector<ClipRef> clips;
    clips.reserve(d->batches.size() * rowsPerBatch);
    for (const auto& batch : d->batches) {
        if (batch->error)
            std::rethrow_exception(batch->error);
        std::ranges::move(batch->clips, std::back_inserter(clips));
    }
    if (clips.size() < d->taken)
        qCWarning(logging::history) << d->taken - clips.size() << "of" << d->taken
                                    << "clips cannot be read; they stay in the file";
    return clips;
}

} // namespace vellumry
