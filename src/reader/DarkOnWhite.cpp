// SPDX-License-Identifier: GPL-3.0-or-later
#include "reader/DarkOnWhite.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdlib>
#include <vector>

namespace vellumry::darkonwhite {

namespace {

/// Neighbours that differ by no more belong to one ground: gradients and the noise of compression.
constexpr int smoothStep = 6;
/// A ground holds a square of this side somewhere; the strokes of letters are thinner.
constexpr int groundSide = 11;
/// Or a straight line of this length: the rim of a label that fits its words closely, a rule, a border. Letters have
/// none of it.
constexpr int lineLength = 48;
/// What lies farther from any ground is part of a photograph.
constexpr int farFromGround = 60;
/// Contrast below this is noise and stays faint.
constexpr int leastContrast = 40;
constexpr int tileSide = 24;
/// So many pixels are looked at together, and so many rows above and below them, from where a ground reaches in:
/// farther than `farFromGround` and `lineLength`.
constexpr int slabArea = 2'000'000;
constexpr int slabMargin = 128;
constexpr int leastSlab = 128;
constexpr double bestLetterHeight = 22;
constexpr double largestEnlargement = 3;

int difference(QRgb a, QRgb b) {
    return std::max({std::abs(qRed(a) - qRed(b)), std::abs(qGreen(a) - qGreen(b)), std::abs(qBlue(a) - qBlue(b))});
}

/// Pixels in rows, without padding.
template <typename Value>
class Grid {
public:
    Grid(int width, int height, Value value)
        : m_width(width)
        , m_values(static_cast<std::size_t>(width) * static_cast<std::size_t>(height), value) {}
    Value& at(int x, int y) { return m_values[static_cast<std::size_t>(y) * static_cast<std::size_t>(m_width) + x]; }

private:
    std::size_t m_width;
    std::vector<Value> m_values;
};

/// Finds the grounds of a picture, and for each pixel the ground that it stands on.
class Grounds {
public:
    explicit Grounds(const QImage& picture)
        : m_picture(picture)
        , m_nearest(picture.width(), picture.height(), QRgb())
        , m_distance(picture.width(), picture.height(), nowhere) {
        markSeeds();
        grow(edgeOfSeeds());
        spread();
    }

    /// How much a pixel differs from its ground, 0 to 255.
    int contrastAt(int x, int y) {
        if (m_distance.at(x, y) > farFromGround)
            return 255 - qGray(pixel(x, y));
        return difference(pixel(x, y), m_nearest.at(x, y));
    }

private:
    static constexpr quint16 nowhere = 0xFFFF;
    static constexpr std::array<QPoint, 4> steps{QPoint(1, 0), QPoint(-1, 0), QPoint(0, 1), QPoint(0, -1)};

    [[nodiscard]] QRgb pixel(int x, int y) const {
        return reinterpret_cast<const QRgb*>(m_picture.constScanLine(y))[x];
    }

    [[nodiscard]] bool isLike(int x, int y, int otherX, int otherY) const {
        return difference(pixel(x, y), pixel(otherX, otherY)) <= smoothStep;
    }

    /// The lower right corners of smooth squares, and the ends of smooth lines.
    void markSeeds() {
        Grid<quint8> squares(m_picture.width(), 2, 0);
        Grid<quint8> columns(m_picture.width(), 1, 0);
        for (int y = 1; y < m_picture.height(); ++y) {
            int row = 0;
            for (int x = 1; x < m_picture.width(); ++x) {
                row = isLike(x, y, x - 1, y) ? std::min(row + 1, lineLength) : 0;
                quint8& column = columns.at(x, 0);
                column = isLike(x, y, x, y - 1) ? static_cast<quint8>(std::min(column + 1, lineLength)) : quint8{0};
                const int before =
                    std::min({squares.at(x - 1, y % 2), squares.at(x, (y - 1) % 2), squares.at(x - 1, (y - 1) % 2)});
                const int side = row > 0 && column > 0 ? std::min(before + 1, groundSide) : 0;
                squares.at(x, y % 2) = static_cast<quint8>(side);
                if (side == groundSide || row == lineLength || column == lineLength)
                    mark(x, y);
            }
        }
    }

