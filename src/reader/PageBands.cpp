// SPDX-License-Identifier: GPL-3.0-or-later
#include "reader/PageBands.h"

#include <algorithm>

namespace vellumry::pagebands {

namespace {

qint64 darkness(const QImage& page, int row) {
    const uchar* pixels = page.constScanLine(row);
    qint64 sum = 0;
    for (int x = 0; x < page.width(); ++x)
        sum += 255 - pixels[x];
    return sum;
}

/// The row from `first` up to `last` with the least on it, the lowest of several. Of empty rows the middle one of the
/// lowest run, so that letters on both sides keep some paper: an ascender at the very edge is not read.
int emptiestRow(const QImage& page, int first, int last) {
    int best = last;
    qint64 least = darkness(page, last);
    for (int row = last - 1; row >= first && least > 0; --row) {
        if (const qint64 found = darkness(page, row); found < least) {
            least = found;
            best = row;
        }
    }
    int top = best;
    while (least == 0 && top > first && darkness(page, top - 1) == 0)
        --top;
    return (top + best) / 2;
}

} // namespace

std::vector<QRect> of(const QImage& page, qint64 wholeUpTo, qint64 area) {
    const int width = page.width();
    if (page.isNull() || static_cast<qint64>(width) * page.height() <= wholeUpTo)
        return {page.rect()};
    const int most = static_cast<int>(std::clamp<qint64>(area / width, 1, page.height()));
    std::vector<QRect> bands;
    int top = 0;
    while (page.height() - top > most) {
        const int cut = emptiestRow(page, top + most - most / 3, top + most - 1) + 1;
        bands.emplace_back(0, top, width, cut - top);
        top = cut;
    }
    bands.emplace_back(0, top, width, page.height() - top);
    return bands;
}

} // namespace vellumry::pagebands
