// SPDX-License-Identifier: GPL-3.0-or-later
#include "torture/TortureModel.h"

#include <QList>
#include <algorithm>

namespace vellumry {

namespace {

void addState(std::vector<TortureState>& states, const TortureState& state) {
    if (std::ranges::find(states, state) == states.end())
        states.push_back(state);
}

/// What becomes of a row; the last is what the whole step leaves, those before it what half of it may leave.
std::vector<TortureState> outcomes(const TortureStep& step, TortureState state) {
    switch (step.kind) {
    case TortureStep::Kind::write:
        return {step.written};
    case TortureStep::Kind::remove:
        return {TortureState()};
    case TortureStep::Kind::use:
        if (state.isPresent)
            state.used = step.written.used;
        return {state};
    case TortureStep::Kind::unpin:
        state.isPinned = false;
        return {state};
    case TortureStep::Kind::pin:
        break;
    }
    if (!state.isPresent)
        return {state};
    TortureState rescued = state;
    rescued.expires.reset();
    state.isPinned = true;
    if (!step.written.expires)
        return {state};
    // The rescue of a secret is two statements, and the second is tried even if the first failed.
    std::vector<TortureState> states{state, rescued, rescued};
    states.back().isPinned = true;
    return states;
}

QByteArray number(std::optional<Date> date) {
    return date ? QByteArray::number(*date, 'f', 0) : QByteArray("-");
}

} // namespace

std::string TortureState::description() const {
    if (!isPresent)
        return "absent";
    return "version " + std::to_string(version) + (isPinned ? " pinned" : "") + " expires " +
           number(expires).toStdString() + " used " + number(used).toStdString();
}

QByteArray TortureStep::line() const {
    QByteArray line = QByteArray::number(static_cast<int>(kind)) + ' ' + QByteArray::number(clip) + ' ' +
                      QByteArray::number(written.version) + ' ' + (written.isPinned ? '1' : '0') + ' ' +
                      number(written.expires) + ' ' + number(written.used);
    for (const int other : others)
        line += ' ' + QByteArray::number(other);
    return line;
}

TortureStep TortureStep::of(const QByteArray& line) {
    const QList<QByteArray> words = line.split(' ');
    TortureStep step;
    step.kind = static_cast<Kind>(words.at(0).toInt());
    step.clip = words.at(1).toInt();
    step.written.isPresent = step.kind == Kind::write;
    step.written.version = words.at(2).toInt();
    step.written.isPinned = words.at(3) == "1";
    if (words.at(4) != "-")
        step.written.expires = words.at(4).toDouble();
    step.written.used = words.at(5).toDouble();
    for (qsizetype i = 6; i < words.size(); ++i)
        step.others.push_back(words.at(i).toInt());
    return step;
}

void TortureModel::done(const TortureStep& step) {
    ++m_acknowledged;
    apply(step, true);
}

void TortureModel::maybeDone(const TortureStep& step) {
    apply(step, false);
}

void TortureModel::apply(const TortureStep& step, bool isSure) {
    std::vector<TortureState> before = m_possible[step.clip];
    if (before.empty())
        before.emplace_back();
    std::vector<TortureState> after = isSure ? std::vector<TortureState>() : before;
    for (const TortureState& state : before) {
        const std::vector<TortureState> states = outcomes(step, state);
        for (std::size_t i = isSure ? states.size() - 1 : 0; i < states.size(); ++i)
            addState(after, states[i]);
    }
    m_possible[step.clip] = std::move(after);
    for (const int other : step.others) {
        std::vector<TortureState>& states = m_possible[other];
        if (isSure)
            states.clear();
        addState(states, TortureState());
    }
}

std::string TortureModel::settle(const std::map<int, TortureState>& found) {
    std::string wrong;
    for (const auto& [clip, state] : found) {
        if (!m_possible.contains(clip))
            wrong += "clip " + std::to_string(clip) + " came from nowhere: " + state.description() + "\n";
    }
    std::map<int, std::vector<TortureState>> settled;
    for (const auto& [clip, states] : m_possible) {
        const auto at = found.find(clip);
        const TortureState state = at == found.end() ? TortureState() : at->second;
        if (std::ranges::find(states, state) == states.end()) {
            wrong += "clip " + std::to_string(clip) + " is " + state.description() + ", expected";
            for (const TortureState& possible : states)
                wrong += " [" + possible.description() + "]";
            wrong += "\n";
        }
        if (state.isPresent)
            settled[clip] = {state};
    }
    m_possible = std::move(settled);
    return wrong;
}

} // namespace vellumry
