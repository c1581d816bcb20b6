// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QImage>
#include <vector>

namespace vellumry {

/// A page of text that is enlarged for reading, one part at a time: the whole of it would take up to nine times the
/// memory of the picture. All places are those of the page before it is enlarged. A value; any thread.
class ReadingPage {
public:
    /// `page` is Grayscale8, dark on white.
    ReadingPage(QImage page, double enlargement)
        : m_page(std::move(page))
        , m_enlargement(enlargement) {}

    /// Bands that cover the page, each small enough to be read at once.
    [[nodiscard]] std::vector<QRect> bands() const;
    /// What lies in `box`, enlarged.
    [[nodiscard]] QImage part(const QRect& box) const;
    /// `box`, found in the part that begins at `origin`.
    [[nodiscard]] QRect onPage(const QRect& box, const QPoint& origin) const;

    [[nodiscard]] QRect rect() const { return m_page.rect(); }

private:
    QImage m_page;
    double m_enlargement;
};

} // namespace vellumry
