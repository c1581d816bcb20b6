// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "foundation/Date.h"
#include "history/clips/Clip.h"
#include "platform/display/SourceApp.h"
#include "platform/files/FileBookmarks.h"
#include "platform/files/ImageCodec.h"

#include <QCoroTask>
#include <optional>

namespace vellumry {

/// Makes a draft of what a pasteboard held: decides what kind of thing it is, names it, and says whether it is a
/// secret. Files outrank pictures, pictures outrank text, text outranks a colour, and a picture in an uncommon format
/// counts where there is nothing else. Main thread; holds no state. The
/// seams must outlive it and every task it started.
class DraftBuilder {
public:
    DraftBuilder(const FileBookmarks& bookmarks, ImageCodec& images)
        : m_bookmarks(&bookmarks)
        , m_images(&images) {}

    /// The draft, or nothing for contents that are none of these (a PDF alone, white space alone). Suspends for a
    /// picture, which is opened elsewhere, and for files, whose bookmarks need the disk (at most 2 seconds; what is not
    /// made by then stays out). A thumbnail or bookmark that cannot be made is left out. `now` names screenshots.
    [[nodiscard]] QCoro::Task<std::optional<ClipDraft>> build(ClipPayload payload, SourceApp source, Date now) const;

    /// A picture is among what will be built from: its decoder starts while the bytes still arrive.
    void expectPicture() const { m_images->prepare(); }

private:
    const FileBookmarks* m_bookmarks;
    ImageCodec* m_images;
};

} // namespace vellumry
