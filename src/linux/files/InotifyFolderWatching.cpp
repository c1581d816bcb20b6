// SPDX-License-Identifier: GPL-3.0-or-later
#include "linux/files/InotifyFolderWatching.h"

#include "linux/files/InotifyThread.h"

#include <system_error>
#include <thread>

namespace vellumry {

namespace {

class InotifyWatch final : public FolderWatch {
public:
    explicit InotifyWatch(std::shared_ptr<InotifyThread> thread)
        : m_thread(std::move(thread)) {}
    ~InotifyWatch() override { m_thread->end(); }
    InotifyWatch(const InotifyWatch&) = delete;
    InotifyWatch& operator=(const InotifyWatch&) = delete;

private:
    std::shared_ptr<InotifyThread> m_thread;
};

} // namespace

std::unique_ptr<FolderWatch> InotifyFolderWatching::watch(QStringList folders, std::function<void()> onChanged) {
    const std::shared_ptr<InotifyThread> thread = InotifyThread::create(folders, std::move(onChanged));
    if (!thread)
        return nullptr;
    try {
        // Left to itself at the end: a look at a dead file server may hold it for good.
        std::thread([thread] { thread->run(); }).detach();
    } catch (const std::system_error&) {
        return nullptr;
    }
    return std::make_unique<InotifyWatch>(thread);
}

} // namespace vellumry
