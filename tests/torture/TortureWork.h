// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "history/clips/ClipStore.h"
#include "torture/FailingDisk.h"
#include "torture/TortureModel.h"

#include <random>

namespace vellumry {

/// The text, version and padding of the clips that the work is done with.
namespace tortureclips {
[[nodiscard]] ClipDraft draft(int clip, int version, bool isSensitive, qsizetype padding);
[[nodiscard]] int numberOf(const Clip& clip);
/// The version, when the whole payload is as it was made.
[[nodiscard]] std::optional<int> versionOf(int clip, const ClipPayload& payload);
} // namespace tortureclips

/// Does at random what a program does to its history, and says so: "b", the step, before it begins; "e", "1" or, when
/// the disk failed meanwhile, "0" after the store has reported. Never ends by itself.
class TortureWork {
public:
    struct Start {
        unsigned seed;
        Date now;
        int nextClip;
        int output; ///< where the lines go
    };
    /// `disk` may be null.
    TortureWork(ClipStore& store, const FailingDisk* disk, Start start);
    void run(int steps);

    static constexpr double lifetime = 25;

private:
    [[nodiscard]] bool isLucky(unsigned oneIn) { return m_random() % oneIn == 0; }
    [[nodiscard]] ClipRef anyClip();
    [[nodiscard]] std::vector<int> dueClips() const;
    void write(int clip, bool isPinned);
    void useOrPin(const ClipRef& clip);
    void removeSome();
    void expire();
    void begin(const TortureStep& step);
    void end(bool isReported = true);
    void say(const QByteArray& line) const;

    ClipStore* m_store;
    const FailingDisk* m_disk;
    Start m_start;
    std::mt19937 m_random;
    Date m_now;
    int m_nextClip;
    int m_version = 0;
    int m_failuresBefore = 0;
};

} // namespace vellumry
