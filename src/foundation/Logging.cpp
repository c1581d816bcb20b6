// SPDX-License-Identifier: GPL-3.0-or-later
#include "foundation/Logging.h"

#include <QDateTime>
#include <atomic>
#include <sys/stat.h>
#include <unistd.h>

namespace vellumry::logging {

Q_LOGGING_CATEGORY(foundation, "vellumry.foundation", QtWarningMsg)
Q_LOGGING_CATEGORY(history, "vellumry.history", QtWarningMsg)
Q_LOGGING_CATEGORY(capture, "vellumry.capture", QtWarningMsg)
Q_LOGGING_CATEGORY(paste, "vellumry.paste", QtWarningMsg)
Q_LOGGING_CATEGORY(views, "vellumry.views", QtWarningMsg)
Q_LOGGING_CATEGORY(transfer, "vellumry.transfer", QtWarningMsg)
Q_LOGGING_CATEGORY(shell, "vellumry.shell", QtWarningMsg)
Q_LOGGING_CATEGORY(app, "vellumry.app", QtWarningMsg)
Q_LOGGING_CATEGORY(accessibility, "vellumry.linux.accessibility", QtWarningMsg)
Q_LOGGING_CATEGORY(applications, "vellumry.linux.applications", QtWarningMsg)
Q_LOGGING_CATEGORY(files, "vellumry.linux.files", QtWarningMsg)
Q_LOGGING_CATEGORY(keyring, "vellumry.linux.keyring", QtWarningMsg)
Q_LOGGING_CATEGORY(pasteboard, "vellumry.linux.pasteboard", QtWarningMsg)
Q_LOGGING_CATEGORY(process, "vellumry.linux.process", QtWarningMsg)
Q_LOGGING_CATEGORY(readerProcess, "vellumry.linux.reader", QtWarningMsg)
Q_LOGGING_CATEGORY(sound, "vellumry.linux.sound", QtWarningMsg)
Q_LOGGING_CATEGORY(wayland, "vellumry.linux.wayland", QtWarningMsg)
Q_LOGGING_CATEGORY(x11, "vellumry.linux.x11", QtWarningMsg)

namespace {

std::atomic<bool> isJournal = false;

/// The word for people, and the priority of syslog(3) for the journal.
struct Level {
    const char* word;
    char priority;
};

Level levelOf(QtMsgType type) {
    switch (type) {
    case QtDebugMsg:
        return {"debug", '7'};
    case QtInfoMsg:
        return {"info", '6'};
    case QtWarningMsg:
        return {"warning", '4'};
    case QtCriticalMsg:
        return {"error", '3'};
    case QtFatalMsg:
        return {"fatal", '2'};
    }
    return {"info", '6'};
}

/// $JOURNAL_STREAM names the device and inode of the stream that the service manager gave us (systemd.exec(5)); a
/// standard error that was redirected since is another file.
bool isStandardErrorTheJournal() {
    struct stat status {};
    if (fstat(STDERR_FILENO, &status) != 0)
        return false;
    const QByteArray own = QByteArray::number(static_cast<qulonglong>(status.st_dev)) + ':' +
                           QByteArray::number(static_cast<qulonglong>(status.st_ino));
    return qgetenv("JOURNAL_STREAM") == own;
}

void write(QtMsgType type, const QMessageLogContext& context, const QString& message) {
    const QByteArray text = line(type, context.category, message, isJournal);
    // One call a line, so that lines of two threads do not mix. A failed write of the log is ignored.
    (void)!::write(STDERR_FILENO, text.constData(), static_cast<std::size_t>(text.size()));
}

} // namespace

QByteArray line(QtMsgType type, const char* category, const QString& message, bool isForJournal) {
    const Level level = levelOf(type);
    QByteArray result;
    if (isForJournal)
        result = QByteArray("<") + level.priority + '>';
    else
        result = QDateTime::currentDateTime().toString(QStringLiteral("yyyy-MM-dd HH:mm:ss.zzz ")).toLatin1() +
                 level.word + ' ';
    if (category)
        result += QByteArray(category) + ": ";
    QByteArray text = message.toUtf8();
    for (char& byte : text) {
        if (byte == '\n' || byte == '\r')
            byte = ' ';
    }
    return result + text + '\n';
}

void setDetail(Detail detail) {
    QLoggingCategory::setFilterRules(detail == Detail::all ? QStringLiteral("vellumry.*.info=true") : QString());
}

void start(Detail detail) {
    isJournal = isStandardErrorTheJournal();
    setDetail(detail);
    qInstallMessageHandler(&write);
}

} // namespace vellumry::logging
