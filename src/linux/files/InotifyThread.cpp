// SPDX-License-Identifier: GPL-3.0-or-later
#include "linux/files/InotifyThread.h"

#include "foundation/SerialExecutor.h"

#include <QFile>
#include <algorithm>
#include <array>
#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <poll.h>
#include <pthread.h>
#include <sys/eventfd.h>
#include <sys/inotify.h>
#include <unistd.h>

namespace vellumry {

namespace {

/// Without IN_MODIFY: a file in the middle of being written is not news at each block.
constexpr quint32 entryEvents = IN_CREATE | IN_MOVED_TO | IN_CLOSE_WRITE;
constexpr quint32 ownEvents = IN_DELETE_SELF | IN_MOVE_SELF;
/// The kernel's own word that a watch is no more: folder deleted, file system unmounted; or that it dropped events.
constexpr quint32 endEvents = IN_IGNORED | IN_UNMOUNT | IN_Q_OVERFLOW;

QByteArray parentOf(const QByteArray& path) {
    const qsizetype slash = path.lastIndexOf('/');
    return slash <= 0 ? QByteArray("/") : path.first(slash);
}

} // namespace

OrReason<std::shared_ptr<InotifyThread>> InotifyThread::create(const QStringList& folders,
                                                               std::function<void()> onChanged) {
    // A desktop with many watchers runs into fs.inotify.max_user_instances: 128 for one user, as a rule.
    const int inotify = inotify_init1(IN_CLOEXEC | IN_NONBLOCK);
    if (inotify < 0)
        return std::unexpected(Reason{QStringLiteral("no inotify descriptor, error %1").arg(errno)});
    const int wake = eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK);
    if (wake < 0) {
        const int error = errno;
        close(inotify);
        return std::unexpected(Reason{QStringLiteral("no event descriptor, error %1").arg(error)});
    }
    return std::shared_ptr<InotifyThread>(new InotifyThread(folders, std::move(onChanged), inotify, wake));
}

InotifyThread::InotifyThread(const QStringList& folders, std::function<void()> onChanged, int inotify, int wake)
    : m_inotify(inotify)
    , m_wake(wake) {
    m_link->onChanged = std::move(onChanged);
    for (const QString& folder : folders)
        m_places.push_back({QFile::encodeName(folder), {}, -1});
}

InotifyThread::~InotifyThread() {
    close(m_inotify);
    close(m_wake);
}

void InotifyThread::end() {
    m_link->onChanged = nullptr;
    m_isEnding = true;
    (void)eventfd_write(m_wake, 1);
}

void InotifyThread::run() {
    pthread_setname_np(pthread_self(), "folders");
    // What changed before the folders were watched was not seen, and may have come behind the first look at them.
    if (armAll())
        announce();
    while (!m_isEnding) {
        std::array<pollfd, 2> descriptors{pollfd{m_wake, POLLIN, 0}, pollfd{m_inotify, POLLIN, 0}};
        if (poll(descriptors.data(), descriptors.size(), -1) < 0 && errno != EINTR)
            return;
        if (m_isEnding)
            return;
        const bool isNews = readEvents();
        if (armAll() || isNews)
            announce();
    }
}

void InotifyThread::arm(Place& place) const {
    QByteArray path = place.folder;
    while (true) {
        const bool isItself = path == place.folder;
        const quint32 events = isItself ? entryEvents : quint32(IN_CREATE | IN_MOVED_TO);
        // Folders share what lies above them: the events of both are wanted.
        const int descriptor =
            inotify_add_watch(m_inotify, path.constData(), events | ownEvents | IN_ONLYDIR | IN_MASK_ADD);
        if (descriptor >= 0) {
            place.watched = path;
            place.descriptor = descriptor;
            break;
        }
        // Listing it will say why it cannot be had; watching goes no further than what exists.
        if ((errno != ENOENT && errno != ENOTDIR) || path == "/") {
            place.watched.clear();
            place.descriptor = -1;
            break;
        }
        path = parentOf(path);
    }
}

bool InotifyThread::armAll() {
    bool hasCome = false;
    for (Place& place : m_places) {
        while (true) {
            const Place before = place;
            arm(place);
            const bool isThere = place.watched == place.folder;
            hasCome = hasCome || (isThere && place.descriptor != before.descriptor);
            // What lies further down may have come while the folder above it was being watched.
            if (isThere || place.watched == before.watched)
                break;
        }
    }
    return hasCome;
}

bool InotifyThread::readEvents() {
    constexpr std::size_t size = 16 * 1024;
    alignas(inotify_event) std::array<char, size> buffer;
    bool isNews = false;
    for (ssize_t got = 0; (got = read(m_inotify, buffer.data(), buffer.size())) > 0;) {
        for (ssize_t at = 0; at < got;) {
            inotify_event event{};
            std::memcpy(&event, buffer.data() + at, sizeof event);
            at += ssize_t(sizeof event) + ssize_t(event.len);
            isNews = isNews || concernsAFolder(event);
            // A folder that was moved away is still watched under its old number, and is not ours any more.
            if (event.mask & IN_MOVE_SELF)
                inotify_rm_watch(m_inotify, event.wd);
            if (event.mask & (endEvents | ownEvents)) {
                for (Place& place : m_places) {
                    if (place.descriptor == event.wd)
                        place.descriptor = -1;
                }
            }
        }
    }
    return isNews;
}

bool InotifyThread::concernsAFolder(const inotify_event& event) const {
    if (event.mask & IN_Q_OVERFLOW)
        return true;
    if (!(event.mask & entryEvents))
        return false;
    return std::ranges::any_of(m_places, [&event](const Place& place) {
        return place.descriptor == event.wd && place.watched == place.folder;
    });
}

void InotifyThread::announce() const {
    // One notice under way speaks for all changes until it arrives.
    if (m_link->isAnnounced.exchange(true))
        return;
    postToMain([link = m_link] {
        link->isAnnounced.store(false);
        if (const auto tell = link->onChanged)
            tell();
    });
}

} // namespace vellumry
