// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/display/PasteboardItem.h"

#include <QString>
#include <optional>
#include <vector>

namespace vellumry {

class Pasteboard;

/// Puts clips back on the pasteboard, each time with the program's own marker on the first item, so that the watcher
/// knows the change for the program's own. Main thread. True means that the pasteboard took the data.
class PasteboardWriter {
public:
    /// Writes the items byte for byte, without what marks a copy for other programs and without types that only meant
    /// something to the program copied from; a refusal leaves the pasteboard empty. As plain text: the text that stands
    /// for the items; without any, false, and the pasteboard keeps what it held.
    [[nodiscard]] static bool write(const std::vector<PasteboardItem>& items, bool asPlainText, Pasteboard& pasteboard);

    /// What `write` would write; nothing where there is no text to write as such.
    [[nodiscard]] static std::optional<std::vector<PasteboardItem>> prepared(const std::vector<PasteboardItem>& items,
                                                                             bool asPlainText);

    /// As `write`, but false where another program has copied since the last owner of the pasteboard went.
    [[nodiscard]] static bool takeOver(const std::vector<PasteboardItem>& items, Pasteboard& pasteboard);

    [[nodiscard]] static bool writeText(const QString& text, Pasteboard& pasteboard);

    /// The item as it goes out from position `index` of its clip: a file URL first, the marker on position 0 only.
    [[nodiscard]] static PasteboardItem makePasteboardItem(const PasteboardItem& item, qsizetype index);
};

} // namespace vellumry
