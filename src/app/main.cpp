// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/CommandLine.h"
#include "app/Errands.h"
#include "app/LinuxPlatform.h"
#include "app/QtNotices.h"
#include "app/ReadyNotice.h"
#include "app/WaylandDisplay.h"
#include "foundation/Localisation.h"
#include "foundation/Logging.h"
#include "linux/look/EmojiInColour.h"
#include "linux/process/MemoryReturn.h"
#include "linux/process/ProcessHardening.h"
#include "linux/process/TerminationSignals.h"
#include "linux/x11/keys/ComposedKeys.h"
#include "linux/x11/windows/XlibConnection.h"
#include "shell/AppDelegate.h"
#include "shell/Ending.h"

#include <QClipboard>
#include <QDBusConnection>
#include <QGuiApplication>
#include <QProcessEnvironment>
#include <chrono>
#include <clocale>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <thread>
#include <unistd.h>
#include <vector>

using namespace vellumry;

namespace {

constexpr int usageError = 2;
/// Everything that was acknowledged is on the disk by then; what waits longer waits for a disk or a keyring that hangs.
constexpr std::chrono::seconds longestEnding{20};

/// Qt's defaults for this program: a third of the memory of the GL renderer, and quicker to its first frame.
DisplayKind chooseQtDefaults() {
    setenv("QT_QUICK_BACKEND", "software", 0);
    setenv("QT_ENABLE_HIGHDPI_SCALING", "1", 0);
    // A change is painted with the next turn of the event loop; Qt would wait 5 ms for more.
    setenv("QT_QPA_UPDATE_IDLE_TIME", "0", 0);
    if (waylanddisplay::isWanted()) {
        // The second where Qt's plugin for the first is not installed.
        setenv("QT_QPA_PLATFORM", "wayland;xcb", 1);
        // Plasma's theme asks for GL, which nothing here draws with: 19 MB of a compiler for shaders.
        if (qgetenv("QT_QUICK_BACKEND") == "software")
            setenv("QT_WAYLAND_CLIENT_BUFFER_INTEGRATION", "none", 0);
        // Our surfaces do have places: Qt is to remember them.
        setenv("QT_WAYLAND_DISABLE_FIXED_POSITIONS", "1", 1);
        return DisplayKind::wayland;
    }
    // Where the compositor lacks what we need, Xwayland serves the panel: a wish for Wayland
    // that is meant for all programs does not count.
    if (qgetenv("QT_QPA_PLATFORM").startsWith("wayland"))
        unsetenv("QT_QPA_PLATFORM");
    setenv("QT_QPA_PLATFORM", "xcb", 0);
    return DisplayKind::x11;
}

/// Dead keys and compose sequences are ours on X11, see `ComposedKeys`, unless the user has another input method.
/// Before the application is made; returns whether they are.
bool leaveComposingToUs(DisplayKind display) {
    if (display != DisplayKind::x11 || !qgetenv("QT_IM_MODULES").isEmpty() ||
        !ComposedKeys::standInFor(qgetenv("QT_IM_MODULE")))
        return false;
    return setenv("QT_IM_MODULE", "none", 1) == 0;
}

/// Text fields of Qt look at the clipboard on every change of it, on the main thread and for as long as the owner keeps
/// silent: ten seconds without a panel. We read it through the pasteboard alone, so that the notice is not needed.
void keepTextFieldsOffTheClipboard() {
    QGuiApplication::clipboard()->blockSignals(true);
}

/// The program as the session's running copy; `given` is the environment that it was started with.
int runProgram(int& argc, char** argv, const QProcessEnvironment& given) {
    DisplayKind display = chooseQtDefaults();
    // Qt would abort without a word that a user sees.
    if (display == DisplayKind::x11 && !XlibConnection::canOpenDisplay())
        return errands::tellOfMissingDisplay(argc, argv);

    const bool composes = leaveComposingToUs(display);
    QGuiApplication application(argc, argv);
    ComposedKeys composedKeys(setlocale(LC_CTYPE, nullptr));
    if (composes)
        application.installEventFilter(&composedKeys);
    QGuiApplication::setDesktopFileName(QStringLiteral("com.vellumry.Vellumry"));
    QGuiApplication::setQuitOnLastWindowClosed(false);
    keepTextFieldsOffTheClipboard();
    drawEmojiInColour();
    // The bus takes its time to let us in: it does so while the display is asked.
    const std::jthread bus([] { (void)QDBusConnection::sessionBus(); });
    installCatalogue();
    if (!QGuiApplication::platformName().startsWith(u"wayland"))
        display = DisplayKind::x11;

    auto platform = makeLinuxPlatform(display, given);
    if (!platform) {
        qCCritical(logging::app).noquote() << "cannot work on this display:" << platform.error().text;
        return 1;
    }
    AppDelegate delegate(std::move(*platform));
    delegate.onStarted = sendReadyNotice;
    if (!delegate.applicationDidFinishLaunching())
        return 0;
    QObject::connect(&application, &QGuiApplication::aboutToQuit, &delegate, &AppDelegate::applicationShouldTerminate);
    const TerminationSignals signals(&endProgram);
    const int status = QGuiApplication::exec();
    endProcessWithin(longestEnding);
    return status;
}

/// The program anew in this process, without what we chose for the first one.
int startAgain(char** argv, const QProcessEnvironment& given) {
    QByteArrayList variables;
    for (const QString& variable : given.toStringList())
        variables.append(variable.toLocal8Bit());
    std::vector<char*> environment;
    for (QByteArray& variable : variables)
        environment.push_back(variable.data());
    environment.push_back(nullptr);
    alarm(0); // the first one has ended in time
    std::error_code unreadable;
    const std::filesystem::path program = std::filesystem::read_symlink("/proc/self/exe", unreadable);
    execve(program.c_str(), argv, environment.data());
    qCCritical(logging::app) << "could not be started again";
    return 1;
}

} // namespace

int main(int argc, char** argv) {
    hardenProcess();
    returnLargeBlocks();
    QCoreApplication::setApplicationName(QStringLiteral("Vellumry"));
    QCoreApplication::setApplicationVersion(QStringLiteral(VELLUMRY_VERSION));

    using Wish = CommandLine::Wish;
    const CommandLine commandLine = CommandLine::read(argc, argv);
    logging::start(commandLine.isVerbose ? logging::Detail::all : logging::Detail::warnings);
    leaveOutQtNotices();
    switch (commandLine.wish) {
    case Wish::say:
        std::fputs(qUtf8Printable(commandLine.text), stdout);
        return 0;
    case Wish::refuse:
        std::fputs(qUtf8Printable(commandLine.text), stderr);
        return usageError;
    case Wish::status:
        return errands::printStatus(argc, argv);
    case Wish::action:
        return errands::askForAction(argc, argv, commandLine.text);
    case Wish::run:
        break;
    }
    const QProcessEnvironment given = QProcessEnvironment::systemEnvironment();
    const int status = runProgram(argc, argv, given);
    return status == restartStatus ? startAgain(argv, given) : status;
}
