// SPDX-License-Identifier: GPL-3.0-or-later
#include "reader/ReaderSandbox.h"
#include "reader/ReaderService.h"

#include <QCoreApplication>
#include <unistd.h>

using namespace vellumry;

int main(int argc, char** argv) {
    readersandbox::enter();
    // Tells Qt where its decoders are; there is no event loop.
    const QCoreApplication application(argc, argv);
    ReaderService service(STDIN_FILENO);
    readersandbox::seal();
    return service.run() == ReaderService::End::idle ? 0 : 1;
}
