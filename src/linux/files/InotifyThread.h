// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "foundation/Reason.h"

#include <QByteArray>
#include <QStringList>
#include <atomic>
#include <functional>
#include <memory>
#include <vector>

struct inotify_event;

namespace vellumry {

/// What the thread of a folder watch does: waits for the kernel's word, follows folders that go and come back, and
/// tells the main thread. Shared by the thread and the watch.
class InotifyThread {
public:
    /// Fails when the kernel gives no descriptors.
    [[nodiscard]] static OrReason<std::shared_ptr<InotifyThread>> create(const QStringList& folders,
                                                                         std::function<void()> onChanged);
    ~InotifyThread();
    InotifyThread(const InotifyThread&) = delete;
    InotifyThread& operator=(const InotifyThread&) = delete;

    /// Watches until `end`. Blocks; on a thread of its own.
    void run();
    /// From now on nothing is told; the thread ends as soon as it can. Main thread.
    void end();

private:
    /// One folder, and what of it there is to watch: itself, or the nearest folder above it that exists.
    struct Place {
        QByteArray folder;
        QByteArray watched;
        int descriptor = -1;
    };
    /// What the main thread calls; gone when the watch is.
    struct Link {
        std::function<void()> onChanged;
        std::atomic<bool> isAnnounced = false;
    };

    InotifyThread(const QStringList& folders, std::function<void()> onChanged, int inotify, int wake);
    void arm(Place& place) const;
    /// True when a folder is there now that was not, or another stands in its place.
    bool armAll();
    [[nodiscard]] bool readEvents();
    [[nodiscard]] bool concernsAFolder(const inotify_event& event) const;
    void announce() const;

    const int m_inotify;
    const int m_wake;
    std::shared_ptr<Link> m_link = std::make_shared<Link>();
    std::atomic<bool> m_isEnding = false;
    std::vector<Place> m_places;
};

} // namespace vellumry
