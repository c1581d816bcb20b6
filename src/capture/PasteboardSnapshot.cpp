// SPDX-License-Identifier: GPL-3.0-or-later
#include "capture/PasteboardSnapshot.h"

#include "capture/PasteboardTypes.h"
#include "foundation/Logging.h"
#include "foundation/UniformType.h"

#include <algorithm>
#include <vector>

namespace vellumry {

namespace {

using pasteboardtype::ReadingTurn;

/// Most representations of types that are not essential, over all items. No program offers so many; one that offers
/// thousands is out to keep us busy.
constexpr qsizetype mostPrivateRepresentations = 1000;

/// One representation that is to be read.
struct Wanted {
    std::size_t item;
    QString type;
    ReadingTurn turn;
    bool isEssential;
};

bool isRefused(const QStringList& types, const SnapshotRequest& request) {
    if (types.isEmpty() || types.contains(uniformtype::ownMarker))
        return true;
    if (std::ranges::any_of(types, uniformtype::isRefusalMark)) {
        qCInfo(logging::capture) << "A copy is not kept: its program asks for that.";
        return true;
    }
    const auto isIgnored = [&request](const SourceApp& application) {
        return application.bundleID && request.ignoredApps.contains(*application.bundleID);
    };
    if (!isIgnored(request.source) && !isIgnored(request.owner))
        return false;
    qCInfo(logging::capture) << "A copy is not kept: the user has its application ignored.";
    return true;
}

/// One more rendering of a picture, in a format that is not needed beside the usual ones.
bool isFurtherRendering(const Wanted& wanted) {
    return !wanted.isEssential && (wanted.type.startsWith(u"image/") || wanted.type.endsWith(u"/ico"));
}

/// The picture that is the whole copy, in a format that is no copy's otherwise: the preferred one of the first item
/// that has any. Nothing where something else makes a clip.
std::optional<Wanted> lonePicture(const std::vector<QStringList>& itemTypes) {
    for (const QStringList& types : itemTypes) {
        if (std::ranges::any_of(types, pasteboardtype::makesClip))
            return std::nullopt;
    }
    for (std::size_t item = 0; item < itemTypes.size(); ++item) {
        for (const QString& type : pasteboardtype::otherImageTypes()) {
            if (itemTypes[item].contains(type))
                return Wanted{item, type, ReadingTurn::picture, true};
        }
    }
    return std::nullopt;
}

/// What is to be read, in the order of reading: by turn, then as the owner offered it.
std::vector<Wanted> plan(const std::vector<QStringList>& itemTypes) {
    std::vector<Wanted> wanted;
    qsizetype privateCount = 0;
    const std::optional<Wanted> lone = lonePicture(itemTypes);
    for (std::size_t item = 0; item < itemTypes.size(); ++item) {
        QSet<QString> seen;
        for (const QString& type : itemTypes[item]) {
            if (pasteboardtype::isLegacyAlias(type) || uniformtype::isRefusalMark(type) || seen.contains(type))
                continue;
            seen.insert(type);
            if (lone && lone->item == item && lone->type == type) {
                wanted.push_back(*lone);
                continue;
            }
            const bool isEssential = pasteboardtype::isEssential(type);
            if (!isEssential && ++privateCount > mostPrivateRepresentations)
                continue;
            wanted.push_back({item, type, pasteboardtype::readingTurn(type), isEssential});
        }
    }
    std::ranges::stable_sort(wanted, {}, &Wanted::turn);
    return wanted;
}

bool holdsPicture(const std::vector<QStringList>& itemTypes) {
    return lonePicture(itemTypes) || std::ranges::any_of(itemTypes, [](const QStringList& types) {
               return std::ranges::any_of(pasteboardtype::imageTypes(),
                                          [&types](const QString& type) { return types.contains(type); });
           });
}

/// The items that have anything, each with its types in the owner's order.
ClipPayload payloadOf(std::vector<PasteboardItem> items, const std::vector<QStringList>& itemTypes) {
    ClipPayload payload;
    for (std::size_t item = 0; item < items.size(); ++item) {
        if (items[item].representations.empty())
            continue;
        QStringList order;
        QSet<QString> seen;
        for (const QString& type : itemTypes[item]) {
            if (items[item].representations.contains(type) && !seen.contains(type)) {
                seen.insert(type);
                order.append(type);
            }
        }
        items[item].order = order;
        payload.items.push_back(std::move(items[item]));
    }
    return payload;
}

/// What was read of a copy.
struct Snapshot {
    ClipPayload payload;
    bool isTooLarge = false;
    bool lacksPlainText = false; ///< or what tells whether that is a secret; reading ended before it was there
};

/// True when what decides about the kind of clip is there.
bool canMakeClip(const ClipPayload& payload) {
    return std::ranges::any_of(payload.items, [](const PasteboardItem& item) {
        return std::ranges::any_of(item.representations, [](const auto& entry) {
            return pasteboardtype::makesClip(entry.first) || pasteboardtype::otherImageTypes().contains(entry.first);
        });
    });
}

/// True when the owner offers something that decides about the kind of clip.
bool promisesClip(const QStringList& types) {
    return std::ranges::any_of(types, [](const QString& type) {
        return pasteboardtype::makesClip(type) || pasteboardtype::otherImageTypes().contains(type);
    });
}

/// The bytes of every item; too large when there are more than the total limit.
QCoro::Task<Snapshot> takeSnapshot(std::shared_ptr<PasteboardReading> reading, DraftBuilder builder,
                                   SnapshotLimits limits) {
    Snapshot snapshot;
    auto asking = reading->itemTypes();
    const std::vector<QStringList> itemTypes = co_await asking;
    if (holdsPicture(itemTypes))
        builder.expectPicture();
    std::vector<PasteboardItem> items(itemTypes.size());
    qint64 total = 0;
    bool areRenderingsTooLarge = false;
    for (const Wanted& wanted : plan(itemTypes)) {
        // An image editor makes each rendering when it is asked for it; where one is too large to be kept, so are the
        // others, and asking for them all would take seconds.
        if (areRenderingsTooLarge && isFurtherRendering(wanted))
            continue;
        const qint64 room = limits.maxTotalBytes - total + 1;
        auto fetching = reading->data(qsizetype(wanted.item), wanted.type,
                                      wanted.isEssential ? room : limits.maxRepresentationBytes);
        const std::optional<QByteArray> bytes = co_await fetching;
        const bool isPlain = wanted.turn == ReadingTurn::plainText;
        snapshot.lacksPlainText = snapshot.lacksPlainText || (isPlain && !bytes && !reading->isCurrent());
        // Refused as a whole, never trimmed.
        snapshot.isTooLarge = !bytes && wanted.isEssential && reading->wasLarger();
        areRenderingsTooLarge = areRenderingsTooLarge || (reading->wasLarger() && isFurtherRendering(wanted));
        const bool isKept =
            bytes && !bytes->isEmpty() && (wanted.isEssential || bytes->size() <= limits.maxRepresentationBytes);
        if (isKept) {
            items[wanted.item].representations.emplace(wanted.type, *bytes);
            total += bytes->size();
        }
        snapshot.isTooLarge = snapshot.isTooLarge || total > limits.maxTotalBytes;
        if (snapshot.isTooLarge)
            co_return snapshot;
    }
    snapshot.payload = payloadOf(std::move(items), itemTypes);
    co_return snapshot;
}

/// One attempt at a copy.
struct Attempt {
    std::optional<ClipPayload> payload;
    bool hasGivenNothing = false; ///< of what the owner offered nothing came in time
    bool mayRetry = false;        ///< because of that, or because its offer did not come in time
};

QCoro::Task<Attempt> attempt(Pasteboard* pasteboard, DraftBuilder builder, SnapshotRequest request) {
    Attempt outcome;
    auto beginning = pasteboard->beginReading();
    const std::shared_ptr<PasteboardReading> reading = co_await beginning;
    if (pasteboard->changeCount() != request.changeCount)
        co_return outcome;
    outcome.mayRetry = !reading;
    if (!reading || isRefused(reading->types(), request))
        co_return outcome;

    auto taking = takeSnapshot(reading, builder, request.limits);
    Snapshot snapshot = co_await taking;
    if (snapshot.isTooLarge) {
        qCWarning(logging::capture) << "A copy is not kept: it has more than" << request.limits.maxTotalBytes
                                    << "bytes.";
        co_return outcome;
    }
    const bool isUsable = canMakeClip(snapshot.payload);
    const bool wasReplaced = pasteboard->changeCount() != request.changeCount;
    outcome.hasGivenNothing = !wasReplaced && !isUsable && promisesClip(reading->types());
    outcome.mayRetry = outcome.hasGivenNothing;
    // Of a copy that was replaced, what was read first counts; a code without its page's address would pass for no
    // secret.
    if (isUsable && !(wasReplaced && snapshot.lacksPlainText))
        outcome.payload = std::move(snapshot.payload);
    co_return outcome;
}

} // namespace

QCoro::Task<std::optional<ClipDraft>> readDraft(Pasteboard* pasteboard, DraftBuilder builder, SnapshotRequest request) {
    auto first = attempt(pasteboard, builder, request);
    Attempt outcome = co_await first;
    // An owner that was busy with something else is asked once more, as long as its copy stands.
    if (outcome.mayRetry && pasteboard->changeCount() == request.changeCount) {
        auto second = attempt(pasteboard, builder, request);
        outcome = co_await second;
        if (outcome.hasGivenNothing)
            qCWarning(logging::capture) << "A copy is lost: its program gave nothing of it in time, twice.";
    }
    if (!outcome.payload)
        co_return std::nullopt;
    auto building = builder.build(std::move(*outcome.payload), request.source, request.now);
    std::optional<ClipDraft> draft = co_await building;
    co_return draft;
}

} // namespace vellumry
