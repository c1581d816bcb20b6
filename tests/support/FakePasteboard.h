// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/display/Pasteboard.h"

#include <QSet>
#include <coroutine>
#include <memory>
#include <utility>
#include <vector>

namespace vellumry {

/// A pasteboard in memory. Answers at once, without suspending, unless it was told to hang; keeps a log of what was
/// asked of it and of what was written to it.
class FakePasteboard : public Pasteboard {
    struct Board;
    class Reading;

public:
    struct Request {
        qsizetype item;
        QString type;
        qint64 maxBytes;
        bool operator==(const Request&) const = default;
    };

    FakePasteboard() = default;
    ~FakePasteboard() override {
        // A reading that ends may begin another; none may be left waiting for a pasteboard that has gone.
        hangingTypes.clear();
        hangsItemTypes = false;
        hangsBeginReading = false;
        while (!m_sessions.empty() || !m_waiting.empty())
            endReadings();
    }
    FakePasteboard(const FakePasteboard&) = delete;
    FakePasteboard& operator=(const FakePasteboard&) = delete;

    /// Another client copies `items`. `alsoDeclared` are types of the pasteboard as a whole that no item has.
    void copy(std::vector<PasteboardItem> items, QStringList alsoDeclared = {}) {
        replace(std::move(items), std::move(alsoDeclared), false);
    }
    void copy(const QString& type, const QByteArray& bytes) {
        copy({PasteboardItem{{{type, bytes}}, QStringList{type}}});
    }
    void copyText(const QString& text) { copy(QStringLiteral("public.utf8-plain-text"), text.toUtf8()); }
    /// The owner goes away and leaves the pasteboard empty.
    void ownerGoes() {
        const auto held = m_changeCount;
        replace({}, {}, false);
        if (onOwnerGone)
            onOwnerGone(held);
    }
    /// Ends what is being read, as the deadline of a copy does; the contents and the change count stay.
    void passDeadline() { endReadings(); }
    /// Lets everything that hangs go on with its answer.
    void answerHanging() {
        hangingTypes.clear();
        hangsItemTypes = false;
        hangsBeginReading = false;
        resumeAll();
    }
    void setChangeCount(qint64 value) { m_changeCount = value; }

    /// What the pasteboard holds now, of any program.
    [[nodiscard]] const std::vector<PasteboardItem>& items() const { return m_items; }
    /// True when the last writer was the program itself.
    [[nodiscard]] bool isOurs() const { return m_isOurs; }
    /// How many answers are being waited for.
    [[nodiscard]] qsizetype waitingCount() const { return qsizetype(m_waiting.size()); }

    // What it is told to do.
    bool hasOwner = true;       ///< false: `beginReading` gives null
    bool refusesWrites = false; ///< `write` empties the pasteboard and fails
    bool notifies = true;       ///< what `notifiesChanges` says, and whether `onChanged` is called
    bool hangsBeginReading = false;
    bool hangsItemTypes = false;
    QSet<QString> failingTypes;                    ///< `data` gives nothing for these
    QSet<QString> hangingTypes;                    ///< `data` waits for `answerHanging`, or for the reading to end
    std::function<void(const Request&)> onRequest; ///< called before a request is answered

    // What was asked of it.
    std::vector<Request> requests;
    int itemTypesRequests = 0;
    int beginReadingRequests = 0;
    std::vector<std::vector<PasteboardItem>> writes; ///< refused ones included
    std::vector<std::pair<qint64, bool>> settled;    ///< the arguments of `settle`, in their order
    std::vector<qint64> secrets;                     ///< those of `markSecret`
    std::vector<qint64> givenUp;                     ///< those of `giveUp`

    [[nodiscard]] qint64 changeCount() const override { return m_changeCount; }
    [[nodiscard]] QCoro::Task<std::shared_ptr<PasteboardReading>> beginReading() override;
    bool write(std::vector<PasteboardItem> items) override {
        writes.push_back(items);
        replace(refusesWrites ? std::vector<PasteboardItem>{} : std::move(items), {}, !refusesWrites);
        return !refusesWrites;
    }
    bool takeOver(std::vector<PasteboardItem> items) override { return m_items.empty() && write(std::move(items)); }
    void markSecret(qint64 changeCount) override { secrets.push_back(changeCount); }
    void settle(qint64 changeCount, bool wasKept) override { settled.emplace_back(changeCount, wasKept); }
    [[nodiscard]] qint64 copyCount() const override { return m_copyCount; }
    void giveUp(qint64 changeCount) override {
        givenUp.push_back(changeCount);
        if (m_isOurs && m_changeCount == changeCount)
            replace({}, {}, false);
    }
    [[nodiscard]] bool notifiesChanges() const override { return notifies; }

private:
    /// Suspends until `resumeAll`.
    struct Wait {
        explicit Wait(FakePasteboard* waitedFor)
            : board(waitedFor) {}
        FakePasteboard* board;
        bool await_ready() const noexcept { return false; }
        void await_suspend(std::coroutine_handle<> handle) { board->m_waiting.push_back(handle); }
        void await_resume() const noexcept {}
    };
    /// What a reading shares with its pasteboard; `board` is null once reading has ended.
    struct Session {
        FakePasteboard* board;
        bool wasLarger = false;
    };

