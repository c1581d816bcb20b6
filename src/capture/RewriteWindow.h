// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QtGlobal>

namespace vellumry {

/// How soon a program writes one copy a second time: some set the text first and the formats a moment later. The second
/// then replaces the first in the history; where whole copies are needed, the first is held back for as long. Reading
/// never waits for this, so nothing is lost of a burst of copies. A value over a monotonic clock in milliseconds.
class RewriteWindow {
public:
    static constexpr qint64 usual = 20;    ///< from the notice of a copy to that of the same once more
    static constexpr qint64 longest = 250; ///< the same when the next copy came in this time and is still being read

    explicit RewriteWindow(qint64 noticedAt)
        : m_noticedAt(noticedAt)
        , m_end(noticedAt + usual) {}

    /// The next copy was noticed.
    void noteNext(qint64 noticedAt, bool isRead);
    /// True when a copy that was noticed then may be the same once more.
    [[nodiscard]] bool covers(qint64 noticedAt) const { return noticedAt < m_noticedAt + usual; }
    /// When the copy is delivered if it is held back.
    [[nodiscard]] qint64 end() const { return m_end; }

private:
    qint64 m_noticedAt;
    qint64 m_end;
};

} // namespace vellumry
