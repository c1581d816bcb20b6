// SPDX-License-Identifier: GPL-3.0-or-later
#include "linux/applications/DesktopEntries.h"

#include <QDateTime>
#include <QFileInfo>
#include <QLocale>
#include <QStandardPaths>
#include <QThreadPool>
#include <algorithm>
#include <condition_variable>
#include <mutex>

namespace vellumry {

/// Shared with the thread that reads, which may outlive its owner.
struct DesktopEntries::Reading {
    std::mutex mutex;
    std::condition_variable finished;
    bool isUnderWay = false;
    std::vector<QDateTime> modified;
    QDateTime readAt;
    std::shared_ptr<const DesktopEntryIndex> index;
};

namespace {

QStringList sessionFolders() {
    return QStandardPaths::standardLocations(QStandardPaths::ApplicationsLocation);
}

QStringList sessionLanguages() {
    QStringList languages;
    for (QString name : QLocale::system().uiLanguages()) {
        name.replace(u'-', u'_');
        languages << name << name.section(u'_', 0, 0);
    }
    languages.removeDuplicates();
    return languages;
}

/// A folder may change once more within the same tick of its clock; times as fresh as this prove nothing.
constexpr qint64 settledMilliseconds = 2000;

bool areSettled(const std::vector<QDateTime>& modified, const QDateTime& readAt) {
    return std::all_of(modified.begin(), modified.end(), [&](const QDateTime& time) {
        return !time.isValid() || time.msecsTo(readAt) > settledMilliseconds;
    });
}

std::vector<QDateTime> modificationTimes(const QStringList& folders) {
    std::vector<QDateTime> times;
    for (const QString& folder : folders)
        times.push_back(QFileInfo(folder).lastModified());
    return times;
}

} // namespace

DesktopEntries::DesktopEntries()
    : DesktopEntries(sessionFolders(), sessionLanguages()) {}

DesktopEntries::DesktopEntries(QStringList folders, QStringList languages)
    : m_folders(std::move(folders))
    , m_languages(std::move(languages))
    , m_reading(std::make_shared<Reading>()) {}

DesktopEntries::~DesktopEntries() = default;

void DesktopEntries::refresh() {
    {
        const std::lock_guard lock(m_reading->mutex);
        if (m_reading->isUnderWay)
            return;
        m_reading->isUnderWay = true;
    }
    QThreadPool::globalInstance()->start([reading = m_reading, folders = m_folders, languages = m_languages] {
        const QDateTime now = QDateTime::currentDateTimeUtc();
        const auto modified = modificationTimes(folders);
        bool isKnown = false;
        {
            const std::lock_guard lock(reading->mutex);
            isKnown =
                reading->index != nullptr && reading->modified == modified && areSettled(modified, reading->readAt);
        }
        std::shared_ptr<const DesktopEntryIndex> index;
        if (!isKnown)
            index = std::make_shared<const DesktopEntryIndex>(DesktopEntryIndex::read(folders, languages));
        const std::lock_guard lock(reading->mutex);
        if (index != nullptr) {
            reading->index = index;
            reading->readAt = now;
        }
        reading->modified = modified;
        reading->isUnderWay = false;
        reading->finished.notify_all();
    });
}

std::shared_ptr<const DesktopEntryIndex> DesktopEntries::index() const {
    std::unique_lock lock(m_reading->mutex);
    m_reading->finished.wait(lock, [this] { return m_reading->index != nullptr || !m_reading->isUnderWay; });
    if (m_reading->index == nullptr)
        return std::make_shared<const DesktopEntryIndex>(std::vector<DesktopEntry>());
    return m_reading->index;
}

} // namespace vellumry
