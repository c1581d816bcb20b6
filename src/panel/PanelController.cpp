// SPDX-License-Identifier: GPL-3.0-or-later
#include "panel/PanelController.h"

#include "history/clips/ClipStore.h"
#include "views/QmlModules.h"
#include "views/ThumbnailProvider.h"

#include <QCursor>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickView>

namespace vellumry {

namespace {

constexpr int draggedRadius = 8;
constexpr int settleIn = 160; // milliseconds
const QString thumbnails = QStringLiteral("thumbnail");
const QString previews = QStringLiteral("preview");

} // namespace

PanelController::PanelController(ClipStore& store, PasteEngine& paster, Pasteboard& pasteboard, PanelSurface& surface,
                                 ViewEngine& views, Hooks hooks)
    : m_model(store, paster)
    , m_facade(m_model, pasteboard, hooks.openPanelKeys)
    , m_preview(m_model, hooks.preview)
    , m_surface(&surface)
    , m_views(&views)
    , m_hooks(std::move(hooks))
    , m_dragged(surface, views,
                {QStringLiteral("Vellumry drag"),
                 QStringLiteral("qrc:/vellumry/Vellumry/Panel/DragPreview.qml"),
                 {},
                 true,
                 draggedRadius}) {
    m_model.onClose = [this] { hide(); };
    m_model.onToast = m_hooks.showToast;
    m_facade.keyCodeOf = m_hooks.keyCodeOf;
    if (m_hooks.statusMenu)
        m_facade.statusMenu = [this] { return closingFirst(m_hooks.statusMenu()); };
    m_facade.onRequestAccessibility = [this] { m_hooks.requestAccessibility(); };
    wireDrags();
    connect(m_views, &ViewEngine::lookChanged, this, &PanelController::followLook);
    followLook();
    m_facade.onGrabbed = [this](QPoint place) { grab(place); };
    m_facade.onDragged = [this] { drag(); };
    m_facade.onDropped = [this] { drop(); };
    m_fade.setPropertyName("opacity");
    m_fade.setStartValue(0.0);
    m_fade.setEndValue(1.0);
    m_fade.setDuration(fadeIn);
    connect(&m_slide, &QVariantAnimation::valueChanged, this, [this](const QVariant& frame) {
        if (m_slide.state() == QAbstractAnimation::Running)
            m_view->setGeometry(frame.toRect());
    });
    m_slide.setDuration(settleIn);
    m_slide.setEasingCurve(QEasingCurve::OutCubic);
    m_settle.setSingleShot(true);
    m_settle.setInterval(m_hooks.settleDelay);
    connect(&m_settle, &QTimer::timeout, this, &PanelController::settlePosition);
    m_forget.setSingleShot(true);
    m_forget.setInterval(m_hooks.forgetDelay);
    connect(&m_forget, &QTimer::timeout, this, &PanelController::forgetTyped);
    m_surface->onFocusLost = [this](QWindow* window) {
        if (!m_view || window != m_view.get())
            return;
        if (m_facade.drag().isActive())
            m_lostFocus = true;
        else
            hide();
    };
}

PanelController::~PanelController() {
    m_surface->onFocusLost = nullptr;
    if (m_view)
        m_views->engine().removeImageProvider(thumbnails);
}

/// Entries that paste need the keyboard back where the user was typing, and the others show what they did elsewhere.
std::vector<ActionMenuItem> PanelController::closingFirst(std::vector<ActionMenuItem> items) {
    for (ActionMenuItem& item : items) {
        item.items = closingFirst(std::move(item.items));
        if (item.handler)
            item.handler = [this, handler = std::move(item.handler)] {
                hide();
                handler();
            };
    }
    return items;
}

void PanelController::setStack(PasteStack& stack) {
    m_facade.setStack(stack);
    m_preview.setStack(stack);
}

void PanelController::makeView() {
    keepQmlModule(&qml_register_types_Vellumry_Panel);
    m_view = m_views->makeWindow(QStringLiteral("Vellumry"));
    m_view->setColor(Qt::transparent);
    m_view->setResizeMode(QQuickView::SizeRootObjectToView);
    m_views->engine().addImageProvider(thumbnails,
                                       new ThumbnailProvider([this](const QUuid& id) -> std::optional<QByteArray> {
                                           const ClipRef clip = m_model.store().find(id);
                                           return clip ? clip->thumbnail : std::nullopt;
                                       }));
    if (QQuickImageProvider* provider = m_preview.makePictureProvider())
        m_views->engine().addImageProvider(previews, provider);
    m_surface->adopt(m_view.get());
    m_fade.setTargetObject(m_view.get());
    // Size, corners and input are counted in the pixels of the display.
    connect(m_view.get(), &QWindow::screenChanged, this, [this] {
        if (isVisible())
            fitTo(m_surface->screenOf(panelFrame().toAlignedRect()));
        applyLook();
    });
    followDisplays();
    applyLook();
    m_view->setInitialProperties({{QStringLiteral("panel"), QVariant::fromValue(&m_facade)},
                                  {QStringLiteral("preview"), QVariant::fromValue(&m_preview)}});
    m_view->setSource(QUrl(QStringLiteral("qrc:/vellumry/Vellumry/Panel/PanelView.qml")));
    // The first rows are laid out while nothing waits for them.
    m_facade.setDormant(false);
    m_facade.setDormant(true);
    m_preview.setDormant(true);
}

void PanelController::showStatusMenu() {
    show();
    Q_EMIT m_facade.statusMenuAsked();
}

void PanelController::warmUp() {
    if (!m_view)
        makeView();
}

QRect PanelController::windowFrame(const QRectF& panel) const {
    return QRect(panel.topLeft().toPoint(), m_size)
        .adjusted(-m_shadowMargin, -m_shadowMargin, m_shadowMargin, m_shadowMargin);
}

QRectF PanelController::panelFrame() const {
    return QRectF(m_view->geometry()).adjusted(m_shadowMargin, m_shadowMargin, -m_shadowMargin, -m_shadowMargin);
}

bool PanelController::fades() const {
    return m_surface->canBlend() && !isStill();
}

bool PanelController::isVisible() const {
    return m_view && m_view->isVisible();
}

void PanelController::show() {
    if (isVisible())
        return;
    m_forget.stop();
    m_model.prepareForShow();
    warmUp();
    const std::optional<ScreenPlace> screen = m_surface->screenUnderPointer();
    fitTo(screen);
    applyLook();
    m_facade.setStill(isStill());
    m_facade.setDormant(false);
    m_preview.setDormant(false);
    m_facade.present();
    std::optional<QRect> frame;
    if (screen)
        frame = windowFrame(placement::placement(m_hooks.position(screen->key), m_size, screen->visible));
    if (fades())
        m_view->setOpacity(0);
    m_surface->present(m_view.get(), frame);
    shapeInput();
    m_model.setPresented(true);
    m_model.store().wakeSearch();
    onShow();
    if (fades())
        m_fade.start();
}

void PanelController::hide() {
    m_facade.setDormant(true);
    m_preview.setDormant(true);
    if (!isVisible())
        return;
    m_model.setPresented(false);
    m_fade.stop();
    m_slide.stop();
    m_surface->dismiss(m_view.get());
    m_view->setOpacity(1);
    m_forget.start();
}

/// A secret that was searched for would stay in the field until the panel is opened again, and in the strings that QML
/// made of it until the next garbage collection.
void PanelController::forgetTyped() {
    m_model.setQuery({});
    m_model.store().forgetSearch();
    m_views->engine().collectGarbage();
    onRest();
}

void PanelController::toggle() {
    if (isVisible())
        hide();
    else
        show();
}

/// The pointer may be elsewhere by now.
void PanelController::grab(QPoint place) {
    m_settle.stop();
    m_slide.stop();
    m_grabbedAt = m_view->position();
    m_grabOffset = place - m_grabbedAt;
}

void PanelController::drag() {
    m_view->setPosition(QCursor::pos() - m_grabOffset);
}

/// A mere click on an empty part chooses no place.
void PanelController::drop() {
    m_hasMoved = m_hasMoved || m_view->position() != m_grabbedAt;
    if (m_hasMoved)
        m_settle.start();
}

void PanelController::settlePosition() {
    m_hasMoved = false;
    if (!isVisible())
        return;
    const QRectF frame = panelFrame();
    const std::optional<ScreenPlace> screen = m_surface->screenOf(frame.toAlignedRect());
    if (!screen)
        return;
    const auto remembered = placement::rememberable(frame, screen->visible);
    m_hooks.setPosition(remembered, screen->key);
    const QRect settled = windowFrame(placement::placement(remembered, m_size, screen->visible));
    if (settled == m_view->geometry())
        return;
    if (isStill()) {
        m_view->setGeometry(settled);
        return;
    }
    m_slide.setStartValue(m_view->geometry());
    m_slide.setEndValue(settled);
    m_slide.start();
}

} // namespace vellumry
