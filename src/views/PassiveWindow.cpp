// SPDX-License-Identifier: GPL-3.0-or-later
#include "views/PassiveWindow.h"

#include "views/ViewEngine.h"

#include <QColor>
#include <QPainterPath>
#include <QPropertyAnimation>
#include <QQuickItem>
#include <QQuickView>
#include <QRegion>
#include <QUrl>
#include <cmath>
#include <utility>

namespace vellumry {

namespace {

constexpr int shadowRoom = 18;

} // namespace

PassiveWindow::PassiveWindow(PanelSurface& surface, ViewEngine& views, Description description)
    : m_surface(&surface)
    , m_views(&views)
    , m_description(std::move(description)) {}

PassiveWindow::~PassiveWindow() = default;

void PassiveWindow::makeView() {
    m_view = m_views->makeWindow(m_description.title);
    m_view->setColor(Qt::transparent);
    m_view->setResizeMode(QQuickView::SizeViewToRootObject);
    m_surface->adopt(m_view.get());
    m_view->setInitialProperties(m_description.properties);
    m_view->setSource(QUrl(m_description.view));
    QQuickItem* item = m_view->rootObject();
    m_fade = new QPropertyAnimation(item, "opacity", item);
    connect(m_fade, &QPropertyAnimation::finished, this, [this, item] {
        if (item->opacity() == 0.0)
            hide();
    });
    connect(item, &QQuickItem::widthChanged, this, &PassiveWindow::wantedSizeChanged);
    connect(item, &QQuickItem::heightChanged, this, &PassiveWindow::wantedSizeChanged);
}

QQuickItem& PassiveWindow::root() {
    if (!m_view)
        makeView();
    return *m_view->rootObject();
}

bool PassiveWindow::isVisible() const {
    return m_view && m_view->isVisible();
}

QRect PassiveWindow::frame() const {
    return m_view ? m_view->geometry().adjusted(m_margin, m_margin, -m_margin, -m_margin) : QRect();
}

QSize PassiveWindow::wantedSize() {
    makeRoom();
    const QQuickItem& item = root();
    return QSize(static_cast<int>(std::ceil(item.width())), static_cast<int>(std::ceil(item.height()))) -
           QSize(2 * m_margin, 2 * m_margin);
}

/// A shadow needs translucent windows; a compositor may come and go.
void PassiveWindow::makeRoom() {
    constexpr const char* property = "shadowMargin";
    QQuickItem& item = root();
    if (!item.property(property).isValid())
        return;
    const int margin = m_surface->canBlend() ? shadowRoom : 0;
    if (std::exchange(m_margin, margin) != margin)
        item.setProperty(property, margin);
}

QRect PassiveWindow::outer(const QRect& frame) const {
    return frame.adjusted(-m_margin, -m_margin, m_margin, m_margin);
}

/// The shadow is no part of what is pressed.
void PassiveWindow::shapeInput(const QSize& size) {
    if (!m_description.clickThrough && m_margin > 0)
        m_surface->setInputArea(m_view.get(), QRect(QPoint(m_margin, m_margin), size));
}

void PassiveWindow::cutCorners(const QSize& size) {
    QRegion shape;
    QColor corners = Qt::transparent;
    if (!m_surface->canBlend()) {
        // The edge of a mask is not smooth: what shows there of the window's own ground would be black.
        corners = root().property("cornerColour").value<QColor>();
        QPainterPath outline;
        outline.addRoundedRect(QRectF(QPointF(), QSizeF(size)), m_description.cornerRadius, m_description.cornerRadius);
        shape = QRegion(outline.toFillPolygon().toPolygon());
    }
    m_view->setColor(corners);
    m_view->setMask(shape);
}

void PassiveWindow::place(const QRect& frame) {
    (void)root();
    makeRoom();
    cutCorners(frame.size());
    m_view->setGeometry(outer(frame));
    shapeInput(frame.size());
}

void PassiveWindow::appear(const QRect& frame, std::chrono::milliseconds fade) {
    root().setOpacity(0);
    makeRoom();
    cutCorners(frame.size());
    fadeTo(1, fade);
    m_surface->presentPassive(m_view.get(), outer(frame), m_description.clickThrough);
    shapeInput(frame.size());
}

void PassiveWindow::stay(std::chrono::milliseconds fade) {
    if (isVisible() && m_fade->endValue().toDouble() < 1)
        fadeTo(1, fade);
}

void PassiveWindow::disappear(std::chrono::milliseconds fade) {
    if (isVisible())
        fadeTo(0, fade);
}

void PassiveWindow::hide() {
    if (!m_view)
        return;
    m_fade->stop();
    m_view->hide();
}

void PassiveWindow::fadeTo(double opacity, std::chrono::milliseconds duration) {
    m_fade->stop();
    const bool moves = m_surface->canBlend() && !m_surface->reducesMotion() && !m_views->isStill();
    m_fade->setDuration(moves ? static_cast<int>(duration.count()) : 0);
    m_fade->setStartValue(root().opacity());
    m_fade->setEndValue(opacity);
    m_fade->start();
}

} // namespace vellumry
