// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/AlertWindow.h"

#include "foundation/Localisation.h"
#include "views/ViewEngine.h"

#include <QEvent>
#include <QQuickItem>
#include <QQuickView>

namespace vellumry {

AlertWindow::AlertWindow(const StartupAlert& alert, ViewEngine& views)
    : AlertWindow(QVariantMap{{QStringLiteral("title"), alert.title},
                              {QStringLiteral("message"), alert.text},
                              {QStringLiteral("button"), localised("OK")}},
                  views) {}

AlertWindow::AlertWindow(const Question& question, ViewEngine& views)
    : AlertWindow(QVariantMap{{QStringLiteral("title"), question.title},
                              {QStringLiteral("message"), question.text},
                              {QStringLiteral("button"), question.cancel},
                              {QStringLiteral("action"), question.confirm}},
                  views) {}

AlertWindow::AlertWindow(const QVariantMap& properties, ViewEngine& views)
    : m_view(views.makeOrdinaryWindow(QStringLiteral("Vellumry"))) {
    m_view->setResizeMode(QQuickView::SizeViewToRootObject);
    m_view->setInitialProperties(properties);
    m_view->setSource(QUrl(QStringLiteral("qrc:/vellumry/Vellumry/Shell/AlertView.qml")));
    m_view->installEventFilter(this);
    if (QQuickItem* root = m_view->rootObject()) {
        connect(root, SIGNAL(confirmed()), this, SLOT(confirm()));
        connect(root, SIGNAL(answered()), m_view.get(), SLOT(close()));
    }
}

AlertWindow::~AlertWindow() = default;

void AlertWindow::show() {
    const QSize size = m_view->size();
    m_view->setFlags(Qt::Dialog | Qt::WindowTitleHint | Qt::WindowCloseButtonHint);
    m_view->setMinimumSize(size);
    m_view->setMaximumSize(size);
    m_view->show();
    m_view->raise();
    m_view->requestActivate();
}

bool AlertWindow::eventFilter(QObject* watched, QEvent* event) {
    if (watched == m_view.get() && event->type() == QEvent::Close)
        finish();
    return QObject::eventFilter(watched, event);
}

void AlertWindow::confirm() {
    if (onConfirmed)
        onConfirmed();
}

void AlertWindow::finish() {
    if (onDone)
        onDone();
}

} // namespace vellumry
