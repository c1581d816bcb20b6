// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "history/clips/Clip.h"
#include "history/clips/ClipFilter.h"

#include <QString>
#include <QUuid>
#include <chrono>
#include <memory>
#include <optional>
#include <vector>

namespace vellumry {

/// Finds clips by what a reader remembers of them: folded text first, and for text read out of images a comparison that
/// forgives the reader's typical mistakes. Keeps what it folded, so that a keystroke costs one pass over bytes.
///
/// Main thread only. Its owner tells it when the text of a clip changed or a clip went; it never holds a clip alive.
class ClipSearch {
public:
    ClipSearch();
    ~ClipSearch();
    ClipSearch(const ClipSearch&) = delete;
    ClipSearch& operator=(const ClipSearch&) = delete;

    /// Those of `clips` that pass `filter` and match `query`, in the order of `clips`. A blank query matches
    /// everything. A sensitive clip is found by the name of its application only; none of its text is kept here.
    /// With `revision`, a number that changes with every change of `clips`, unchanged clips need not be compared.
    [[nodiscard]] std::vector<ClipRef> search(const std::vector<ClipRef>& clips, const QString& query,
                                              ClipFilter filter, std::optional<qint64> revision = std::nullopt);

    /// Does what the first search would have to, for about `budget`: folds texts and gets to know the clips' order.
    /// True when nothing is left to do. `revision` as for `search`.
    [[nodiscard]] bool prepare(const std::vector<ClipRef>& clips, qint64 revision, std::chrono::microseconds budget);

    /// Bytes that are held for folded texts: at most a few times those of `clips`, however many have gone.
    [[nodiscard]] std::size_t capacity() const;

    /// Wipes the last query. What was folded stays.
    void forgetQuery();
    /// Wipes what was folded of the clip. Call it when anything of its text changed, and when the clip went.
    void forgetText(const QUuid& id);
    /// Wipes the keys of the clip's image text. Call it when that text changed, and when the clip went.
    void forgetLookAlikes(const QUuid& id);

private:
    struct Private;
    std::unique_ptr<Private> d;
};

} // namespace vellumry
