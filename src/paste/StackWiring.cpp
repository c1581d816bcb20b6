// SPDX-License-Identifier: GPL-3.0-or-later
#include "paste/StackWiring.h"

#include "capture/ClipboardWatcher.h"
#include "foundation/Localisation.h"
#include "foundation/Logging.h"
#include "foundation/UserDefaults.h"
#include "history/clips/ClipStore.h"
#include "paste/FileResolution.h"
#include "paste/PasteOutcome.h"
#include "platform/display/PasteTarget.h"

#include <QCoreApplication>
#include <QPointer>
#include <algorithm>
#include <utility>

namespace vellumry {

namespace {

using namespace std::chrono_literals;

/// What writing the pasteboard and letting the key go may take of the time that the key waits.
constexpr auto writingTime = 20ms;
/// A look at a local disk takes a fraction of it.
constexpr auto longestFileLook = 100ms;

} // namespace

StackWiring::StackWiring(Parts parts, Hooks hooks, QObject* parent)
    : QObject(parent)
    , m_parts(parts)
    , m_hooks(std::move(hooks))
    , m_stack(
          parts.pasteboard,
          [defaults = &parts.defaults] { return defaults->boolean(QStringLiteral("plainTextByDefault")); },
          resolvingFiles())
    , m_listener(parts.keys, parts.layout, QCoreApplication::applicationPid()) {
    m_intake.setSingleShot(true);
    m_intake.setTimerType(Qt::PreciseTimer);
    connect(&m_intake, &QTimer::timeout, this, &StackWiring::pasteNow);
    m_listener.onPaste = [this](std::shared_ptr<HeldKey> key) { handlePaste(std::move(key)); };
    m_parts.watcher.onRead = [self = QPointer(this)](const ClipDraft& draft) {
        if (self)
            self->take(draft);
    };
    m_parts.watcher.needsWholeCopies = [self = QPointer(this)] { return self && self->m_stack.isActive(); };
    m_parts.watcher.onSettled = [self = QPointer(this)] {
        if (self)
            self->pasteNow();
    };
    connect(&m_stack, &PasteStack::changed, this, &StackWiring::expectNext);
    // This runs inside the press that took the last item, whose key is still to go on its way.
    m_stack.onFinish = [this] { QMetaObject::invokeMethod(this, &StackWiring::finish, Qt::QueuedConnection); };
    // So does this, and the message needs a window.
    m_stack.onSkip = [this](const PasteStack::Item&) {
        QMetaObject::invokeMethod(this, &StackWiring::tellOfSkipped, Qt::QueuedConnection);
    };
}

StackWiring::~StackWiring() = default;

PasteStack::ResolvingFiles StackWiring::resolvingFiles() {
    return [this](std::vector<PasteboardItem> items, const std::vector<FileRef>& files) {
        return fileresolution::resolveNow(std::move(items), files, m_hooks.fileStatus, m_fileLimit);
    };
}

void StackWiring::tellOfSkipped() {
    m_hooks.showToast({QStringLiteral("trash.fill"), localised("Skipped a deleted file"), ToastMessage::Tone::warning});
}

void StackWiring::toggle(const std::vector<ClipRef>& seed) {
    if (m_stack.isActive() || m_isStarting) {
        stop();
        return;
    }
    if (!m_parts.target.isTrusted()) {
        qCInfo(logging::paste) << "no Paste Stack: the session does not let us press keys";
        m_hooks.showToast({QStringLiteral("hand.raised.fill"),
                           localised("Paste Stack needs “Allow Vellumry to paste for you”"),
                           ToastMessage::Tone::warning});
        m_parts.target.requestTrust();
        return;
    }
    if (!m_listener.start()) {
        qCWarning(logging::paste) << "no Paste Stack: the paste keys cannot be had";
        m_hooks.showToast(
            {QStringLiteral("exclamationmark.triangle.fill"),
             localised("Paste Stack couldn't start. Turn Vellumry on in Privacy & Security → Accessibility"),
             ToastMessage::Tone::warning});
        return;
    }
    m_hooks.closePanel();
    start(seed);
}

QCoro::Task<void> StackWiring::start(std::vector<ClipRef> seed) {
    const QPointer self(this);
    m_isStarting = true;
    m_seed = seed;
    const quint64 number = ++m_startNumber;
    auto making = stackItems(std::move(seed));
    std::vector<PasteStack::Item> items = co_await making;
    if (!self || number != m_startNumber)
        co_return;
    m_isStarting = false;
    m_seed.clear();
    m_stack.start(std::move(items));
    onStarted();
}

void StackWiring::stop() {
    ++m_startNumber;
    m_isStarting = false;
    m_seed.clear();
    m_stack.stop();
    m_listener.stop();
    onStopped();
}

void StackWiring::finish() {
    // A new stack may have been started meanwhile.
    if (m_stack.isActive() || m_isStarting)
        return;
    m_listener.stop();
    onFinished();
}

void StackWiring::add(const std::vector<ClipRef>& clips) {
    if (m_isStarting) {
        m_hooks.closePanel();
        std::vector<ClipRef> all = m_seed;
        all.insert(all.end(), clips.begin(), clips.end());
        start(std::move(all));
        return;
    }
    if (!m_stack.isActive()) {
        toggle(clips);
        return;
    }
    m_hooks.closePanel();
    enqueue(clips);
}

QCoro::Task<void> StackWiring::enqueue(std::vector<ClipRef> clips) {
    const QPointer self(this);
    auto making = stackItems(std::move(clips));
    std::vector<PasteStack::Item> items = co_await making;
    if (!self)
        co_return;
    for (auto& item : items)
        m_stack.enqueue(std::move(item));
}

QCoro::Task<std::vector<PasteStack::Item>> StackWiring::stackItems(std::vector<ClipRef> clips) {
    const QPointer self(this);
    std::vector<PasteStack::Item> items;
    for (const ClipRef& clip : clips) {
        auto loading = m_parts.store.payload(clip->id);
        std::optional<ClipPayload> payload = co_await loading;
        if (!self)
            co_return items;
        if (!payload)
            continue;
        if (clip->kind == ClipKind::file) {
            auto checking = m_hooks.checkFileAccess(fileresolution::paths(payload->items));
            const FileAccess::Result access = co_await checking;
            if (!self)
                co_return items;
            if (access.blocked) {
                m_hooks.showToast(*toastFor(PasteOutcome::filesBlocked(*access.blocked)));
                continue;
            }
        }
        PasteStack::Item item;
        item.clipID = clip->id;
        item.kind = clip->kind;
        item.isSensitive = clip->isSensitive();
        item.payload = std::move(*payload);
        item.files = clip->files;
        items.push_back(std::move(item));
    }
    co_return items;
}

// What was copied while it runs

void StackWiring::take(const ClipDraft& draft) {
    if (!m_stack.isActive())
        return;
    PasteStack::Item item;
    item.kind = draft.kind;
    item.isSensitive = draft.isSensitive;
    item.payload = draft.payload;
    item.files = draft.files;
    m_stack.enqueue(std::move(item));
    if (draft.kind == ClipKind::file)
        probe(fileresolution::paths(draft.payload.items));
}

/// Should the system ask for the user's consent, then now and not at the paste.
QCoro::Task<void> StackWiring::probe(QStringList paths) {
    auto checking = m_hooks.checkFileAccess(std::move(paths));
    (void)co_await checking;
}

// What is pasted

void StackWiring::handlePaste(std::shared_ptr<HeldKey> key) {
    m_waiting = std::move(key);
    m_intake.start(std::clamp(m_waiting->timeLeft() - 2 * writingTime, 0ms, m_hooks.intakeLimit));
    lookForCopies();
}

/// A copy of a moment ago would be overwritten unseen; this way it is captured, and in the stack, first.
QCoro::Task<void> StackWiring::lookForCopies() {
    const QPointer self(this);
    auto catchingUp = m_parts.pasteboard.catchUp();
    co_await catchingUp;
    if (!self || !m_waiting)
        co_return;
    m_parts.watcher.tick(currentDate());
    if (self && !m_parts.watcher.isReading())
        pasteNow();
}

void StackWiring::pasteNow() {
    const std::shared_ptr<HeldKey> key = std::exchange(m_waiting, nullptr);
    m_intake.stop();
    // A key that has gone pasted what was there; the next item is the next key's.
    if (!key || !key->isHeld())
        return;
    m_fileLimit = std::clamp(key->timeLeft() - writingTime, 0ms, std::chrono::milliseconds(longestFileLook));
    const bool isFresh = m_stack.pasteNext();
    key->letGo(isFresh ? HeldKey::Contents::fresh : HeldKey::Contents::same);
}

/// Where a press is told of when it has been served: the next item goes ahead of its key.
void StackWiring::expectNext() {
    if (!m_parts.keys.wantsNext() || !m_listener.isListening())
        return;
    m_fileLimit = longestFileLook;
    m_parts.keys.expect(m_stack.nextContents());
}

} // namespace vellumry
