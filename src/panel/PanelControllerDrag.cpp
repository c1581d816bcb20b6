// SPDX-License-Identifier: GPL-3.0-or-later

// The panel out of the way of what is dragged from it.

#include "panel/PanelController.h"
#include "panel/RowAppearance.h"

#include <QCursor>
#include <QGuiApplication>
#include <QQuickItem>
#include <QQuickView>
#include <QRegion>
#include <utility>

namespace vellumry {

namespace {

constexpr int fadeOut = 150; // milliseconds
/// Where the pointer holds the picture of what it carries.
constexpr int holdsAt = 24;

} // namespace

void PanelController::wireDrags() {
    m_facade.drag().setSource(m_hooks.dragSource);
    m_facade.drag().onPhase = [this](PanelDrag::Phase phase) { dragPhase(phase); };
    m_facade.drag().onMoved = [this] { showDragged(); };
    // A title has its width when it is laid out, just before it is painted.
    connect(&m_dragged, &PassiveWindow::wantedSizeChanged, this, [this] {
        if (m_dragged.isVisible())
            showDragged();
    });
}

void PanelController::dragPhase(PanelDrag::Phase phase) {
    if (phase == PanelDrag::Phase::began) {
        stepAside();
        return;
    }
    comeBack();
    if (phase == PanelDrag::Phase::dropped)
        hide();
}

/// Out of sight and out of the pointer's way. Not hidden: the window holds the pointer as long as the button is down.
void PanelController::stepAside() {
    m_lostFocus = false;
    m_surface->setInputArea(m_view.get(), QRect());
    if (fades()) {
        m_fade.setDirection(QAbstractAnimation::Backward);
        m_fade.setDuration(fadeOut);
        m_fade.start();
    } else if (m_surface->canBlend()) {
        m_view->setOpacity(0);
    } else {
        m_view->setMask(QRegion(-2, -2, 1, 1)); // an empty one would be none
    }
    QGuiApplication::setOverrideCursor(Qt::DragCopyCursor);
    const std::vector<ClipRef>& clips = m_facade.drag().clips();
    QQuickItem& picture = m_dragged.root();
    picture.setProperty("title", row::titleOf(*clips.front()));
    picture.setProperty("symbol", row::symbolOf(*clips.front()));
    picture.setProperty("count", clips.size() > 1 ? QString::number(clips.size()) : QString());
    m_dragged.appear(QRect(QPoint(), m_dragged.wantedSize()), std::chrono::milliseconds(0));
    showDragged();
}

void PanelController::showDragged() {
    const QSize size = m_dragged.wantedSize();
    m_dragged.place(QRect(QCursor::pos() - QPoint(holdsAt, size.height() / 2), size));
}

void PanelController::comeBack() {
    m_dragged.hide();
    QGuiApplication::restoreOverrideCursor();
    m_fade.stop();
    m_fade.setDirection(QAbstractAnimation::Forward);
    m_fade.setDuration(fadeIn);
    m_view->setOpacity(1);
    applyLook();
    // Where the focus follows the pointer, another window has the keyboard by now.
    if (std::exchange(m_lostFocus, false))
        m_surface->present(m_view.get(), std::nullopt);
}

} // namespace vellumry