    void replace(std::vector<PasteboardItem> items, QStringList alsoDeclared, bool isOurs) {
        ++m_changeCount;
        m_copyCount += !isOurs && !items.empty() ? 1 : 0;
        m_items = std::move(items);
        m_alsoDeclared = std::move(alsoDeclared);
        m_isOurs = isOurs;
        endReadings();
        if (notifies && onChanged)
            onChanged();
    }
    void endReadings() {
        for (const auto& session : std::exchange(m_sessions, {}))
            session->board = nullptr;
        resumeAll();
    }
    void resumeAll() {
        for (const auto handle : std::exchange(m_waiting, {}))
            handle.resume();
    }

    qint64 m_changeCount = 1;
    qint64 m_copyCount = 0;
    std::vector<PasteboardItem> m_items;
    QStringList m_alsoDeclared;
    bool m_isOurs = false;
    std::vector<std::coroutine_handle<>> m_waiting;
    std::vector<std::shared_ptr<Session>> m_sessions;
};

class FakePasteboard::Reading : public PasteboardReading {
public:
    Reading(std::shared_ptr<Session> session, QStringList types)
        : m_session(std::move(session))
        , m_types(std::move(types)) {}

    [[nodiscard]] static QStringList typesOf(const PasteboardItem& item) {
        if (item.order)
            return *item.order;
        QStringList types;
        for (const auto& [type, bytes] : item.representations)
            types.append(type);
        return types;
    }

    [[nodiscard]] QStringList types() const override { return m_types; }
    [[nodiscard]] QCoro::Task<std::vector<QStringList>> itemTypes() override {
        const auto session = m_session; // the reading may be dropped while this waits
        std::vector<QStringList> types;
        if (!session->board)
            co_return types;
        ++session->board->itemTypesRequests;
        if (session->board->hangsItemTypes) {
            Wait wait(session->board);
            co_await wait;
        }
        if (!session->board)
            co_return types;
        for (const auto& item : session->board->m_items)
            types.push_back(typesOf(item));
        co_return types;
    }
    [[nodiscard]] QCoro::Task<std::optional<QByteArray>> data(qsizetype item, QString type, qint64 maxBytes) override {
        const auto session = m_session;
        if (!session->board)
            co_return std::nullopt;
        session->wasLarger = false;
        const Request request{item, type, maxBytes};
        session->board->requests.push_back(request);
        if (const auto seen = session->board->onRequest)
            seen(request);
        if (session->board && session->board->hangingTypes.contains(type)) {
            Wait wait(session->board);
            co_await wait;
        }
        if (!session->board || session->board->failingTypes.contains(type))
            co_return std::nullopt;
        const auto& items = session->board->m_items;
        if (item < 0 || item >= qsizetype(items.size()))
            co_return std::nullopt;
        const auto& representations = items[std::size_t(item)].representations;
        const auto found = representations.find(type);
        session->wasLarger = found != representations.end() && found->second.size() > maxBytes;
        if (found == representations.end() || session->wasLarger)
            co_return std::nullopt;
        co_return found->second;
    }
    [[nodiscard]] bool wasLarger() const override { return m_session->wasLarger; }
    [[nodiscard]] bool isCurrent() const override { return m_session->board != nullptr; }

private:
    std::shared_ptr<Session> m_session;
    QStringList m_types;
};

inline QCoro::Task<std::shared_ptr<PasteboardReading>> FakePasteboard::beginReading() {
    ++beginReadingRequests;
    auto session = std::make_shared<Session>(Session{this, false});
    m_sessions.push_back(session);
    if (hangsBeginReading) {
        Wait wait(this);
        co_await wait;
    }
    std::shared_ptr<PasteboardReading> reading;
    if (!session->board || !hasOwner)
        co_return reading;
    QStringList types = m_alsoDeclared;
    for (const auto& item : m_items)
        types += Reading::typesOf(item);
    types.removeDuplicates();
    reading = std::make_shared<Reading>(std::move(session), std::move(types));
    co_return reading;
}

} // namespace vellumry
