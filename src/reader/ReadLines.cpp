// SPDX-License-Identifier: GPL-3.0-or-later
#include "reader/ReadLines.h"

#include <algorithm>

namespace vellumry::readlines {

namespace {

/// Confidence is no exact science: a smaller gain is chance.
constexpr double clearGain = 3;
/// A line that only one of two readings saw is often a picture taken for text.
constexpr double confident = 75;

double area(const QRect& box) {
    return box.isEmpty() ? 0 : static_cast<double>(box.width()) * box.height();
}

double overlap(const QRect& a, const QRect& b) {
    return area(a & b) / std::max(1.0, area(a) + area(b) - area(a & b));
}

} // namespace

double confidence(const Lines& lines) {
    double sum = 0;
    double length = 0;
    for (const TextLine& line : lines) {
        sum += line.confidence * static_cast<double>(line.text.size());
        length += static_cast<double>(line.text.size());
    }
    return length > 0 ? sum / length : 0;
}

Lines samples(const Lines& lines, std::size_t count) {
    Lines sorted = lines;
    std::ranges::stable_sort(sorted, std::ranges::greater(), [](const TextLine& line) { return line.box.width(); });
    sorted.resize(std::min(sorted.size(), count));
    return sorted;
}

void improve(Lines& lines, const Lines& others) {
    constexpr double same = 0.6;
    const Lines before = lines;
    for (const TextLine& other : others) {
        bool isNew = other.confidence >= confident;
        for (std::size_t index = 0; index < before.size(); ++index) {
            isNew = isNew && !before[index].box.intersects(other.box);
            if (overlap(before[index].box, other.box) >= same &&
                other.confidence >= lines[index].confidence + clearGain)
                lines[index] = other;
        }
        if (isNew)
            lines.push_back(other);
    }
}

QString joined(const Lines& lines) {
    QString text;
    for (const TextLine& line : lines)
        text += line.text + u'\n';
    return text;
}

} // namespace vellumry::readlines
