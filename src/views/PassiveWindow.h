// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/display/PanelSurface.h"

#include <QObject>
#include <QRect>
#include <QString>
#include <QVariantMap>
#include <chrono>
#include <memory>

class QPropertyAnimation;
class QQuickItem;
class QQuickView;

namespace vellumry {

class ViewEngine;

/// A small window above all others that never takes the keyboard. It is as large as its view wants to be, and around it
/// there is room for a shadow, which no frame here counts; it is made at its first use and kept. It fades where windows
/// can be translucent and the user wants motion, and comes and goes at once elsewhere. Main thread.
class PassiveWindow : public QObject {
    Q_OBJECT

public:
    struct Description {
        QString title;            ///< what screen readers say
        QString view;             ///< the resource that holds the view, whose root has a `cornerColour`, and a
                                  ///< `shadowMargin` where it throws a shadow
        QVariantMap properties;   ///< of the view, from its start
        bool clickThrough = true; ///< the pointer reaches what is below
        double cornerRadius = 14; ///< as the view draws it; cut where windows cannot be translucent
    };

    /// `surface` and `views` must outlive the window.
    PassiveWindow(PanelSurface& surface, ViewEngine& views, Description description);
    ~PassiveWindow() override;

    /// The view's root. Makes the window.
    [[nodiscard]] QQuickItem& root();
    [[nodiscard]] bool isVisible() const;
    /// Where it stands, in device-independent pixels; also while it is hidden.
    [[nodiscard]] QRect frame() const;
    /// What the view needs now.
    [[nodiscard]] QSize wantedSize();

    /// Moves it without showing it.
    void place(const QRect& frame);
    /// Shows it at `frame`, from invisible to opaque.
    void appear(const QRect& frame, std::chrono::milliseconds fade);
    /// Takes back a fading out.
    void stay(std::chrono::milliseconds fade);
    /// Fades it out, then hides it; showing it again meanwhile wins.
    void disappear(std::chrono::milliseconds fade);
    /// Hides it at once.
    void hide();

Q_SIGNALS:
    void wantedSizeChanged();

private:
    void makeView();
    void fadeTo(double opacity, std::chrono::milliseconds duration);
    void cutCorners(const QSize& size);
    void makeRoom();
    void shapeInput(const QSize& size);
    [[nodiscard]] QRect outer(const QRect& frame) const;

    PanelSurface* m_surface;
    ViewEngine* m_views;
    Description m_description;
    std::unique_ptr<QQuickView> m_view;
    int m_margin = 0;                     ///< room for the shadow on each side
    QPropertyAnimation* m_fade = nullptr; ///< of the view's opacity; belongs to the view
};

} // namespace vellumry
