// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "foundation/Logging.h"

#include <QStringList>
#include <algorithm>
#include <mutex>

namespace vellumry {

/// What is written to the log while it lives, details included. One at a time.
class LoggedLines {
public:
    LoggedLines() {
        current() = this;
        logging::setDetail(logging::Detail::all);
        m_before = qInstallMessageHandler(&take);
    }
    ~LoggedLines() {
        qInstallMessageHandler(m_before);
        logging::setDetail(logging::Detail::warnings);
        current() = nullptr;
    }
    LoggedLines(const LoggedLines&) = delete;
    LoggedLines& operator=(const LoggedLines&) = delete;

    /// How many lines of a level hold `words`.
    [[nodiscard]] int count(QtMsgType type, QStringView words) const {
        const std::lock_guard lock(m_mutex);
        return static_cast<int>(std::ranges::count_if(
            m_lines, [&](const auto& line) { return line.first == type && line.second.contains(words); }));
    }

private:
    static LoggedLines*& current() {
        static LoggedLines* instance = nullptr;
        return instance;
    }
    static void take(QtMsgType type, const QMessageLogContext&, const QString& message) {
        const std::lock_guard lock(current()->m_mutex);
        current()->m_lines.emplace_back(type, message);
    }

    mutable std::mutex m_mutex;
    QList<std::pair<QtMsgType, QString>> m_lines;
    QtMessageHandler m_before = nullptr;
};

} // namespace vellumry
