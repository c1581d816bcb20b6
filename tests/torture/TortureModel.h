// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "foundation/Date.h"

#include <QByteArray>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace vellumry {

/// What a history may hold of one clip.
struct TortureState {
    bool isPresent = false;
    int version = 0; ///< of the payload
    bool isPinned = false;
    std::optional<Date> expires;
    Date used = 0;

    bool operator==(const TortureState&) const = default;
    [[nodiscard]] std::string description() const;
};

/// One operation on the store, as a line that the working process writes before it begins.
struct TortureStep {
    enum class Kind { write, use, pin, unpin, remove };
    Kind kind = Kind::write;
    int clip = 0;
    TortureState written;    ///< `write`: all of it; `use`: the date; `pin`: whether it had an expiry to lose
    std::vector<int> others; ///< also removed by it: expired clips, further deletions

    [[nodiscard]] QByteArray line() const;
    [[nodiscard]] static TortureStep of(const QByteArray& line);
};

/// What was acknowledged, and what therefore must be, may be and must not be found after the working process has died.
class TortureModel {
public:
    /// A step of which it is known that it was done, or not known whether, or how much of it.
    void done(const TortureStep& step);
    void maybeDone(const TortureStep& step);
    /// Compares with all that was found, by clip; from now on each is known to be as it was found. Says what is wrong;
    /// empty when nothing is.
    [[nodiscard]] std::string settle(const std::map<int, TortureState>& found);

    [[nodiscard]] int acknowledged() const { return m_acknowledged; }

private:
    void apply(const TortureStep& step, bool isSure);
    /// By clip, all states that are possible; a clip without an entry is absent.
    std::map<int, std::vector<TortureState>> m_possible;
    int m_acknowledged = 0;
};

} // namespace vellumry