    void mark(int x, int y) {
        m_distance.at(x, y) = 0;
        m_nearest.at(x, y) = pixel(x, y);
    }

    [[nodiscard]] bool isGround(const QPoint& point) { return m_distance.at(point.x(), point.y()) == 0; }

    /// The marked pixels beside others: few, where all of them would take more memory than the picture.
    std::vector<QPoint> edgeOfSeeds() {
        std::vector<QPoint> edge;
        for (int y = 0; y < m_picture.height(); ++y) {
            for (int x = 0; x < m_picture.width(); ++x) {
                const QPoint point(x, y);
                const auto isOther = [this, point](const QPoint& step) {
                    return m_picture.valid(point + step) && !isGround(point + step);
                };
                if (isGround(point) && std::ranges::any_of(steps, isOther))
                    edge.push_back(point);
            }
        }
        return edge;
    }

    /// From the squares to all that hangs together with them.
    void grow(std::vector<QPoint> edge) {
        while (!edge.empty()) {
            const QPoint from = edge.back();
            edge.pop_back();
            for (const QPoint& step : steps) {
                const QPoint to = from + step;
                if (!m_picture.valid(to) || isGround(to) || !isLike(from.x(), from.y(), to.x(), to.y()))
                    continue;
                mark(to.x(), to.y());
                edge.push_back(to);
            }
        }
    }

    /// Two passes, as a distance transform goes.
    void spread() {
        for (int y = 0; y < m_picture.height(); ++y) {
            for (int x = 0; x < m_picture.width(); ++x) {
                borrow(x, y, x - 1, y);
                borrow(x, y, x, y - 1);
            }
        }
        for (int y = m_picture.height() - 1; y >= 0; --y) {
            for (int x = m_picture.width() - 1; x >= 0; --x) {
                borrow(x, y, x + 1, y);
                borrow(x, y, x, y + 1);
            }
        }
    }

    void borrow(int x, int y, int fromX, int fromY) {
        if (!m_picture.valid(fromX, fromY) || m_distance.at(fromX, fromY) >= nowhere - 1)
            return;
        const auto distance = static_cast<quint16>(m_distance.at(fromX, fromY) + 1);
        if (distance >= m_distance.at(x, y))
            return;
        m_distance.at(x, y) = distance;
        m_nearest.at(x, y) = m_nearest.at(fromX, fromY);
    }

    const QImage& m_picture;
    Grid<QRgb> m_nearest;
    Grid<quint16> m_distance;
};

/// The greatest darkness in and around each tile, so that faint text can be made as dark as strong text.
Grid<quint8> greatestAround(const QImage& contrast, int columns, int rows) {
    Grid<quint8> tiles(columns, rows, leastContrast);
    for (int y = 0; y < contrast.height(); ++y) {
        const uchar* line = contrast.constScanLine(y);
        for (int x = 0; x < contrast.width(); ++x)
            tiles.at(x / tileSide, y / tileSide) = std::max(tiles.at(x / tileSide, y / tileSide), line[x]);
    }
    Grid<quint8> around = tiles;
    for (int row = 0; row < rows; ++row) {
        for (int column = 0; column < columns; ++column) {
            for (const int beside : {-1, 1}) {
                if (column + beside >= 0 && column + beside < columns)
                    around.at(column, row) = std::max(around.at(column, row), tiles.at(column + beside, row));
            }
        }
    }
    return around;
}

/// Counts the heights of what hangs together in a picture of ink.
class Letters {
public:
    explicit Letters(const QImage& picture)
        : m_picture(picture)
        , m_isSeen(picture.width(), picture.height(), 0) {}

