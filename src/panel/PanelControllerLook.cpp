// SPDX-License-Identifier: GPL-3.0-or-later

// How the panel's window looks, and that it stays in sight.

#include "panel/PanelController.h"

#include <QFontDatabase>
#include <QGuiApplication>
#include <QPainterPath>
#include <QQuickItem>
#include <QQuickView>
#include <QRegion>
#include <QScreen>
#include <algorithm>

namespace vellumry {

namespace {

constexpr int shadowRoom = 40;
constexpr int cornerRadius = 14;

/// Round corners for windows that cannot blend.
QRegion roundedMask(const QSize& size) {
    QPainterPath outline;
    outline.addRoundedRect(QRectF(QPointF(), QSizeF(size)), cornerRadius, cornerRadius);
    return QRegion(outline.toFillPolygon().toPolygon());
}

} // namespace

/// Texts that are twice as large need twice the room. A display that is too small for that is filled.
void PanelController::fitTo(const std::optional<ScreenPlace>& screen) {
    const QSize wanted = (QSizeF(panelSize) * std::max(1.0, m_views->textScale())).toSize();
    m_size = screen ? wanted.boundedTo(screen->visible.size()).expandedTo(panelSize) : wanted;
}

/// Room for a shadow where windows may be translucent, and cut corners where not.
void PanelController::applyLook() {
    m_shadowMargin = m_surface->canBlend() ? shadowRoom : 0;
    m_facade.setShadowMargin(m_shadowMargin);
    const QSize size = m_size + QSize(2 * m_shadowMargin, 2 * m_shadowMargin);
    m_view->resize(size);
    m_view->setMask(m_shadowMargin > 0 ? QRegion() : roundedMask(size));
    // The edge of a mask is not smooth: what shows there of the window's own ground would be black.
    const QQuickItem* root = m_view->rootObject();
    const bool isBare = m_shadowMargin > 0 || root == nullptr;
    m_view->setColor(isBare ? QColor(Qt::transparent) : root->property("cornerColour").value<QColor>());
    shapeInput();
}

/// The shadow is not the panel: a click there is meant for what lies below. Set again on each display, because the
/// server counts in that display's pixels.
void PanelController::shapeInput() {
    m_surface->setInputArea(m_view.get(), QRect(QPoint(m_shadowMargin, m_shadowMargin), m_size));
}

bool PanelController::isStill() const {
    return m_surface->reducesMotion() || m_views->isStill();
}

void PanelController::followLook() {
    const ThemeColors& colors = m_views->colors();
    m_preview.setLook({.text = colors.text,
                       .ground = colors.ground,
                       .accent = colors.accent,
                       .mark = colors.selected,
                       .fixedFamily = QFontDatabase::systemFont(QFontDatabase::FixedFont).family()});
    // A window without a shadow has the edge's colour in its corners.
    if (!m_view)
        return;
    const QSize before = m_size;
    const auto screen = isVisible() ? m_surface->screenOf(panelFrame().toAlignedRect()) : std::optional<ScreenPlace>();
    if (screen)
        fitTo(screen);
    if (screen && m_size != before)
        standOn(*screen);
    else
        applyLook();
}

/// A display may go, or become smaller, while the panel stands on it. The display server tells that in several steps.
void PanelController::followDisplays() {
    const auto look = [this] { QTimer::singleShot(0, this, &PanelController::stayInSight); };
    const auto follow = [this, look](const QScreen* screen) {
        connect(screen, &QScreen::geometryChanged, this, look);
        connect(screen, &QScreen::availableGeometryChanged, this, look);
    };
    for (const QScreen* screen : QGuiApplication::screens())
        follow(screen);
    connect(qGuiApp, &QGuiApplication::screenAdded, this, follow);
    connect(qGuiApp, &QGuiApplication::screenRemoved, this, look);
}

void PanelController::stayInSight() {
    if (!isVisible())
        return;
    const QRectF frame = panelFrame();
    std::optional<ScreenPlace> screen = m_surface->screenOf(frame.toAlignedRect());
    if (screen && QRectF(screen->visible).contains(frame))
        return;
    if (!screen)
        screen = m_surface->screenUnderPointer();
    if (!screen)
        return;
    standOn(*screen);
}

/// At its place on that display, as large as there is room.
void PanelController::standOn(const ScreenPlace& screen) {
    m_slide.stop();
    fitTo(screen);
    applyLook();
    m_view->setGeometry(windowFrame(placement::placement(m_hooks.position(screen.key), m_size, screen.visible)));
    shapeInput();
}

} // namespace vellumry
