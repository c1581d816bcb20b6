// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "history/clips/Clip.h"

#include <QObject>
#include <QUuid>
#include <functional>
#include <optional>
#include <vector>

namespace vellumry {

class Pasteboard;

/// Things that wait to be pasted one after the other: each paste key the user presses puts the next one on the
/// pasteboard. It presses nothing itself, records no use and plays no sound. Main thread.
class PasteStack : public QObject {
    Q_OBJECT
    Q_PROPERTY(bool isActive READ isActive NOTIFY changed)
    Q_PROPERTY(int count READ count NOTIFY changed)
    Q_PROPERTY(int pastedCount READ pastedCount NOTIFY changed)
    Q_PROPERTY(bool isReversed READ isReversed WRITE setReversed NOTIFY changed)

public:
    /// Everything needed to write it, so that `pasteNext` never waits.
    struct Item {
        QUuid id = QUuid::createUuid(); ///< its own for each item, also when one clip is added twice
        std::optional<QUuid> clipID;    ///< absent for a live copy
        ClipKind kind = ClipKind::text;
        bool isSensitive = false;
        ClipPayload payload;
        std::vector<FileRef> files;

        bool operator==(const Item&) const = default;
    };
    /// The items with the present places of their files; nothing when none can be had. Must come back soon: a key of
    /// the user waits meanwhile.
    using ResolvingFiles =
        std::function<std::optional<std::vector<PasteboardItem>>(std::vector<PasteboardItem>, std::vector<FileRef>)>;

    /// `pasteboard` must outlive the stack. `plainText`: the user wants text without its style; asked for each item.
    PasteStack(Pasteboard& pasteboard, std::function<bool()> plainText, ResolvingFiles resolvingFiles,
               QObject* parent = nullptr);
    ~PasteStack() override;

    void start(std::vector<Item> items);
    /// Ends it by hand, so without `onFinish`. The pasteboard keeps what was written last.
    void stop();
    /// Behind all others; nothing while the stack does not run.
    void enqueue(Item item);
    /// Puts the next item on the pasteboard. True when one went there. Items that cannot be written are passed over
    /// within the same call. Taking the last one ends the stack; an empty one that has pasted nothing yet runs on.
    bool pasteNext();

    [[nodiscard]] bool isActive() const { return m_isActive; }
    /// Oldest first.
    [[nodiscard]] const std::vector<Item>& items() const { return m_items; }
    [[nodiscard]] int count() const { return int(m_items.size()); }
    [[nodiscard]] int pastedCount() const { return m_pastedCount; }
    /// The newest goes first.
    [[nodiscard]] bool isReversed() const { return m_isReversed; }
    void setReversed(bool value);
    /// What `pasteNext` would take now; null when there is nothing. Good until the next call that changes the stack.
    [[nodiscard]] const Item* nextItem() const;

    /// What `pasteNext` would write now; absent when there is nothing that can be written.
    [[nodiscard]] std::optional<std::vector<PasteboardItem>> nextContents() const;

    /// The stack ended by itself.
    std::function<void()> onFinish;
    /// An item was written to the pasteboard, before its key goes on its way.
    std::function<void(const Item&)> onWritten;
    /// An item was passed over: its files are gone, or the pasteboard did not take it.
    std::function<void(const Item&)> onSkip;

Q_SIGNALS:
    void changed();

private:
    [[nodiscard]] Item takeNext();
    [[nodiscard]] std::optional<std::vector<PasteboardItem>> contentsOf(const Item& item) const;
    void finish();

    Pasteboard* m_pasteboard;
    std::function<bool()> m_plainText;
    ResolvingFiles m_resolvingFiles;
    std::vector<Item> m_items;
    int m_pastedCount = 0;
    bool m_isActive = false;
    bool m_isReversed = false;
};

} // namespace vellumry
