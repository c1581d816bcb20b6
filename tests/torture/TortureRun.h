// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "history/file/MemoryKeyStore.h"
#include "torture/TortureModel.h"

#include <QTemporaryDir>
#include <random>
#include <string>

namespace vellumry {

/// What goes wrong.
enum class Torture {
    kill,  ///< the process is killed at any instant
    disk,  ///< the disk is full, breaks off, reports errors; and the process is killed
    power, ///< what was not synced is lost, wholly or in part
};

/// One history through many rounds: a process works on it and comes to an end, and what it had been told is compared
/// with what is there. Main thread.
class TortureRun {
public:
    TortureRun(std::string program, Torture torture, unsigned seed);
    /// Says what is wrong; empty when all is as it must be.
    [[nodiscard]] std::string round();
    [[nodiscard]] const TortureModel& model() const { return m_model; }
    [[nodiscard]] std::size_t clips() const { return m_clips; }

    /// The working process; `arguments` are those that `round` gave it.
    [[nodiscard]] static int work(int count, char** arguments);

private:
    void runWorker();
    void take(const QByteArray& line, std::optional<TortureStep>& open);
    [[nodiscard]] std::string examine();

    std::string m_program;
    Torture m_torture;
    std::mt19937 m_random;
    QTemporaryDir m_folder;
    MemoryKeyStore m_keyStore;
    TortureModel m_model;
    Date m_now = 1'000;
    int m_nextClip = 1;
    std::size_t m_clips = 0;
    bool m_hasOpenedOther = false;
};

} // namespace vellumry
