// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringList>

namespace vellumry {

/// Opens things in the user's other programs. Main thread; nothing waits for them.
class Opener {
public:
    virtual ~Opener() = default;
    /// Opens an address in the program that the user has for it. False when it is none, or nothing can be started.
    virtual bool openAddress(const QString& address) = 0;
    /// Shows files in the file manager, marked where it can do that.
    virtual void showFiles(const QStringList& paths) = 0;
};

} // namespace vellumry
