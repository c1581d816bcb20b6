// SPDX-License-Identifier: GPL-3.0-or-later
#include "panel/PanelListRows.h"

#include <algorithm>

namespace vellumry {

PanelListRows::PanelListRows(const PanelSections::Listing& listing)
    : m_clips(listing.clips) {
    m_headers.reserve(listing.sections.size());
    int row = 0;
    for (const PanelSections::Section& section : listing.sections) {
        m_headers.push_back({row, section.title});
        row += 1 + static_cast<int>(section.clips.size());
    }
    m_count = row;
}

int PanelListRows::wholeCount() const {
    return m_clips == nullptr ? 0 : static_cast<int>(m_clips->size() + m_headers.size());
}

void PanelListRows::cut(int count) {
    m_count = std::min(count, wholeCount());
}

std::size_t PanelListRows::headerOf(int row) const {
    const auto holds = [&](std::size_t index) {
        return m_headers[index].row <= row && (index + 1 == m_headers.size() || row < m_headers[index + 1].row);
    };
    if (m_lastHeader >= m_headers.size() || !holds(m_lastHeader)) {
        const auto below = std::ranges::upper_bound(m_headers, row, {}, &Header::row);
        m_lastHeader = static_cast<std::size_t>(below - m_headers.begin()) - 1;
    }
    return m_lastHeader;
}

const Clip* PanelListRows::peek(int row) const {
    const std::size_t header = headerOf(row);
    return m_headers[header].row == row ? nullptr : (*m_clips)[static_cast<std::size_t>(row) - header - 1].get();
}

ClipRef PanelListRows::clipAt(int row) const {
    const std::size_t header = headerOf(row);
    return m_headers[header].row == row ? nullptr : (*m_clips)[static_cast<std::size_t>(row) - header - 1];
}

const QString* PanelListRows::headerAt(int row) const {
    const Header& header = m_headers[headerOf(row)];
    return header.row == row ? &header.title : nullptr;
}

std::optional<int> PanelListRows::rowOfClip(qsizetype index) const {
    if (index < 0)
        return std::nullopt;
    // One header stands above each section, so a clip lies as many rows lower as sections begin up to it.
    auto row = static_cast<int>(index);
    for (const Header& header : m_headers) {
        if (header.row > row)
            break;
        ++row;
    }
    return row < m_count ? std::optional(row) : std::nullopt;
}

std::optional<int> PanelListRows::rowOf(const QUuid& id) const {
    if (m_clips == nullptr)
        return std::nullopt;
    const auto found = std::ranges::find(*m_clips, id, [](const ClipRef& clip) { return clip->id; });
    return found == m_clips->end() ? std::nullopt : rowOfClip(found - m_clips->begin());
}

int PanelListRows::headersIn(Run run) const {
    return static_cast<int>(std::ranges::count_if(
        m_headers, [&](const Header& header) { return header.row >= run.row && header.row < run.row + run.count; }));
}

bool PanelListRows::isSameRow(int row, const PanelListRows& other, int otherRow) const {
    const Clip* const one = peek(row);
    const Clip* const two = other.peek(otherRow);
    if (one == two)
        return one != nullptr || *headerAt(row) == *other.headerAt(otherRow);
    return one != nullptr && two != nullptr && one->id == two->id;
}

std::optional<PanelListRows::Run> PanelListRows::runBeyond(const PanelListRows& shorter) const {
    if (shorter.m_count >= m_count)
        return std::nullopt;
    const int beyond = m_count - shorter.m_count;
    int first = 0;
    while (first < shorter.m_count && isSameRow(first, shorter, first))
        ++first;
    for (int row = first; row < shorter.m_count; ++row) {
        if (!isSameRow(row + beyond, shorter, row))
            return std::nullopt;
    }
    return Run{first, beyond};
}

} // namespace vellumry
