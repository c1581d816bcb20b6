// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/ToastController.h"

#include "panel/SymbolProvider.h"

#include <QPainterPath>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickView>
#include <QRegion>
#include <chrono>
#include <cmath>

namespace vellumry {

namespace {

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

QRegion capsule(const QSize& size) {
    QPainterPath outline;
    outline.addRoundedRect(QRectF(QPointF(), QSizeF(size)), 14, 14);
    return QRegion(outline.toFillPolygon().toPolygon());
}

} // namespace

ToastController::ToastController(PanelSurface& surface)
    : m_surface(&surface) {
    m_hide.setSingleShot(true);
    m_hide.setTimerType(Qt::PreciseTimer);
    connect(&m_hide, &QTimer::timeout, this, [this] { m_view->hide(); });
}

ToastController::~ToastController() = default;

void ToastController::makeView() {
    m_view = std::make_unique<QQuickView>();
    m_view->setTitle(QStringLiteral("Vellumry message"));
    m_view->setColor(Qt::transparent);
    m_view->setResizeMode(QQuickView::SizeViewToRootObject);
    m_view->engine()->addImageProvider(QStringLiteral("symbol"), new SymbolProvider);
    m_surface->adopt(m_view.get());
    m_view->setSource(QUrl(QStringLiteral("qrc:/vellumry/shell/ToastView.qml")));
}

void ToastController::show(const ToastMessage& message, double seconds, const std::optional<ScreenPlace>& screen) {
    if (!m_view)
        makeView();
    QQuickItem* root = m_view->rootObject();
    root->setProperty("symbol", message.symbol);
    root->setProperty("message", message.text);
    root->setProperty("tone", wordOf(message.tone));
    root->setProperty("dark", m_isDark);
    const QSize size(static_cast<int>(std::ceil(root->width())), static_cast<int>(std::ceil(root->height())));
    m_view->setMask(m_surface->canBlend() ? QRegion() : capsule(size));
    QRect frame(m_view->position(), size);
    if (screen) {
        const QRectF visible = screen->visible;
        frame.moveTopLeft({static_cast<int>(std::lround(visible.center().x() - size.width() / 2.0)),
                           static_cast<int>(visible.bottom()) - aboveBottom - size.height()});
    }
    m_surface->presentPassive(m_view.get(), frame, true);
    m_hide.start(std::chrono::milliseconds(std::lround(seconds * 1000)));
}

} // namespace vellumry
