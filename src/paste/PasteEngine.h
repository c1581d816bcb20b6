// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "history/clips/Clip.h"
#include "history/clips/TextTransform.h"
#include "paste/PasteOutcome.h"
#include "paste/SystemHooks.h"

#include <QCoroTask>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

namespace vellumry {

class ClipStore;
class UserDefaults;

/// Puts a clip where the user was typing: loads it, finds its files again, writes the pasteboard, records the use, and
/// presses the keys if it may. Nothing throws; each result is an outcome. Keeps no state between two pastes, and asks
/// the settings each time. Main thread. What still runs when the engine goes ends without an effect.
class PasteEngine {
public:
    /// `store`, `preferences` and what `system` names must outlive the engine.
    PasteEngine(ClipStore& store, const UserDefaults& preferences, SystemHooks system);
    PasteEngine(const PasteEngine&) = delete;
    PasteEngine& operator=(const PasteEngine&) = delete;

    /// `isPlain` absent: the user's default. The pasteboard is written before anything that may fail behind it.
    QCoro::Task<PasteOutcome> paste(ClipRef clip, std::optional<bool> isPlain, std::optional<TextTransform> transform);
    /// Never presses a key.
    QCoro::Task<CopyOutcome> copy(ClipRef clip);
    /// Writes a text that is no clip, and delivers it.
    QCoro::Task<PasteOutcome> pasteText(QString text);
    /// Presses the keys for what was written already, if it may and the target has its focus back.
    QCoro::Task<PasteOutcome> deliver();

    /// The items with their files' present URLs; items of files that cannot be had are left out. Nothing when none of
    /// the files can be had.
    [[nodiscard]] QCoro::Task<std::optional<std::vector<PasteboardItem>>>
    resolvingFiles(std::vector<PasteboardItem> items, std::vector<FileRef> files);
    /// One status for each of `files`; nothing when the disk does not answer in time.
    [[nodiscard]] QCoro::Task<std::optional<std::vector<FileStatus>>> fileStatuses(std::vector<FileRef> files);
    /// The paths of the items' files, in their order.
    [[nodiscard]] static QStringList filePaths(const std::vector<PasteboardItem>& items);

    [[nodiscard]] bool isTrusted() const { return m_system.isTrusted(); }

    /// Called when a clip was written to the pasteboard, before anything is done with it.
    std::function<void(const Clip& clip)> onWritten;
    /// Called after keys were really pressed.
    std::function<void()> onPasted;

private:
    [[nodiscard]] bool isPlainByDefault(ClipKind kind) const;
    [[nodiscard]] bool write(const std::vector<PasteboardItem>& items, bool isPlain,
                             std::optional<TextTransform> transform);

    ClipStore* m_store;
    const UserDefaults* m_preferences;
    SystemHooks m_system;
    std::shared_ptr<bool> m_life =
        std::make_shared<bool>(true); ///< tells a waiting task whether the engine still stands
};

} // namespace vellumry
