// SPDX-License-Identifier: GPL-3.0-or-later
#include "views/ViewEngine.h"

#include "foundation/InterfaceLocale.h"
#include "views/Logo.h"
#include "views/QmlModules.h"
#include "views/SymbolProvider.h"

#include <QEvent>
#include <QGuiApplication>
#include <QPalette>
#include <QQmlEngine>
#include <QQuickView>
#include <algorithm>
#include <utility>

namespace vellumry {

ViewEngine::ViewEngine() {
    QGuiApplication::setLayoutDirection(interfaceLocale().textDirection());
    qGuiApp->installEventFilter(this);
    resolve();
}

ViewEngine::~ViewEngine() {
    // No view outlives the engine, at the end of the program either.
    for (const QPointer<QQuickView>& window : m_discarded)
        delete window.data();
}

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

std::unique_ptr<QQuickView> ViewEngine::makeOrdinaryWindow(const QString& title) {
    auto window = makeWindow(title);
    // One for all windows: Qt keeps the pictures of an icon in a cache when its window has gone.
    if (QGuiApplication::windowIcon().isNull())
        QGuiApplication::setWindowIcon(Logo::windowIcon());
    window->setIcon(QGuiApplication::windowIcon());
    return window;
}

void ViewEngine::discard(std::unique_ptr<QQuickView> window) {
    if (!window)
        return;
    connect(window.get(), &QObject::destroyed, this, [this] {
        m_engine->collectGarbage();
        m_engine->trimComponentCache();
    });
    std::erase(m_discarded, nullptr);
    m_discarded.emplace_back(window.get());
    window.release()->deleteLater();
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

void ViewEngine::setDesktopLook(const DesktopLook& look) {
    const bool isOtherSize = std::exchange(m_look, look).textScale != look.textScale;
    resolve();
    if (isOtherSize)
        Q_EMIT lookChanged();
}

double ViewEngine::textScale() const {
    constexpr double least = 0.8;
    constexpr double most = 3;
    return std::clamp(m_look.textScale, least, most);
}

void ViewEngine::resolve() {
    const auto paletteIsDark = [] { return QGuiApplication::palette().color(QPalette::Window).lightness() < 128; };
    ColorChoice choice;
    choice.isDark =
        m_appearance == Appearance::system ? m_look.isDark.value_or(paletteIsDark()) : m_appearance == Appearance::dark;
    choice.isHighContrast = m_look.isHighContrast;
    if (m_look.accent)
        choice.accent = QColor::fromRgb(*m_look.accent);
    if (choice == m_choice)
        return;
    m_choice = choice;
    m_colors = ThemeColors::of(choice);
    Q_EMIT lookChanged();
}

} // namespace vellumry
