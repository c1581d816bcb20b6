// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/files/FolderWatching.h"

#include <utility>

namespace vellumry {

/// Folders in which something happens when the test says so.
class FakeFolderWatching : public FolderWatching {
    struct Watch : FolderWatch {
        explicit Watch(FakeFolderWatching* from)
            : watching(from) {}
        ~Watch() override { --watching->activeCount; }
        FakeFolderWatching* watching;
    };

public:
    bool isUnavailable = false;       ///< `watch` gives null
    QStringList watched;              ///< what was asked for last
    std::function<void()> lastNotice; ///< of the watch that was begun last, even when it has ended
    int activeCount = 0;

    [[nodiscard]] std::unique_ptr<FolderWatch> watch(QStringList folders, std::function<void()> onChanged) override {
        if (isUnavailable)
            return nullptr;
        watched = std::move(folders);
        lastNotice = std::move(onChanged);
        ++activeCount;
        return std::make_unique<Watch>(this);
    }
    /// Something happened in a folder; nobody is told when nobody watches.
    void change() const {
        if (activeCount > 0)
            lastNotice();
    }
};

} // namespace vellumry
