// SPDX-License-Identifier: GPL-3.0-or-later
#include "settings/Choice.h"

#include <algorithm>
#include <limits>

namespace vellumry {

namespace {

/// 0 stands for no limit, or for none at all, behind all others.
qint64 rank(qint64 value) {
    return value == 0 ? std::numeric_limits<qint64>::max() : value;
}

} // namespace

Choice::Choice(std::vector<qint64> offered, Label label, std::function<void(qint64)> onChosen)
    : m_offered(std::move(offered))
    , m_label(std::move(label))
    , m_onChosen(std::move(onChosen))
    , m_value(m_offered.front()) {}

std::vector<qint64> Choice::listed() const {
    std::vector<qint64> values = m_offered;
    if (std::ranges::find(values, m_value) == values.end())
        values.insert(std::ranges::upper_bound(values, rank(m_value), {}, rank), m_value);
    return values;
}

QStringList Choice::labels() const {
    QStringList labels;
    for (const qint64 value : listed())
        labels.append(m_label(value));
    return labels;
}

int Choice::index() const {
    const std::vector<qint64> values = listed();
    return static_cast<int>(std::ranges::find(values, m_value) - values.begin());
}

void Choice::setValue(qint64 value) {
    if (value == m_value)
        return;
    m_value = value;
    Q_EMIT changed();
}

void Choice::choose(int index) {
    const std::vector<qint64> values = listed();
    if (index >= 0 && static_cast<std::size_t>(index) < values.size())
        m_onChosen(values[static_cast<std::size_t>(index)]);
}

} // namespace vellumry
