// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/StackHUDController.h"

#include "foundation/Localisation.h"
#include "paste/PasteStack.h"
#include "shell/TimerAlarm.h"
#include "views/QmlModules.h"

#include <QQuickItem>
#include <chrono>
#include <cmath>

namespace vellumry {

namespace {

using namespace std::chrono_literals;

constexpr auto fade = 200ms;
constexpr auto finishedStays = 1400ms;
constexpr int belowTop = 6;
constexpr auto helpFade = 100ms;
constexpr int belowBar = 6;

} // namespace

StackHUDController::StackHUDController(PasteStack& stack, PanelSurface& surface, ViewEngine& views)
    : StackHUDController(stack, surface, views, std::make_unique<TimerAlarm>()) {}

StackHUDController::StackHUDController(PasteStack& stack, PanelSurface& surface, ViewEngine& views,
                                       std::unique_ptr<Alarm> alarm)
    : m_model(stack)
    , m_surface(&surface)
    , m_window(surface, views,
               {localised("Paste Stack"),
                QStringLiteral("qrc:/vellumry/Vellumry/Shell/StackHUDView.qml"),
                {{QStringLiteral("stack"), QVariant::fromValue(&m_model)}},
                false})
    , m_help(
          surface, views,
          {QStringLiteral("Vellumry help"), QStringLiteral("qrc:/vellumry/Vellumry/Shell/HelpView.qml"), {}, true, 8})
    , m_hide(std::move(alarm)) {
    keepQmlModule(&qml_register_types_Vellumry_Shell);
    connect(&m_model, &StackHUDModel::stopped, this, [this] { onStop(); });
    connect(&m_window, &PassiveWindow::wantedSizeChanged, this, &StackHUDController::place);
}

void StackHUDController::show() {
    m_hide->cancel();
    QQuickItem& root = m_window.root();
    if (!m_isConnected) {
        connect(&root, SIGNAL(helpChanged()), this, SLOT(helpChanged()));
        m_isConnected = true;
    }
    if (m_window.isVisible()) {
        place();
        m_window.stay(fade);
    } else {
        m_window.appear(wantedFrame(), fade);
    }
}

void StackHUDController::showFinished() {
    show();
    m_hide->ring(finishedStays, [this] { hide(); });
}

void StackHUDController::hide() {
    m_hide->cancel();
    m_help.hide();
    m_window.disappear(fade);
}

void StackHUDController::helpChanged() {
    const QString text = m_window.root().property("help").toString();
    if (text.isEmpty() || !m_window.isVisible()) {
        m_help.hide();
        return;
    }
    m_help.root().setProperty("text", text);
    QRect frame(QPoint(), m_help.wantedSize());
    const QRect bar = m_window.frame();
    const double centre = bar.left() + m_window.root().property("helpCentre").toDouble();
    frame.moveTopLeft({static_cast<int>(std::lround(centre - frame.width() / 2.0)), bar.bottom() + 1 + belowBar});
    m_help.appear(frame, helpFade);
}

/// Follows what the view needs: the hint is wider than the count.
void StackHUDController::place() {
    if (m_window.isVisible())
        m_window.place(wantedFrame());
}

QRect StackHUDController::wantedFrame() {
    QRect frame(m_window.frame().topLeft(), m_window.wantedSize());
    const auto screen = m_window.isVisible() ? m_surface->screenOf(m_window.frame()) : m_surface->screenUnderPointer();
    if (screen) {
        const QRectF visible = screen->visible;
        frame.moveTopLeft({static_cast<int>(std::lround(visible.center().x() - frame.width() / 2.0)),
                           static_cast<int>(std::lround(visible.top())) + belowTop});
    }
    return frame;
}

} // namespace vellumry
