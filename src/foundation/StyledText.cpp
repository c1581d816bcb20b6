// SPDX-License-Identifier: GPL-3.0-or-later
#include "foundation/StyledText.h"

#include <algorithm>
#include <cmath>
#include <map>

namespace vellumry {

namespace {

constexpr std::size_t mostRuns = 20'000;

/// A document's sizes as a reader tells them apart.
float stepOf(float ratio) {
    if (ratio < 0.9F)
        return 0.85F;
    if (ratio < 1.1F)
        return 1;
    if (ratio < 1.35F)
        return 1.2F;
    return ratio < 1.75F ? 1.5F : 2.0F;
}

} // namespace

void StyledText::append(QStringView part, const TextStyle& style) {
    if (part.isEmpty())
        return;
    const bool goesOn = !runs.empty() && (runs.back().style == style || runs.size() >= mostRuns);
    if (goesOn)
        runs.back().length += part.size();
    else
        runs.push_back({text.size(), part.size(), style});
    text.append(part);
}

void StyledText::finish() {
    std::map<float, qsizetype> lengths;
    for (const StyledRun& run : runs)
        lengths[run.style.size] += run.length;
    const auto usual = std::ranges::max_element(lengths, {}, [](const auto& entry) { return entry.second; });
    std::vector<StyledRun> kept;
    for (StyledRun& run : runs) {
        run.style.size = usual->first > 0 ? stepOf(run.style.size / usual->first) : 1;
        if (run.style == TextStyle())
            continue;
        if (!kept.empty() && kept.back().style == run.style && kept.back().start + kept.back().length == run.start)
            kept.back().length += run.length;
        else
            kept.push_back(run);
    }
    runs = std::move(kept);
}

} // namespace vellumry
