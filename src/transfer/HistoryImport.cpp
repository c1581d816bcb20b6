// SPDX-License-Identifier: GPL-3.0-or-later
#include "transfer/HistoryImport.h"

#include "capture/PasteboardSnapshot.h"
#include "capture/PasteboardTypes.h"
#include "foundation/Logging.h"
#include "foundation/UniformType.h"
#include "transfer/FolderSource.h"
#include "transfer/PeerSource.h"

#include <QPointer>
#include <algorithm>

namespace vellumry {

namespace {

/// What a copy would have kept of it.
bool isKept(const QString& type, const QByteArray& bytes) {
    const SnapshotLimits limits;
    if (pasteboardtype::isLegacyAlias(type) || type == uniformtype::ownMarker || bytes.isEmpty())
        return false;
    return pasteboardtype::isEssential(type) || bytes.size() <= limits.maxRepresentationBytes;
}

/// As much of it as a copy would have kept; nothing where a copy would have been refused.
std::optional<ClipPayload> asCaptured(ClipPayload payload) {
    for (PasteboardItem& item : payload.items) {
        std::erase_if(item.representations, [](const auto& entry) { return !isKept(entry.first, entry.second); });
        if (item.order)
            erase_if(*item.order, [&item](const QString& type) { return !item.representations.contains(type); });
    }
    std::erase_if(payload.items, [](const PasteboardItem& item) { return item.representations.empty(); });
    if (payload.items.empty() || payload.byteCount() > SnapshotLimits().maxTotalBytes)
        return std::nullopt;
    return payload;
}

void count(ImportOutcome& outcome, const TakenIn& taken) {
    switch (taken.outcome) {
    case TakenIn::Outcome::added:
        ++outcome.added;
        outcome.clips.insert(taken.id);
        break;
    case TakenIn::Outcome::isThere:
        ++outcome.alreadyThere;
        break;
    case TakenIn::Outcome::beyondLimits:
        ++outcome.beyondLimits;
        break;
    case TakenIn::Outcome::failed:
        ++outcome.unusable;
        break;
    }
}

void logEnd(const ImportOutcome& outcome) {
    qCInfo(logging::transfer) << "an import has ended: added" << outcome.added << "there already"
                              << outcome.alreadyThere << "secrets" << outcome.secrets << "excluded" << outcome.excluded
                              << "beyond limits" << outcome.beyondLimits << "without room" << outcome.withoutRoom
                              << "unusable" << outcome.unusable << "damaged" << outcome.isDamaged << "stopped"
                              << outcome.isStopped;
}

} // namespace

HistoryImport::HistoryImport(ClipStore& store, PeerHistories* peers, DraftBuilder builder, Hooks hooks)
    : m_store(&store)
    , m_peers(peers)
    , m_builder(builder)
    , m_hooks(std::move(hooks)) {}

HistoryImport::~HistoryImport() = default;

QCoro::Task<std::vector<PeerHistory>> HistoryImport::find() {
    std::vector<PeerHistory> found;
    if (!m_peers)
        co_return found;
    std::function<std::vector<PeerHistory>()> job = [peers = m_peers] { return peers->find(); };
    auto finding = m_reader.run(std::move(job));
    found = co_await finding;
    co_return found;
}

QCoro::Task<ImportOutcome> HistoryImport::importPeer(QString identifier) {
    const QPointer<HistoryImport> self(this);
    std::shared_ptr<ImportSource> source;
    if (m_peers) {
        using Opened = std::shared_ptr<ImportSource>;
        std::function<Opened()> job = [peers = m_peers, identifier, now = m_hooks.clock()] {
            auto reading = peers->open(identifier);
            return reading ? std::make_shared<PeerSource>(std::move(reading), now) : Opened();
        };
        auto opening = m_reader.run(std::move(job));
        source = co_await opening;
    }
    ImportOutcome outcome;
    outcome.isMissing = !source;
    if (!self || !source)
        co_return outcome;
    auto running = run(source);
    outcome = co_await running;
    co_return outcome;
}

QCoro::Task<ImportOutcome> HistoryImport::importFolder(QString folder) {
    const QPointer<HistoryImport> self(this);
    using Opened = std::shared_ptr<ImportSource>;
    std::function<Opened()> job = [folder]() -> Opened { return FolderSource::open(folder); };
    auto opening = m_reader.run(std::move(job));
    const Opened source = co_await opening;
    ImportOutcome outcome;
    outcome.isMissing = !source;
    if (!self || !source)
        co_return outcome;
    auto running = run(source);
    outcome = co_await running;
    co_return outcome;
}

QCoro::Task<ImportOutcome> HistoryImport::run(std::shared_ptr<ImportSource> source) {
    const QPointer<HistoryImport> self(this);
    const auto outcome = std::make_shared<ImportOutcome>();
    m_isStopped = false;
    for (;;) {
        std::function<std::optional<ImportEntry>()> job = [source] { return source->next(); };
        auto reading = m_reader.run(std::move(job));
        std::optional<ImportEntry> entry = co_await reading;
        if (!self || !entry)
            break;
        if (m_isStopped) {
            outcome->isStopped = true;
            break;
        }
        auto taking = takeIn(std::move(*entry), outcome);
        co_await taking;
        if (!self)
            break;
        onProgress(*outcome);
    }
    // Nothing reads from it now.
    outcome->isDamaged = source->isDamaged();
    logEnd(*outcome);
    co_return *outcome;
}

QCoro::Task<void> HistoryImport::takeIn(ImportEntry entry, std::shared_ptr<ImportOutcome> outcome) {
    const QPointer<HistoryImport> self(this);
    if (entry.isLocked) {
        ++outcome->secrets;
        co_return;
    }
    if (entry.source.bundleID && m_hooks.ignoredApps().contains(*entry.source.bundleID)) {
        ++outcome->excluded;
        co_return;
    }
    std::optional<ClipPayload> payload = asCaptured(std::move(entry.payload));
    if (!payload) {
        ++outcome->unusable;
        co_return;
    }
    auto building = m_builder.build(std::move(*payload), entry.source, entry.provenance.createdAt);
    std::optional<ClipDraft> draft = co_await building;
    if (!self)
        co_return;
    // A pin has rescued it: the user wanted to keep it.
    const bool isSecret = draft && draft->isSensitive && !entry.provenance.isPinned;
    const bool lacksRoom = draft && draft->kind == ClipKind::image && !m_hooks.hasRoomForImages();
    if (!draft || isSecret || lacksRoom) {
        ++(isSecret ? outcome->secrets : lacksRoom ? outcome->withoutRoom : outcome->unusable);
        co_return;
    }
    draft->isSensitive = false;
    draft->isScreenshot = draft->isScreenshot || entry.isScreenshot;
    if (entry.title)
        draft->title = *entry.title;
    auto taking = m_store->takeIn(std::move(*draft), entry.provenance);
    const TakenIn taken = co_await taking;
    count(*outcome, taken);
}

QCoro::Task<void> HistoryImport::undo(ImportOutcome outcome) {
    auto removing = m_store->remove(std::move(outcome.clips), true);
    co_await removing;
}

} // namespace vellumry
