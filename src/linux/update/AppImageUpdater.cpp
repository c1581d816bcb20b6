// SPDX-License-Identifier: GPL-3.0-or-later
#include "linux/update/AppImageUpdater.h"

#include "foundation/Logging.h"
#include "foundation/RunDetached.h"
#include "foundation/UserDefaults.h"
#include "linux/update/Signature.h"

#include <QFile>
#include <QNetworkAccessManager>
#include <QPointer>
#include <algorithm>
#include <cmath>

namespace vellumry {

namespace {

using namespace std::chrono_literals;

constexpr qint64 longestFeed = qint64(1) << 20;
constexpr double checkInterval = 86'400;
constexpr auto verifyLimit = 5min;

const QString lastCheckKey = QStringLiteral("lastUpdateCheck");
const QString newestSeenKey = QStringLiteral("newestVersionSeen");
const QString automaticKey = QStringLiteral("updateAutomatically");

/// Where a file may come from: as the feed itself.
bool isTrustworthy(const QUrl& url, const QUrl& feed) {
    if (url.scheme() == QLatin1String("https"))
        return !url.host().isEmpty();
    return url.scheme() == feed.scheme() && url.host() == feed.host();
}

} // namespace

AppImageUpdater::AppImageUpdater(Options options)
    : m_options(std::move(options))
    , m_file(m_options.program) {
    m_options.defaults->registerDefaults({{automaticKey, true}});
    m_next.setSingleShot(true);
    m_next.setTimerType(Qt::VeryCoarseTimer);
    connect(&m_next, &QTimer::timeout, this, [this] { run(Asked::byTime); });
}

AppImageUpdater::~AppImageUpdater() {
    if (!m_ready.isNull())
        (void)m_file.replace();
}

void AppImageUpdater::start() {
    m_file.discardStaged();
    QTimer::singleShot(m_options.provenAfter, this, [this] { m_file.discardPrevious(); });
    scheduleNext();
}

void AppImageUpdater::scheduleNext() {
    const double since = lastCheck() ? m_options.clock() - *lastCheck() : checkInterval;
    // A clock that was set back must not put the next check off for years.
    const double left = since < 0 ? 0 : checkInterval - since;
    m_next.start(std::max(m_options.firstCheck, std::chrono::milliseconds(std::llround(std::max(left, 0.0) * 1000))));
}

void AppImageUpdater::check() {
    if (canCheck())
        run(Asked::byUser);
}

std::optional<Date> AppImageUpdater::lastCheck() const {
    const qint64 seconds = m_options.defaults->integer(lastCheckKey);
    return seconds > 0 ? std::optional(static_cast<Date>(seconds)) : std::nullopt;
}

bool AppImageUpdater::automaticallyDownloads() const {
    return m_options.defaults->boolean(automaticKey);
}

void AppImageUpdater::setAutomaticallyDownloads(bool value) {
    m_options.defaults->setObject(automaticKey, value);
}

QCoro::Task<void> AppImageUpdater::run(Asked asked) {
    if (m_isChecking)
        co_return;
    const QPointer<AppImageUpdater> self(this);
    m_isChecking = true;
    m_network = std::make_unique<QNetworkAccessManager>();
    if (asked == Asked::byUser)
        didReceiveUserAttention();
    auto looking = newest();
    const auto item = co_await looking;
    if (!self)
        co_return;
    const bool isNewer = item && item->version > versionNumber(m_options.version) && item->version > m_ready;
    if (!item)
        qCWarning(logging::process).noquote() << "no update:" << item.error().text;
    if (!isNewer || isForTheDelegate(*item, asked)) {
        finish(asked, !item     ? std::optional(Outcome::failed)
                      : isNewer ? std::nullopt
                                : std::optional(Outcome::upToDate));
        co_return;
    }
    auto fetching = fetch(*item);
    const auto problem = co_await fetching;
    if (!self)
        co_return;
    if (problem) {
        qCWarning(logging::process).noquote() << "no update:" << problem->text;
        m_file.discardStaged();
        m_ready = {};
        finish(asked, Outcome::failed);
        co_return;
    }
    finish(asked, std::nullopt);
    offer(*item);
}

/// The newest version that the feed names; an old one too, when there is nothing newer.
QCoro::Task<OrReason<AppcastItem>> AppImageUpdater::newest() {
    const QPointer<AppImageUpdater> self(this);
    const auto feed = std::make_shared<QByteArray>();
    BoundedDownload download;
    download.url = m_options.feed;
    download.mostBytes = longestFeed;
    download.limit = m_options.feedLimit;
    download.take = [feed](const QByteArray& bytes) {
        feed->append(bytes);
        return true;
    };
    const auto loading = download.start(*m_network);
    const auto loaded = co_await loading;
    if (!self || !loaded)
        co_return std::unexpected(loaded ? Reason{} : Reason{QStringLiteral("the feed: ") + loaded.error().text});
    const auto items = readAppcast(*feed, m_options.publicKey);
    if (!items)
        co_return std::unexpected(items.error());
    if (items->empty())
        co_return std::unexpected(Reason{QStringLiteral("the feed is empty")});
    const AppcastItem& item = items->back();
    // A feed from before would keep a version with a known fault alive.
    const QVersionNumber seen = versionNumber(m_options.defaults->string(newestSeenKey).value_or(QString()));
    if (item.version < seen)
        co_return std::unexpected(Reason{QStringLiteral("the feed is older than one that was seen before")});
    if (!isTrustworthy(item.url, m_options.feed))
        co_return std::unexpected(Reason{QStringLiteral("the file would come over an open connection")});
    if (item.version > seen)
        m_options.defaults->setObject(newestSeenKey, item.version.toString());
    co_return item;
}

/// Not fetched without the user's leave: the delegate tells of it.
bool AppImageUpdater::isForTheDelegate(const AppcastItem& item, Asked asked) {
    if (asked == Asked::byUser || automaticallyDownloads())
        return false;
    const Item shown{item.displayVersion, item.isCritical};
    const bool isHandled = shouldHandleShowing(shown, false);
    willHandleShowing(isHandled, shown);
    return !isHandled;
}

QCoro::Task<std::optional<Reason>> AppImageUpdater::fetch(AppcastItem item) {
    const QPointer<AppImageUpdater> self(this);
    m_file.discardStaged();
    const auto file = std::make_shared<QFile>(m_file.staged());
    if (!file->open(QIODevice::WriteOnly | QIODevice::NewOnly, QFile::ReadOwner | QFile::WriteOwner))
        co_return Reason{QStringLiteral("the newer file cannot be made")};
    BoundedDownload download;
    download.url = item.url;
    download.mostBytes = item.length;
    download.isExact = true;
    download.limit = m_options.fileLimit;
    download.take = [file](const QByteArray& bytes) { return file->write(bytes) == bytes.size(); };
    const auto loading = download.start(*m_network);
    const auto loaded = co_await loading;
    const bool isWritten = file->flush();
    file->close();
    if (!self)
        co_return Reason{};
    if (!loaded)
        co_return Reason{QStringLiteral("the file: ") + loaded.error().text};
    if (!isWritten)
        co_return Reason{QStringLiteral("the newer file cannot be written")};
    auto verifying = verify(item);
    co_return co_await verifying;
}

/// Signature first: nothing is started that was not signed.
QCoro::Task<std::optional<Reason>> AppImageUpdater::verify(AppcastItem item) {
    auto work = [file = m_file, item, key = m_options.publicKey]() -> std::optional<Reason> {
        if (!signature::isOfFile(file.staged(), item.signature, key))
            return Reason{QStringLiteral("the file is not signed by the key that was built in")};
        const auto said = file.stagedVersion();
        if (!said || versionNumber(*said) != item.version)
            return Reason{QStringLiteral("the file is not the version that the feed says")};
        return std::nullopt;
    };
    auto working = runDetached(std::move(work), verifyLimit);
    const auto answer = co_await working;
    co_return answer ? *answer : Reason{QStringLiteral("the file could not be checked")};
}

void AppImageUpdater::offer(const AppcastItem& item) {
    m_ready = item.version;
    qCInfo(logging::process).noquote() << "a newer version is ready:" << item.version.toString();
    const auto installNow = [self = QPointer(this)] {
        if (self)
            self->install();
    };
    if (!willInstallOnQuit({item.displayVersion, item.isCritical}, installNow))
        install();
}

void AppImageUpdater::install() {
    if (m_ready.isNull())
        return;
    if (const auto problem = m_file.replace()) {
        qCWarning(logging::process).noquote() << "the update cannot be installed:" << problem->text;
        return;
    }
    m_ready = {};
    if (m_file.startAfterThisProcess())
        m_options.endProgram();
}

void AppImageUpdater::finish(Asked asked, std::optional<Outcome> outcome) {
    m_isChecking = false;
    m_network.release()->deleteLater();
    m_options.defaults->setObject(lastCheckKey, static_cast<qint64>(m_options.clock()));
    scheduleNext();
    didFinishCycle();
    if (outcome && asked == Asked::byUser)
        onOutcome(*outcome);
    // One that the delegate tells of goes on until the user has seen it.
    if (outcome || m_options.defaults->boolean(automaticKey) || asked == Asked::byUser)
        willFinishSession();
}

} // namespace vellumry
