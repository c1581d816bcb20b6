// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/StatusReport.h"

#include <QCoreApplication>
#include <gtest/gtest.h>

namespace vellumry {
namespace {

QString version() {
    return QStringLiteral("Vellumry %1, Qt %2, ")
        .arg(QCoreApplication::applicationVersion(), QString::fromLatin1(qVersion()));
}

TEST(StatusReport, AProgramThatDoesNotRunHasNothingToSayButWhatIsThere) {
    StatusReport report;
    report.capabilities = {Capability::found(QStringLiteral("XTest")),
                           Capability::missing(QStringLiteral("keyring"), QStringLiteral("no session bus"))};
    EXPECT_EQ(report.text(), version() + QStringLiteral("not running\n"
                                                        "found: XTest\n"
                                                        "missing: keyring (no session bus)\n"
                                                        "history: no file\n"));
}

TEST(StatusReport, WhyTheRunningCopyWasNotAskedStandsInPlaceOfItsNumber) {
    StatusReport report;
    report.notAsked = QStringLiteral("running, without an answer");
    report.bytesOnDisk = 4096;
    EXPECT_EQ(report.text(), version() + QStringLiteral("running, without an answer\nhistory: bytes on disk 4096\n"));
}

TEST(StatusReport, ARunningProgramTellsCountsSizesAndStates) {
    StatusReport report;
    report.process = 42;
    report.session = QStringLiteral("Debian GNU/Linux 12, desktop KDE");
    report.displays = {QStringLiteral("1920x1080 at 100 %"), QStringLiteral("2560x1440 at 150 %")};
    report.history = {12, 2, 1, false};
    report.bytesOnDisk = 37'088;
    report.takenShortcuts = QStringList();
    report.capture = StatusReport::Capture();
    EXPECT_EQ(report.text(),
              version() + QStringLiteral("running as process 42\n"
                                         "session: Debian GNU/Linux 12, desktop KDE\n"
                                         "displays: 1920x1080 at 100 %, 2560x1440 at 150 %\n"
                                         "shortcuts: ours\n"
                                         "history: clips 12, pinned 2, sensitive 1, kept in the encrypted file, "
                                         "bytes on disk 37088\n"
                                         "capture: on, screenshots are not saved\n"));
}

TEST(StatusReport, WhatIsOutOfTheOrdinaryIsNamed) {
    StatusReport report;
    report.process = 42;
    report.history = {0, 0, 0, true, "the keyring is locked or closed", false};
    report.takenShortcuts = QStringList{QStringLiteral("openPanelShortcut"), QStringLiteral("pasteStackShortcut")};
    report.capture = {true, true, true, 3};
    EXPECT_EQ(report.text(),
              version() +
                  QStringLiteral("running as process 42\n"
                                 "shortcuts: held by another program: openPanelShortcut pasteStackShortcut\n"
                                 "history: clips 0, pinned 0, sensitive 0, kept in memory until the program ends (the "
                                 "keyring is locked or closed), no file\n"
                                 "capture: paused, the next copy is ignored, screenshots are saved, copies "
                                 "overtaken 3\n"));
}

TEST(StatusReport, AFileThatRefusesChangesIsTold) {
    StatusReport report;
    report.process = 42;
    report.history = {1, 0, 0, false, nullptr, true};
    report.bytesOnDisk = 4096;
    EXPECT_TRUE(report.text().contains(
        QStringLiteral("kept in the encrypted file, the file refuses changes, bytes on disk 4096\n")));
}

TEST(StatusReport, TheSessionIsToldBySystemDesktopAndLanguages) {
    qputenv("XDG_CURRENT_DESKTOP", "Elsewhere");
    const QString session = StatusReport::thisSession();
    qunsetenv("XDG_CURRENT_DESKTOP");
    EXPECT_TRUE(session.startsWith(QSysInfo::prettyProductName())) << qPrintable(session);
    EXPECT_TRUE(session.contains(QStringLiteral(", desktop Elsewhere, "))) << qPrintable(session);
    EXPECT_TRUE(session.contains(QStringLiteral(", languages "))) << qPrintable(session);
}

} // namespace
} // namespace vellumry
