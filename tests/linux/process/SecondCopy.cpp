// SPDX-License-Identifier: GPL-3.0-or-later
// Starts as a copy of the program would and tells by its exit code whether another one runs: 1 yes, 0 no. With "hold"
// as its argument it stays as the running copy until its standard input ends, after a line that says so.
#include "linux/process/DBusSingleInstance.h"

#include <QCoreApplication>
#include <cstdio>

int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    vellumry::DBusSingleInstance instance;
    const bool isRunning = instance.isAnotherCopyRunning();
    if (argc > 1 && !isRunning) {
        std::puts("holding");
        std::fflush(stdout);
        while (std::getchar() != EOF) {
        }
    }
    return isRunning ? 1 : 0;
}
