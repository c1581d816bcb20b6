// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QCoroTask>
#include <QString>

namespace vellumry {

class Pasteboard;

/// The clipboard as the search field uses it. Asking its owner is a suspension, never a wait: an owner that hangs costs
/// the user that text and nothing else. Main thread.
class FieldPasteboard {
public:
    /// Characters that a search can sensibly have.
    static constexpr qsizetype longest = 1000;

    /// `pasteboard` must outlive this and every answer that is still awaited.
    explicit FieldPasteboard(Pasteboard& pasteboard);

    /// The first line that has words in it, without the space around it; empty where there is no text and where its
    /// owner does not give it.
    [[nodiscard]] QCoro::Task<QString> text();
    /// A copy like that of any application.
    void setText(const QString& text);

private:
    Pasteboard* m_pasteboard;
};

} // namespace vellumry
