// SPDX-License-Identifier: GPL-3.0-or-later
#include "capture/PasteboardSnapshot.h"

#include "capture/PasteboardTypes.h"
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
    if (std::ranges::any_of(types, pasteboardtype::isRefused))
        return true;
    return request.source.bundleID && request.ignoredApps.contains(*request.source.bundleID);
}

/// One more rendering of a picture, in a format that nobody needs who takes the usual ones.
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
            if (pasteboardtype::isLegacyAlias(type) || pasteboardtype::isRefused(type) || seen.contains(type))
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

/// The bytes of every item; nothing when there are none, or more than the total limit.
QCoro::Task<std::optional<ClipPayload>> takeSnapshot(std::shared_ptr<PasteboardReading> reading, DraftBuilder builder,
                                                     SnapshotLimits limits) {
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
        if (!bytes && wanted.isEssential && reading->wasLarger())
            co_return std::nullopt; // refused as a whole, never trimmed
        areRenderingsTooLarge = areRenderingsTooLarge || (reading->wasLarger() && isFurtherRendering(wanted));
        if (!bytes || bytes->isEmpty())
            continue;
        if (!wanted.isEssential && bytes->size() > limits.maxRepresentationBytes)
            continue;
        items[wanted.item].representations.emplace(wanted.type, *bytes);
        total += bytes->size();
        if (total > limits.maxTotalBytes)
            co_return std::nullopt;
    }
    ClipPayload payload = payloadOf(std::move(items), itemTypes);
    if (payload.items.empty())
        co_return std::nullopt;
    co_return payload;
}

} // namespace

QCoro::Task<std::optional<ClipDraft>> readDraft(Pasteboard* pasteboard, DraftBuilder builder, SnapshotRequest request) {
    auto beginning = pasteboard->beginReading();
    const std::shared_ptr<PasteboardReading> reading = co_await beginning;
    if (!reading || pasteboard->changeCount() != request.changeCount)
        co_return std::nullopt;

    if (isRefused(reading->types(), request))
        co_return std::nullopt;

    auto snapshot = takeSnapshot(reading, builder, request.limits);
    std::optional<ClipPayload> payload = co_await snapshot;
    // A copy that was replaced while it was read may lack anything; one that ran out of time lacks what hangs.
    const bool wasReplaced = !reading->isCurrent() && pasteboard->changeCount() != request.changeCount;
    if (!payload || wasReplaced)
        co_return std::nullopt;

    auto building = builder.build(std::move(*payload), request.source, request.now);
    std::optional<ClipDraft> draft = co_await building;
    co_return draft;
}

} // namespace vellumry
