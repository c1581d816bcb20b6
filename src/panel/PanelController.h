// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "panel/PanelFacade.h"
#include "panel/PanelModel.h"
#include "panel/PanelPlacement.h"
#include "panel/PreviewModel.h"
#include "platform/display/DragSource.h"
#include "platform/display/PanelSurface.h"
#include "views/PassiveWindow.h"
#include "views/ViewEngine.h"

#include <QObject>
#include <QPropertyAnimation>
#include <QTimer>
#include <QVariantAnimation>
#include <chrono>
#include <functional>
#include <memory>
#include <optional>

class QQuickView;

namespace vellumry {

/// Owns the floating panel: where it opens on which display, showing and hiding it, remembering where the user dragged
/// it. The application the user was typing in stays the active one. The window is made at the first showing or at
/// `warmUp`, and kept. Main thread.
class PanelController : public QObject {
    Q_OBJECT

public:
    /// Where texts have their usual size. Larger ones get a larger panel, as far as the display has room.
    static constexpr QSize panelSize{780, 500};
    using Appearance = ViewEngine::Appearance;

    /// What the panel needs of the shell.
    struct Hooks {
        /// The remembered place on the display with that key; and remembering one, or forgetting it.
        std::function<std::optional<placement::Fractions>(const QString& display)> position;
        std::function<void(std::optional<placement::Fractions>, const QString& display)> setPosition;
        /// The words for the shortcut that opens the panel.
        std::function<QString()> openPanelKeys;
        /// The virtual key code of the key with that native scan code.
        std::function<std::optional<KeyCode>(quint32 scanCode)> keyCodeOf;
        /// Asks the desktop to let us press keys in other applications.
        std::function<void()> requestAccessibility = [] {};
        /// The menu of the program for the button in the panel's footer, which is there only where this is set. The
        /// panel closes before an entry does its work.
        std::function<std::vector<ActionMenuItem>()> statusMenu;
        /// Drags clips into other programs; null where that cannot be. Outlives the controller.
        DragSource* dragSource = nullptr;
        /// Shows a message on the display under the pointer.
        std::function<void(const ToastMessage&)> showToast;
        /// What the preview needs.
        PreviewModel::Hooks preview{};
        /// How long after the pointer let go the place is remembered.
        std::chrono::milliseconds settleDelay{120};
        /// How long after closing the panel lets go of what was typed into it.
        std::chrono::milliseconds forgetDelay{500};
    };

    /// Everything but the hooks must outlive this.
    PanelController(ClipStore& store, PasteEngine& paster, Pasteboard& pasteboard, PanelSurface& surface,
                    ViewEngine& views, Hooks hooks);
    ~PanelController() override;

    [[nodiscard]] PanelModel& model() { return m_model; }

    /// Does nothing when the panel is visible already. It fades in where windows can be translucent and the user wants
    /// motion; it takes keys from the start.
    void show();
    /// Does nothing when it is not.
    void hide();
    void toggle();
    [[nodiscard]] bool isVisible() const;
    /// Shows the panel, if it is not there, and in it the menu of the program.
    void showStatusMenu();
    /// Makes the window without showing it, so that the first showing is as quick as the others.
    void warmUp();
    void setAppearance(Appearance appearance) { m_views->setAppearance(appearance); }
    /// The stack that the panel's button starts and stops.
    void setStack(PasteStack& stack);
    /// Whether the words of a picture are being read may have changed.
    void readingChanged() { m_preview.refresh(); }

    /// Called after the panel came up.
    std::function<void()> onShow = [] {};
    /// Called a moment after the panel closed, unless it is open again, when it has let go of what was typed.
    std::function<void()> onRest = [] {};

private:
    static constexpr int fadeIn = 120; ///< milliseconds

    [[nodiscard]] std::vector<ActionMenuItem> closingFirst(std::vector<ActionMenuItem> items);
    void makeView();
    void applyLook();
    void shapeInput();
    void followLook();
    void followDisplays();
    void stayInSight();
    [[nodiscard]] bool isStill() const;
    [[nodiscard]] bool fades() const;
    void fitTo(const std::optional<ScreenPlace>& screen);
    void standOn(const ScreenPlace& screen);
    [[nodiscard]] QRect windowFrame(const QRectF& panel) const;
    [[nodiscard]] QRectF panelFrame() const;
    void wireDrags();
    void dragPhase(PanelDrag::Phase phase);
    void stepAside();
    void comeBack();
    void showDragged();
    void grab(QPoint place);
    void drag();
    void drop();
    void settlePosition();
    void forgetTyped();

    PanelModel m_model;
    PanelFacade m_facade;
    PreviewModel m_preview;
    PanelSurface* m_surface;
    ViewEngine* m_views;
    Hooks m_hooks;
    std::unique_ptr<QQuickView> m_view;
    QVariantAnimation m_slide; ///< of the panel to the place where it settles
    QPropertyAnimation m_fade; ///< of the view's opacity, which the compositor applies: nothing is drawn anew for it
    PassiveWindow m_dragged;   ///< what the pointer carries
    bool m_lostFocus = false;  ///< while something was dragged
    int m_shadowMargin = 0;
    QSize m_size = panelSize; ///< without the shadow, for the display that it stands on
    /// Saves the place a moment after the pointer let go.
    QTimer m_settle;
    QPoint m_grabbedAt;
    QPoint m_grabOffset;
    bool m_hasMoved = false; ///< dragged, and the place not yet remembered
    /// Lets go of what was typed a moment after the panel closed, out of the way of a paste.
    QTimer m_forget;
};

} // namespace vellumry
