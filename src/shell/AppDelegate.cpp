// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/AppDelegate.h"

#include "foundation/Logging.h"
#include "foundation/SerialExecutor.h"
#include "shell/AppEnvironment.h"
#include "shell/Ending.h"
#include "shell/StatusReport.h"

#include <QCoreApplication>
#include <QEvent>
#include <QHash>
#include <QKeyEvent>
#include <QPointer>
#include <algorithm>
#include <iterator>

namespace vellumry {

namespace {

/// A program that asks for nonsense all the time must not fill the log.
constexpr quint64 mostUnknownActionsLogged = 10;

/// What is missing is worth a line in every log; what is there, when it is asked for.
void logLines(const std::vector<Capability>& capabilities) {
    for (const Capability& capability : capabilities) {
        if (capability.isFound || capability.isOptional)
            qCInfo(logging::app).noquote() << lineOf(capability);
        else
            qCWarning(logging::app).noquote() << lineOf(capability);
    }
}

} // namespace

AppDelegate::AppDelegate(Platform platform)
    : m_platform(std::move(platform)) {
    QCoreApplication::instance()->installEventFilter(this);
}

AppDelegate::~AppDelegate() = default;

bool AppDelegate::applicationDidFinishLaunching() {
    if (m_platform.singleInstance->isAnotherCopyRunning()) {
        qCInfo(logging::app) << "the program runs already: that copy was asked to show itself";
        return false;
    }
    m_platform.singleInstance->onReopen = [this] { reopen(); };
    m_platform.singleInstance->onAction = [this](const QString& action) { perform(action); };
    m_platform.singleInstance->onStatus = [this] { return status(); };
    logLines(m_platform.capabilities);
    findCapabilities();
    launch();
    return true;
}

/// The keys that every window of the program has, whatever has the keyboard in it: Ctrl+, and Ctrl+Q, which only closes
/// the panel.
bool AppDelegate::isWindowKey(const QKeyEvent& event) {
    if (!m_environment || event.modifiers() != Qt::ControlModifier || m_environment->settingsModel().isRecording())
        return false;
    if (event.key() == Qt::Key_Comma)
        m_environment->openSettings();
    else if (event.key() == Qt::Key_Q && !m_environment->panel().isVisible())
        endProgram();
    else
        return false;
    return true;
}

/// Qt closes all windows when it is told to quit, by a session's end for one. None of them was closed by the user then.
bool AppDelegate::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Quit)
        applicationShouldTerminate();
    if (event->type() == QEvent::KeyPress && watched->isWindowType() && isWindowKey(static_cast<QKeyEvent&>(*event)))
        return true;
    return QObject::eventFilter(watched, event);
}

void AppDelegate::applicationShouldTerminate() {
    if (m_environment)
        m_environment->setQuitting();
}

void AppDelegate::launch() {
    m_environment = AppEnvironment::launch(m_platform);
    m_environment->onReady = onStarted;
    m_environment->start();
}

void AppDelegate::findCapabilities() {
    m_finder = std::make_unique<SerialExecutor>("Capabilities", true);
    m_finder->post([self = QPointer(this), find = m_platform.findCapabilities] {
        postToMain([self, found = find()] {
            if (!self)
                return;
            logLines(found);
            std::ranges::copy(found, std::back_inserter(self->m_platform.capabilities));
            self->m_finder.reset();
        });
    });
}

QString AppDelegate::status() const {
    StatusReport report;
    report.process = QCoreApplication::applicationPid();
    report.session = StatusReport::thisSession();
    report.displays = StatusReport::theseDisplays();
    report.capabilities = m_environment ? m_environment->capabilities() : m_platform.capabilities;
    if (m_environment)
        m_environment->describe(report);
    return report.text();
}

void AppDelegate::reopen() {
    if (m_environment)
        m_environment->reopen();
}

void AppDelegate::perform(const QString& action) {
    if (!m_environment)
        return;
    static const QHash<QString, void (AppEnvironment::*)()> actions{
        {QStringLiteral("open-panel"), &AppEnvironment::togglePanel},
        {QStringLiteral("toggle-stack"), &AppEnvironment::toggleStack},
        {QStringLiteral("pause"), &AppEnvironment::togglePause},
        {QStringLiteral("ignore-next"), &AppEnvironment::toggleIgnoreNext},
        {QStringLiteral("toggle-screenshots"), &AppEnvironment::toggleScreenshots},
        {QStringLiteral("clear"), &AppEnvironment::askToClear},
        {QStringLiteral("open-settings"), &AppEnvironment::openSettings},
    };
    const QLatin1String pin("paste-pin-");
    if (const auto wanted = actions.value(action))
        (m_environment.get()->*wanted)();
    else if (const int number = action.startsWith(pin) ? action.mid(pin.size()).toInt() : 0; number >= 1 && number <= 9)
        m_environment->pastePinned(number);
    else if (action == QLatin1String("quit"))
        endProgram();
    else if (m_unknownActions++ < mostUnknownActionsLogged)
        qCWarning(logging::shell) << "an unknown action was asked for";
}

} // namespace vellumry
