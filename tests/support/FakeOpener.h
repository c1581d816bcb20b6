// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/desktop/Opener.h"

namespace vellumry {

/// Remembers what would have been opened.
class FakeOpener : public Opener {
public:
    bool openAddress(const QString& address) override {
        opened.append(address);
        return opens;
    }
    void showFiles(const QStringList& paths) override { shown.append(paths); }

    bool opens = true; ///< programs can be started
    QStringList opened;
    QList<QStringList> shown;
};

} // namespace vellumry
