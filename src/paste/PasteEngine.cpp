// SPDX-License-Identifier: GPL-3.0-or-later
#include "paste/PasteEngine.h"

#include "foundation/Logging.h"
#include "foundation/UserDefaults.h"
#include "history/clips/ClipStore.h"
#include "paste/FileResolution.h"
#include "paste/PasteboardWriter.h"

#include <array>
#include <chrono>

namespace vellumry {

namespace {

/// For files that are not where they were, all of them together: well within what a whole look at the disk may take.
constexpr std::chrono::milliseconds lookingTime{1500};

PasteOutcome copiedOnly(PasteReason reason) {
    constexpr std::array words{"the session does not let us press keys",
                               "a password field, or a keyboard that is taken", "switched off",
                               "the window did not get its focus back"};
    qCInfo(logging::paste) << "copied without a paste:" << words.at(static_cast<std::size_t>(reason));
    return PasteOutcome::copiedOnly(reason);
}

PasteOutcome refused(PasteOutcome outcome, const char* why) {
    qCInfo(logging::paste) << "not pasted:" << why;
    return outcome;
}

constexpr auto filesGone = "the files of the clip are gone";
constexpr auto filesBlocked = "the files of the clip may not be read";
constexpr auto notWritten = "the clipboard was not written";

} // namespace

PasteEngine::PasteEngine(ClipStore& store, const UserDefaults& preferences, SystemHooks system)
    : m_store(&store)
    , m_preferences(&preferences)
    , m_system(std::move(system)) {}

QCoro::Task<PasteOutcome> PasteEngine::paste(ClipRef clip, std::optional<bool> isPlain,
                                             std::optional<TextTransform> transform) {
    const std::weak_ptr<bool> life = m_life;
    auto loading = m_store->payload(clip->id);
    auto payload = co_await loading;
    if (life.expired() || !payload)
        co_return PasteOutcome::failed();
    auto items = std::move(payload->items);
    if (clip->kind == ClipKind::file) {
        auto resolving = resolvingFiles(std::move(items), clip->files);
        auto resolved = co_await resolving;
        if (life.expired())
            co_return PasteOutcome::failed();
        if (!resolved)
            co_return refused(PasteOutcome::fileMissing(), filesGone);
        items = std::move(*resolved);
    }

    const bool goesOutPlain = isPlain.value_or(isPlainByDefault(clip->kind));
    // The names of files can be pasted whether or not the files may be read.
    if (clip->kind == ClipKind::file && !goesOutPlain && !transform) {
        auto paths = filePaths(items);
        auto checking = m_system.checkFileAccess(std::move(paths));
        const auto access = co_await checking;
        if (life.expired())
            co_return PasteOutcome::failed();
        if (access.blocked)
            co_return refused(PasteOutcome::filesBlocked(*access.blocked), filesBlocked);
    }

    if (!write(items, goesOutPlain, transform))
        co_return refused(PasteOutcome::failed(), notWritten);
    if (onWritten)
        onWritten(*clip);
    const Date now = m_system.now();
    auto marking = m_store->markUsed(clip->id, now);
    co_await marking;
    if (life.expired())
        co_return PasteOutcome::failed();
    auto delivering = deliver();
    co_return co_await delivering;
}

QCoro::Task<CopyOutcome> PasteEngine::copy(ClipRef clip) {
    const std::weak_ptr<bool> life = m_life;
    auto loading = m_store->payload(clip->id);
    auto payload = co_await loading;
    if (life.expired() || !payload)
        co_return CopyOutcome::failed();
    auto items = std::move(payload->items);
    if (clip->kind == ClipKind::file) {
        auto resolving = resolvingFiles(std::move(items), clip->files);
        auto resolved = co_await resolving;
        if (life.expired())
            co_return CopyOutcome::failed();
        if (!resolved)
            co_return CopyOutcome::fileMissing();
        items = std::move(*resolved);
        auto paths = filePaths(items);
        auto checking = m_system.checkFileAccess(std::move(paths));
        const auto access = co_await checking;
        if (life.expired())
            co_return CopyOutcome::failed();
        if (access.blocked)
            co_return CopyOutcome::filesBlocked(*access.blocked);
    }

    if (!PasteboardWriter::write(items, false, *m_system.pasteboard))
        co_return CopyOutcome::failed();
    if (onWritten)
        onWritten(*clip);
    const Date now = m_system.now();
    auto marking = m_store->markUsed(clip->id, now);
    co_await marking;
    co_return CopyOutcome::copied();
}

QCoro::Task<PasteOutcome> PasteEngine::pasteText(QString text) {
    if (!PasteboardWriter::writeText(text, *m_system.pasteboard))
        co_return refused(PasteOutcome::failed(), notWritten);
    auto delivering = deliver();
    co_return co_await delivering;
}

QCoro::Task<PasteOutcome> PasteEngine::deliver() {
    // The order decides what the user is told: with direct paste off, a password field makes no difference.
    if (!m_preferences->boolean(QStringLiteral("pasteDirectly")))
        co_return copiedOnly(PasteReason::directPasteOff);
    if (!m_system.isTrusted())
        co_return copiedOnly(PasteReason::notTrusted);
    const std::weak_ptr<bool> life = m_life;
    // The field's application is asked while the panel goes; the two waits overlap.
    const auto settling = m_system.sleep(m_system.settleDelay);
    auto asking = m_system.isSecureInput();
    const bool isSecureInput = co_await asking;
    if (life.expired())
        co_return PasteOutcome::failed();
    if (isSecureInput)
        co_return copiedOnly(PasteReason::secureInput);

    co_await settling;
    if (life.expired())
        co_return PasteOutcome::failed();
    // Keys that reach another window than the user typed in would do there whatever they mean there.
    auto regaining = m_system.regainFocus();
    const bool hasFocus = co_await regaining;
    if (life.expired())
        co_return PasteOutcome::failed();
    if (!hasFocus)
        co_return copiedOnly(PasteReason::targetGone);
    m_system.pressPaste();
    qCInfo(logging::paste) << "pasted";
    if (onPasted)
        onPasted();
    co_return PasteOutcome::pasted();
}

QCoro::Task<std::optional<std::vector<PasteboardItem>>> PasteEngine::resolvingFiles(std::vector<PasteboardItem> items,
                                                                                    std::vector<FileRef> files) {
    auto asked = fileresolution::references(items, files);
    if (asked.empty())
        co_return std::nullopt;
    auto asking = fileStatuses(std::move(asked));
    const auto statuses = co_await asking;
    if (!statuses)
        co_return items; // a disk that does not answer proves nothing
    co_return fileresolution::resolved(std::move(items), *statuses);
}

QCoro::Task<std::optional<std::vector<FileStatus>>> PasteEngine::fileStatuses(std::vector<FileRef> files) {
    // The job owns what it uses: it may outlive the engine on a disk that hangs.
    SystemHooks::FileJob job = [files = std::move(files), check = m_system.fileStatus] {
        return fileresolution::statusesOf(files, check, lookingTime);
    };
    auto running = m_system.runFileJob(std::move(job));
    co_return co_await running;
}

QStringList PasteEngine::filePaths(const std::vector<PasteboardItem>& items) {
    return fileresolution::paths(items);
}

bool PasteEngine::isPlainByDefault(ClipKind kind) const {
    const bool hasPlainForm = kind == ClipKind::text || kind == ClipKind::richText || kind == ClipKind::link;
    return hasPlainForm && m_preferences->boolean(QStringLiteral("plainTextByDefault"));
}

bool PasteEngine::write(const std::vector<PasteboardItem>& items, bool isPlain,
                        std::optional<TextTransform> transform) {
    if (transform) {
        if (const auto text = plainText(items))
            return PasteboardWriter::writeText(apply(*transform, *text), *m_system.pasteboard);
    }
    return PasteboardWriter::write(items, isPlain, *m_system.pasteboard);
}

} // namespace vellumry
