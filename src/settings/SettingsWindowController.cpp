// SPDX-License-Identifier: GPL-3.0-or-later
#include "settings/SettingsWindowController.h"

#include "foundation/Localisation.h"
#include "settings/SettingsModel.h"
#include "transfer/TransferModel.h"
#include "views/QmlModules.h"
#include "views/ViewEngine.h"

#include <QKeyEvent>
#include <QQuickItem>
#include <QQuickView>
#include <QScreen>
#include <algorithm>

namespace vellumry {

namespace {

constexpr QSize usualSize(540, 640);
constexpr int leastHeight = 320;

} // namespace

SettingsWindowController::SettingsWindowController(SettingsModel& model, TransferModel& transfer, ViewEngine& views)
    : m_model(&model)
    , m_transfer(&transfer)
    , m_views(&views) {}

SettingsWindowController::~SettingsWindowController() = default;

void SettingsWindowController::make() {
    keepQmlModule(&qml_register_types_Vellumry_Settings);
    keepQmlModule(&qml_register_types_Vellumry_Transfer);
    m_view = m_views->makeOrdinaryWindow(localised("Vellumry Settings"));
    m_view->setResizeMode(QQuickView::SizeRootObjectToView);
    m_view->setInitialProperties({{QStringLiteral("settings"), QVariant::fromValue(m_model)},
                                  {QStringLiteral("transfer"), QVariant::fromValue(m_transfer)}});
    m_view->setSource(QUrl(QStringLiteral("qrc:/vellumry/Vellumry/Settings/SettingsView.qml")));
    m_view->setMinimumSize(QSize(usualSize.width(), leastHeight));
    m_view->setMaximumWidth(usualSize.width());
    m_view->installEventFilter(this);
}

void SettingsWindowController::show(int pane) {
    m_model->refreshAll();
    if (!m_view)
        make();
    if (QQuickItem* root = m_view->rootObject())
        root->setProperty("pane", pane);
    if (!m_view->isVisible()) {
        const QRect room = m_view->screen() ? m_view->screen()->availableGeometry() : QRect(QPoint(), usualSize);
        const QSize size(usualSize.width(), std::min(usualSize.height(), room.height() * 9 / 10));
        QRect frame(QPoint(), size);
        frame.moveCenter(room.center());
        m_view->setGeometry(frame);
    }
    bringForward();
}

void SettingsWindowController::bringForward() {
    m_view->show();
    m_view->raise();
    m_view->requestActivate();
}

void SettingsWindowController::close() {
    if (m_view)
        m_view->close();
}

bool SettingsWindowController::isVisible() const {
    return m_view && m_view->isVisible();
}

bool SettingsWindowController::eventFilter(QObject* watched, QEvent* event) {
    switch (event->type()) {
    case QEvent::FocusOut:
        m_model->stopRecording();
        break;
    case QEvent::Close:
        m_model->stopRecording();
        // Opened once in a long while, and quickly made again.
        m_views->discard(std::move(m_view));
        break;
    case QEvent::FocusIn:
        m_model->refreshAll();
        break;
    default:
        break;
    }
    return QObject::eventFilter(watched, event);
}

} // namespace vellumry
