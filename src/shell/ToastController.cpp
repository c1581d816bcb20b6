// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/ToastController.h"

#include "shell/TimerAlarm.h"

#include <QQuickItem>
#include <chrono>
#include <cmath>

namespace vellumry {

namespace {

using namespace std::chrono_literals;

constexpr auto fadeIn = 180ms;
constexpr int aboveBottom = 72;

QString wordOf(ToastMessage::Tone tone) {
    switch (tone) {
    case ToastMessage::Tone::success:
        return QStringLiteral("success");
    case ToastMessage::Tone::info:
        return QStringLiteral("info");
    case ToastMessage::Tone::warning:
        return QStringLiteral("warning");
    }
    return QString();
}

} // namespace

ToastController::ToastController(PanelSurface& surface, ViewEngine& views)
    : ToastController(surface, views, std::make_unique<TimerAlarm>()) {}

ToastController::ToastController(PanelSurface& surface, ViewEngine& views, std::unique_ptr<Alarm> alarm)
    : m_window(
          surface, views,
          {QStringLiteral("Vellumry message"), QStringLiteral("qrc:/vellumry/Vellumry/Shell/ToastView.qml"), {}, true})
    , m_hide(std::move(alarm)) {}

void ToastController::show(const ToastMessage& message, double seconds, const std::optional<ScreenPlace>& screen) {
    QQuickItem& root = m_window.root();
    root.setProperty("symbol", message.symbol);
    root.setProperty("message", message.text);
    root.setProperty("tone", wordOf(message.tone));
    if (screen)
        root.setProperty("maximumWidth", screen->visible.width());
    QRect frame(m_window.frame().topLeft(), m_window.wantedSize());
    if (screen) {
        const QRectF visible = screen->visible;
        frame.moveTopLeft({static_cast<int>(std::lround(visible.center().x() - frame.width() / 2.0)),
                           static_cast<int>(visible.bottom()) - aboveBottom - frame.height()});
    }
    m_window.appear(frame, fadeIn);
    m_hide->ring(std::chrono::milliseconds(std::lround(seconds * 1000)), [this] { m_window.hide(); });
}

} // namespace vellumry
