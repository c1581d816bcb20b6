// SPDX-License-Identifier: GPL-3.0-or-later
#include "views/ViewEngine.h"

#include "foundation/InterfaceLocale.h"
#include "views/QmlModules.h"
#include "views/SymbolProvider.h"

#include <QEvent>
#include <QGuiApplication>
#include <QPalette>
#include <QQmlEngine>
#include <QQuickView>

namespace vellumry {

ViewEngine::ViewEngine() {
    QGuiApplication::setLayoutDirection(interfaceLocale().textDirection());
    qGuiApp->installEventFilter(this);
    resolve();
}

ViewEngine::~ViewEngine() = default;

QQmlEngine& ViewEngine::engine() {
    if (!m_engine) {
        keepQmlModule(&qml_register_types_Vellumry_Views);
        m_engine = std::make_unique<QQmlEngine>(this);
        m_engine->addImportPath(QStringLiteral("qrc:/vellumry"));
        m_engine->addImageProvider(QStringLiteral("symbol"), new SymbolProvider);
    }
    return *m_engine;
}

std::unique_ptr<QQuickView> ViewEngine::makeWindow(const QString& title) {
    auto window = std::make_unique<QQuickView>(&engine(), nullptr);
    window->setTitle(title);
    return window;
}

void ViewEngine::setAppearance(Appearance appearance) {
    m_appearance = appearance;
    resolve();
}

bool ViewEngine::eventFilter(QObject* watched, QEvent* event) {
    if (watched == qGuiApp && event->type() == QEvent::ApplicationPaletteChange)
        resolve();
    return QObject::eventFilter(watched, event);
}

void ViewEngine::resolve() {
    const bool systemIsDark = QGuiApplication::palette().color(QPalette::Window).lightness() < 128;
    const bool isDark = m_appearance == Appearance::system ? systemIsDark : m_appearance == Appearance::dark;
    if (isDark == m_isDark)
        return;
    m_isDark = isDark;
    Q_EMIT darkChanged();
}

} // namespace vellumry
