// SPDX-License-Identifier: GPL-3.0-or-later
#include "linux/files/InotifyFolderWatching.h"

#include "foundation/Logging.h"
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
    const auto created = InotifyThread::create(folders, std::move(onChanged));
    if (!created) {
        qCWarning(logging::files).noquote() << "folders cannot be watched:" << created.error().text;
        return nullptr;
    }
    const std::shared_ptr<InotifyThread> thread = *created;
    try {
        // Left to itself at the end: a look at a dead file server may hold it for good.
        std::thread([thread] { thread->run(); }).detach();
    } catch (const std::system_error&) {
        qCWarning(logging::files) << "folders cannot be watched: no thread";
        return nullptr;
    }
    return std::make_unique<InotifyWatch>(thread);
}

} // namespace vellumry