    std::vector<int> heights() {
        std::vector<int> found;
        for (int y = 0; y < m_picture.height(); ++y) {
            for (int x = 0; x < m_picture.width(); ++x) {
                if (!isFreshInk(x, y))
                    continue;
                const QRect box = follow(x, y);
                constexpr int lowest = 4;
                constexpr int highest = 80;
                if (box.height() >= lowest && box.height() <= highest && box.width() <= 3 * box.height())
                    found.push_back(box.height());
            }
        }
        return found;
    }

private:
    bool isFreshInk(int x, int y) { return m_picture.constScanLine(y)[x] < 128 && !m_isSeen.at(x, y); }

    QRect follow(int startX, int startY) {
        QRect box(startX, startY, 1, 1);
        std::vector<QPoint> open{QPoint(startX, startY)};
        m_isSeen.at(startX, startY) = 1;
        while (!open.empty()) {
            const QPoint point = open.back();
            open.pop_back();
            box |= QRect(point, QSize(1, 1));
            for (int y = std::max(point.y() - 1, 0); y <= std::min(point.y() + 1, m_picture.height() - 1); ++y) {
                for (int x = std::max(point.x() - 1, 0); x <= std::min(point.x() + 1, m_picture.width() - 1); ++x) {
                    if (!isFreshInk(x, y))
                        continue;
                    m_isSeen.at(x, y) = 1;
                    open.emplace_back(x, y);
                }
            }
        }
        return box;
    }

    const QImage& m_picture;
    Grid<quint8> m_isSeen;
};

/// How much each pixel of the rows from `top` to `end` differs from its ground. Only so many rows at a time, because
/// finding the grounds takes ten bytes for a pixel.
void findContrast(const QImage& picture, int top, int end, QImage& result) {
    const int first = std::max(0, top - slabMargin);
    const int height = std::min(end + slabMargin, picture.height()) - first;
    const QImage colours = picture.copy(0, first, picture.width(), height).convertToFormat(QImage::Format_RGB32);
    Grounds grounds(colours);
    for (int y = top; y < end; ++y) {
        uchar* line = result.scanLine(y);
        for (int x = 0; x < result.width(); ++x)
            line[x] = static_cast<uchar>(grounds.contrastAt(x, y - first));
    }
}

/// From contrast, dark on black, to ink on white.
void darkenFaintText(QImage& result) {
    const int columns = (result.width() + tileSide - 1) / tileSide;
    const int rows = (result.height() + tileSide - 1) / tileSide;
    Grid<quint8> greatest = greatestAround(result, columns, rows);
    for (int y = 0; y < result.height(); ++y) {
        uchar* line = result.scanLine(y);
        for (int x = 0; x < result.width(); ++x)
            line[x] = static_cast<uchar>(255 - std::min(255, line[x] * 255 / greatest.at(x / tileSide, y / tileSide)));
    }
}

} // namespace

QImage cleaned(const QImage& picture) {
    QImage result(picture.size(), QImage::Format_Grayscale8);
    const int rows = std::max(leastSlab, slabArea / std::max(1, picture.width()));
    for (int top = 0; top < picture.height(); top += rows)
        findContrast(picture, top, std::min(top + rows, picture.height()), result);
    darkenFaintText(result);
    return result;
}

int letterHeight(const QImage& picture) {
    std::vector<int> heights = Letters(picture).heights();
    if (heights.empty())
        return 0;
    const auto middle = heights.begin() + static_cast<std::ptrdiff_t>(heights.size() / 2);
    std::nth_element(heights.begin(), middle, heights.end());
    return *middle;
}

double enlargement(int letterHeight, const QSize& size, double maxArea) {
    if (letterHeight < 1 || size.isEmpty())
        return 1;
    const double wanted = std::clamp(bestLetterHeight / letterHeight, 1.0, largestEnlargement);
    const double area = static_cast<double>(size.width()) * size.height();
    return std::max(1.0, std::min(wanted, std::sqrt(maxArea / area)));
}

} // namespace vellumry::darkonwhite
