// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "linux/update/Appcast.h"
#include "linux/update/BoundedDownload.h"
#include "linux/update/ProgramFile.h"
#include "platform/desktop/SoftwareUpdater.h"

#include <QCoroTask>
#include <QObject>
#include <QTimer>
#include <memory>

namespace vellumry {

class UserDefaults;

/// Updates an AppImage from a signed feed. What is fetched counts only when feed and file are signed by the key that
/// was built in, the file is as long as the feed says, and says itself that it is that version; and no version older
/// than one that was seen before is taken. Anything else changes nothing. Main thread; waits for network and disk
/// elsewhere.
class AppImageUpdater : public QObject, public SoftwareUpdater {
public:
    struct Options {
        QString program{}; ///< the AppImage
        QString version{}; ///< its own
        QUrl feed{};
        QByteArray publicKey{};           ///< 32 bytes
        UserDefaults* defaults = nullptr; ///< keeps when it looked, what it saw, and the user's choice; outlives this
        std::function<void()> endProgram = [] {};
        Clock clock = currentDate;
        std::chrono::milliseconds firstCheck = std::chrono::minutes(1); ///< after the start
        /// A newer version that has run this long has started: the one before is not kept any more.
        std::chrono::milliseconds provenAfter = std::chrono::seconds(20);
        std::chrono::milliseconds feedLimit = std::chrono::seconds(30);
        std::chrono::milliseconds fileLimit = std::chrono::hours(1);
    };

    explicit AppImageUpdater(Options options);
    /// A version that is ready takes the program's place.
    ~AppImageUpdater() override;

    void start() override;
    [[nodiscard]] bool canCheck() const override { return !m_isChecking; }
    void check() override;
    [[nodiscard]] std::optional<Date> lastCheck() const override;
    [[nodiscard]] bool automaticallyDownloads() const override;
    void setAutomaticallyDownloads(bool value) override;

private:
    enum class Asked : quint8 { byUser, byTime };

    QCoro::Task<void> run(Asked asked);
    [[nodiscard]] QCoro::Task<OrReason<AppcastItem>> newest();
    [[nodiscard]] QCoro::Task<std::optional<Reason>> fetch(AppcastItem item);
    [[nodiscard]] QCoro::Task<std::optional<Reason>> verify(AppcastItem item);
    [[nodiscard]] bool isForTheDelegate(const AppcastItem& item, Asked asked);
    void offer(const AppcastItem& item);
    void install();
    void finish(Asked asked, std::optional<Outcome> outcome);
    void scheduleNext();

    Options m_options;
    ProgramFile m_file;
    std::unique_ptr<QNetworkAccessManager> m_network;
    QTimer m_next;
    bool m_isChecking = false;
    QVersionNumber m_ready; ///< staged and verified
};

} // namespace vellumry
