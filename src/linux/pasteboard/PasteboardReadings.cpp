// SPDX-License-Identifier: GPL-3.0-or-later
#include "linux/pasteboard/PasteboardReadings.h"

#include "foundation/UniformType.h"
#include "linux/pasteboard/FileList.h"

#include <algorithm>

namespace vellumry {

/// What the awaiting coroutines share with their reading; they touch nothing else after a wait.
struct ForeignReading::State {
    std::shared_ptr<const ForeignOffer> offer;
    qint64 maxFileListBytes = 0;
    /// What the owner's list of files held; absent until it was read.
    std::optional<filelist::Entries> entries;
    /// The representation asked for last was larger than was wanted.
    bool wasLarger = false;

    [[nodiscard]] bool isCurrent() const { return offer->isCurrent(); }
    [[nodiscard]] bool hasFileList() const;
    [[nodiscard]] QStringList declaredTypes() const;
    [[nodiscard]] std::vector<QStringList> typesByItem() const;
};

namespace {

using State = ForeignReading::State;

void appendOnce(QStringList& types, const QString& type) {
    if (!types.contains(type))
        types.append(type);
}

/// Reads the lists of files that are offered until one of them has an entry.
QCoro::Task<> readFileList(std::shared_ptr<State> state) {
    filelist::Entries entries;
    for (const QString& target : {filelist::uriList, filelist::copiedFiles}) {
        if (!state->offer->targets().contains(target))
            continue;
        auto reading = state->offer->read(target, QString(), state->maxFileListBytes);
        const std::shared_ptr<const GivenBytes> list = co_await reading;
        if (list && !list->wasLarger)
            entries = filelist::parse(list->bytes);
        if (!entries.isEmpty())
            break;
    }
    if (!state->entries)
        state->entries = std::move(entries);
}

QCoro::Task<std::optional<QByteArray>> readRepresentation(std::shared_ptr<State> state, QString type, qint64 maxBytes) {
    QStringList candidates = state->offer->targets();
    // Text has many names; an owner that breaks its word for the best of them may keep it for the next.
    const int attempts = type == uniformtype::utf8PlainText ? 2 : 1;
    for (int i = 0; i < attempts; ++i) {
        const std::optional<QString> target = uniformtype::preferredTarget(type, candidates);
        if (!target)
            break;
        candidates.removeAll(*target);
        auto reading = state->offer->read(*target, type, maxBytes);
        const std::shared_ptr<const GivenBytes> given = co_await reading;
        if (!given)
            continue;
        // Text may grow by its decoding.
        state->wasLarger = given->wasLarger || given->bytes.size() > maxBytes;
        if (state->wasLarger)
            break;
        co_return given->bytes;
    }
    co_return std::nullopt;
}

std::optional<QByteArray> within(const QByteArray& bytes, qint64 maxBytes, bool& wasLarger) {
    wasLarger = bytes.size() > maxBytes;
    if (wasLarger)
        return std::nullopt;
    return bytes;
}

} // namespace

bool ForeignReading::State::hasFileList() const {
    return std::ranges::any_of(offer->targets(), filelist::isFileList);
}

QStringList ForeignReading::State::declaredTypes() const {
    QStringList types;
    for (const QString& target : offer->targets()) {
        if (filelist::isFileList(target))
            appendOnce(types, uniformtype::fileUrl);
        if (target == filelist::uriList)
            continue;
        if (const std::optional<QString> type = uniformtype::fromTarget(target))
            appendOnce(types, *type);
    }
    return types;
}

/// Each file is an item; the first carries whatever else was offered.
std::vector<QStringList> ForeignReading::State::typesByItem() const {
    QStringList first = declaredTypes();
    // pcmanfm takes files that were cut off the clipboard as soon as any program has read this list: the user could not
    // paste them any more. The list of addresses and KDE's hint say the same and can be read.
    if (offer->targets().contains(filelist::uriList) && offer->targets().contains(filelist::cutSelection))
        first.removeAll(filelist::copiedFiles);
    const qsizetype place = first.indexOf(uniformtype::fileUrl);
    if (place < 0)
        return {first};
    if (entries && !entries->files.isEmpty()) {
        std::vector<QStringList> items(static_cast<std::size_t>(entries->files.size()),
                                       QStringList(uniformtype::fileUrl));
        items.front() = first;
        return items;
    }
    first.removeAt(place);
    const bool isElsewhere = entries && entries->urls() && !entries->webAddress;
    if (!isElsewhere)
        first.removeAll(filelist::copiedFiles);
    else if (offer->targets().contains(filelist::uriList))
        first.insert(place, filelist::uriList);
    if (entries && entries->urls() && !first.contains(uniformtype::url))
        first.insert(place, uniformtype::url);
    return {first};
}

ForeignReading::ForeignReading(std::shared_ptr<const ForeignOffer> offer, qint64 maxFileListBytes)
    : m_state(std::make_shared<State>()) {
    m_state->offer = std::move(offer);
    m_state->maxFileListBytes = maxFileListBytes;
}

ForeignReading::~ForeignReading() = default;

QStringList ForeignReading::types() const {
    return m_state->declaredTypes();
}

QCoro::Task<std::vector<QStringList>> ForeignReading::itemTypes() {
    const std::shared_ptr<State> state = m_state;
    if (!state->entries && state->isCurrent() && state->hasFileList()) {
        auto listing = readFileList(state);
        co_await listing;
    }
    std::vector<QStringList> items;
    if (state->isCurrent())
        items = state->typesByItem();
    co_return items;
}

QCoro::Task<std::optional<QByteArray>> ForeignReading::data(qsizetype item, QString type, qint64 maxBytes) {
    const std::shared_ptr<State> state = m_state;
    state->wasLarger = false;
    // A hint that the copy is a secret is a secret's neighbour: it is not read either.
    if (!state->isCurrent() || item < 0 || type == uniformtype::concealed)
        co_return std::nullopt;
    if (!state->entries && state->hasFileList()) {
        auto listing = readFileList(state);
        co_await listing;
    }
    if (!state->isCurrent())
        co_return std::nullopt;
    if (state->entries && type == uniformtype::fileUrl) {
        if (item >= state->entries->files.size())
            co_return std::nullopt;
        co_return within(state->entries->files.at(item), maxBytes, state->wasLarger);
    }
    if (item != 0)
        co_return std::nullopt;
    if (const auto urls = state->entries ? state->entries->urls() : std::nullopt; urls && type == uniformtype::url)
        co_return within(*urls, maxBytes, state->wasLarger);
    auto reading = readRepresentation(state, type, maxBytes);
    std::optional<QByteArray> bytes = co_await reading;
    co_return bytes;
}

bool ForeignReading::wasLarger() const {
    return m_state->wasLarger;
}

bool ForeignReading::isCurrent() const {
    return m_state->isCurrent();
}

OwnReading::OwnReading(std::shared_ptr<const OfferedContents> contents, std::function<bool()> isCurrent)
    : m_contents(std::move(contents))
    , m_isCurrent(std::move(isCurrent)) {}

QStringList OwnReading::types() const {
    QStringList types;
    for (const PasteboardItem& item : m_contents->items()) {
        for (const QString& type : OfferedContents::typesOf(item))
            appendOnce(types, type);
    }
    return types;
}

QCoro::Task<std::vector<QStringList>> OwnReading::itemTypes() {
    std::vector<QStringList> items;
    if (isCurrent()) {
        for (const PasteboardItem& item : m_contents->items())
            items.push_back(OfferedContents::typesOf(item));
    }
    co_return items;
}

QCoro::Task<std::optional<QByteArray>> OwnReading::data(qsizetype item, QString type, qint64 maxBytes) {
    m_wasLarger = false;
    const std::vector<PasteboardItem>& items = m_contents->items();
    if (!isCurrent() || item < 0 || item >= static_cast<qsizetype>(items.size()))
        co_return std::nullopt;
    const auto& representations = items[static_cast<std::size_t>(item)].representations;
    const auto found = representations.find(type);
    if (found == representations.end())
        co_return std::nullopt;
    co_return within(found->second, maxBytes, m_wasLarger);
}

} // namespace vellumry
