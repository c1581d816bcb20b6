// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/LinuxPlatform.h"
#include "app/ReadyNotice.h"
#include "foundation/Localisation.h"
#include "linux/process/MemoryReturn.h"
#include "linux/process/ProcessHardening.h"
#include "shell/AppDelegate.h"

#include <QClipboard>
#include <QGuiApplication>
#include <cstdio>
#include <cstdlib>

using namespace vellumry;

namespace {

/// Qt's defaults for this program: a third of the memory of the GL renderer, and quicker to its first frame.
void chooseQtDefaults() {
    setenv("QT_QUICK_BACKEND", "software", 0);
    setenv("QT_ENABLE_HIGHDPI_SCALING", "1", 0);
    // A change is painted with the next turn of the event loop; Qt would wait 5 ms for more.
    setenv("QT_QPA_UPDATE_IDLE_TIME", "0", 0);
    // The panel's place and focus are handled on X11; under a Wayland session Xwayland serves it.
    if (std::getenv("DISPLAY"))
        setenv("QT_QPA_PLATFORM", "xcb", 0);
}

/// Text fields of Qt look at the clipboard on every change of it, on the main thread and for as long as the owner keeps
/// silent: ten seconds without a panel. We read it through the pasteboard alone, so that nobody misses the notice.
void keepTextFieldsOffTheClipboard() {
    QGuiApplication::clipboard()->blockSignals(true);
}

} // namespace

int main(int argc, char** argv) {
    hardenProcess();
    returnLargeBlocks();
    chooseQtDefaults();

    QGuiApplication application(argc, argv);
    QGuiApplication::setApplicationName(QStringLiteral("Vellumry"));
    QGuiApplication::setDesktopFileName(QStringLiteral("com.vellumry.Vellumry"));
    QGuiApplication::setQuitOnLastWindowClosed(false);
    keepTextFieldsOffTheClipboard();
    installCatalogue();

    std::optional<Platform> platform = makeLinuxPlatform();
    if (!platform) {
        std::fputs("Vellumry needs an X11 display (under Wayland: Xwayland) and found none.\n", stderr);
        return 1;
    }
    AppDelegate delegate(std::move(*platform));
    delegate.onStarted = sendReadyNotice;
    if (!delegate.applicationDidFinishLaunching())
        return 0;
    QObject::connect(&application, &QGuiApplication::aboutToQuit, &delegate, &AppDelegate::applicationShouldTerminate);
    return QGuiApplication::exec();
}
