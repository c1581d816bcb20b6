// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/Ending.h"

#include <QCoreApplication>

namespace vellumry {

namespace {

void endWith(int status) {
    QMetaObject::invokeMethod(
        QCoreApplication::instance(), [status] { QCoreApplication::exit(status); }, Qt::QueuedConnection);
}

} // namespace

void endProgram() {
    endWith(0);
}

void restartProgram() {
    endWith(restartStatus);
}

} // namespace vellumry
