// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/Ending.h"

#include <QCoreApplication>

namespace vellumry {

void endProgram() {
    QMetaObject::invokeMethod(
        QCoreApplication::instance(), [] { QCoreApplication::exit(0); }, Qt::QueuedConnection);
}

} // namespace vellumry
