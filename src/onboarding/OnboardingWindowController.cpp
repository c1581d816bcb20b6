// SPDX-License-Identifier: GPL-3.0-or-later
#include "onboarding/OnboardingWindowController.h"

#include "foundation/Localisation.h"
#include "onboarding/OnboardingModel.h"
#include "transfer/TransferModel.h"
#include "views/QmlModules.h"
#include "views/ViewEngine.h"

#include <QEvent>
#include <QQuickView>
#include <QScreen>
#include <algorithm>

namespace vellumry {

namespace {

constexpr QSize usualSize(640, 560);
constexpr int leastHeight = 320;

} // namespace

OnboardingWindowController::OnboardingWindowController(OnboardingModel& model, TransferModel& transfer,
                                                       ViewEngine& views)
    : m_model(&model)
    , m_transfer(&transfer)
    , m_views(&views) {}

OnboardingWindowController::~OnboardingWindowController() = default;

void OnboardingWindowController::make() {
    keepQmlModule(&qml_register_types_Vellumry_Onboarding);
    keepQmlModule(&qml_register_types_Vellumry_Transfer);
    m_view = m_views->makeOrdinaryWindow(localised("Welcome to Vellumry"));
    m_view->setResizeMode(QQuickView::SizeRootObjectToView);
    m_view->setInitialProperties({{QStringLiteral("onboarding"), QVariant::fromValue(m_model)},
                                  {QStringLiteral("transfer"), QVariant::fromValue(m_transfer)}});
    m_view->setSource(QUrl(QStringLiteral("qrc:/vellumry/Vellumry/Onboarding/OnboardingView.qml")));
    m_view->setMinimumSize(QSize(usualSize.width(), leastHeight));
    m_view->setMaximumWidth(usualSize.width());
    m_view->installEventFilter(this);
}

void OnboardingWindowController::show() {
    if (!m_view)
        make();
    if (!m_view->isVisible()) {
        const QRect room = m_view->screen() ? m_view->screen()->availableGeometry() : QRect(QPoint(), usualSize);
        QRect frame(QPoint(), QSize(usualSize.width(), std::min(usualSize.height(), room.height() * 9 / 10)));
        frame.moveCenter(room.center());
        m_view->setGeometry(frame);
    }
    m_view->show();
    m_view->raise();
    m_view->requestActivate();
}

void OnboardingWindowController::close() {
    if (m_view)
        m_view->close();
}

bool OnboardingWindowController::isVisible() const {
    return m_view && m_view->isVisible();
}

bool OnboardingWindowController::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Close) {
        m_views->discard(std::move(m_view));
        if (!isQuitting())
            onClose();
    }
    return QObject::eventFilter(watched, event);
}

} // namespace vellumry
