// SPDX-License-Identifier: GPL-3.0-or-later

// Whether anything is ever lost, or comes back: `history_torture kill|disk|power [ROUNDS [SEED]]`. Each round starts a
// process that works on the one history, ends it in the middle, and compares. A run that fails prints the seed with
// which the same choices are made again.

#include "torture/TortureRun.h"

#include <QCoreApplication>
#include <cstdio>
#include <cstring>

using namespace vellumry;

namespace {

int torture(const char* program, Torture kind, int rounds, unsigned seed) {
    TortureRun run(program, kind, seed);
    for (int round = 1; round <= rounds; ++round) {
        const std::string wrong = run.round();
        if (!wrong.empty()) {
            std::printf("round %d, seed %u:\n%s", round, seed, wrong.c_str());
            return 1;
        }
    }
    std::printf("%d rounds, %d acknowledged steps, %zu clips at the end: nothing lost, nothing back (seed %u)\n",
                rounds, run.model().acknowledged(), run.clips(), seed);
    // A worker that does nothing loses nothing.
    return run.model().acknowledged() > rounds ? 0 : 1;
}

} // namespace

int main(int argc, char** argv) {
    QCoreApplication application(argc, argv);
    if (argc > 1 && std::strcmp(argv[1], "--work") == 0)
        return TortureRun::work(argc, argv);
    const int rounds = argc > 2 ? std::stoi(argv[2]) : 25;
    const unsigned seed = argc > 3 ? static_cast<unsigned>(std::stoul(argv[3])) : std::random_device()();
    const std::string kind = argc > 1 ? argv[1] : "";
    if (kind == "kill")
        return torture(argv[0], Torture::kill, rounds, seed);
    if (kind == "disk")
        return torture(argv[0], Torture::disk, rounds, seed);
    if (kind == "power")
        return torture(argv[0], Torture::power, rounds, seed);
    std::fputs("history_torture kill|disk|power [ROUNDS [SEED]]\n", stderr);
    return 2;
}
