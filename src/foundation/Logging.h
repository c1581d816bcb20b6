// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLoggingCategory>
#include <QMessageLogContext>
#include <QString>

/// The log of the program: one category for each folder of the source, written as `qCWarning(logging::capture) << …`.
///
/// **Nothing that the user copied, typed or owns goes into the log**: no text of a clip, no title, no query, no name of
/// a window, a file, a folder or a host, no value of a setting that is free text, and no error text of a library that
/// may quote one of them. What may: types, counts, sizes, durations, error numbers, identifiers of applications and
/// formats, names of settings, and reasons in words of our own. The log is read by others: in bug reports, and in the
/// journal by the machine's administrators.
///
/// Levels: a warning is a refusal or a fallback that the user would want explained (a shortcut that is taken, a history
/// that is kept in memory only); info is what the program found and did. Only warnings and worse are written unless the
/// program was started with --verbose. Debug is not used. Any thread.
namespace vellumry::logging {

Q_DECLARE_LOGGING_CATEGORY(foundation)
Q_DECLARE_LOGGING_CATEGORY(history)
Q_DECLARE_LOGGING_CATEGORY(capture)
Q_DECLARE_LOGGING_CATEGORY(paste)
Q_DECLARE_LOGGING_CATEGORY(views)
Q_DECLARE_LOGGING_CATEGORY(transfer)
Q_DECLARE_LOGGING_CATEGORY(shell)
Q_DECLARE_LOGGING_CATEGORY(app)

// The folders of src/linux: "vellumry.linux.x11" and so on.
Q_DECLARE_LOGGING_CATEGORY(accessibility)
Q_DECLARE_LOGGING_CATEGORY(applications)
Q_DECLARE_LOGGING_CATEGORY(files)
Q_DECLARE_LOGGING_CATEGORY(keyring)
Q_DECLARE_LOGGING_CATEGORY(pasteboard)
Q_DECLARE_LOGGING_CATEGORY(process)
Q_DECLARE_LOGGING_CATEGORY(readerProcess) ///< our end of the helper
Q_DECLARE_LOGGING_CATEGORY(sound)
Q_DECLARE_LOGGING_CATEGORY(wayland)
Q_DECLARE_LOGGING_CATEGORY(x11)

enum class Detail : quint8 { warnings, all };

/// Sends every message of the process, Qt's own included, to standard error, one line each. Where that is the journal
/// of systemd, a line begins with its priority instead of the time (sd-daemon(3)). Call it early in `main`, once.
void start(Detail detail);

/// How much of our own categories is written from now on.
void setDetail(Detail detail);

/// One line as `start` writes it, its end included: time or priority, level, category, message. Line breaks inside the
/// message become spaces, so that nothing can pass for a line of its own.
[[nodiscard]] QByteArray line(QtMsgType type, const char* category, const QString& message, bool isForJournal);

} // namespace vellumry::logging
