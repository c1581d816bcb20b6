// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "linux/x11/windows/XlibConnection.h"
#include "platform/display/PanelSurface.h"

#include <vector>

class QScreen;

namespace vellumry {

/// The displays of the session as panels see them. Main thread; needs a QGuiApplication.
class X11Screens {
public:
    explicit X11Screens(std::shared_ptr<XlibConnection> connection);

    [[nodiscard]] std::optional<ScreenPlace> underPointer() const;
    [[nodiscard]] std::optional<ScreenPlace> of(const QRect& frame) const;

    /// What the maker wrote into the display and where it is plugged in; its name and size where the maker wrote
    /// nothing.
    [[nodiscard]] static QString keyOf(const QString& maker, const QString& model, const QString& serial,
                                       const QString& name, QSize size);
    /// The part of `workArea` on a display, in device-independent pixels; `workArea` is in the server's pixels, an
    /// empty one takes nothing away. Displays keep their origin when they are scaled.
    [[nodiscard]] static QRect visiblePart(const QRect& frame, qreal scale, const QRect& workArea);

    /// The room that a dock keeps at one edge of the whole desktop (Extended Window Manager Hints 1.5,
    /// _NET_WM_STRUT_PARTIAL), in the server's pixels.
    struct Strut {
        enum class Edge : quint8 { left, right, top, bottom };
        Edge edge = Edge::left;
        int depth = 0;
        int begin = 0; ///< along the edge
        int end = 0;   ///< the last pixel
        bool operator==(const Strut&) const = default;
    };
    /// What the four or twelve numbers of such a property say, on a desktop of that size.
    [[nodiscard]] static std::vector<Strut> strutsOf(const std::vector<unsigned long>& numbers, QSize desktop);
    /// The part of a display that docks leave, in device-independent pixels. A work area is one rectangle for all
    /// displays, so it cannot say that only one of them has a dock. A strut that would take half of a display and more
    /// is meant for another one beyond it.
    [[nodiscard]] static QRect withoutStruts(const QRect& frame, qreal scale, QSize desktop,
                                             const std::vector<Strut>& struts);

private:
    [[nodiscard]] QSize desktopSize() const;
    [[nodiscard]] std::vector<Strut> struts(QSize desktop) const;
    [[nodiscard]] ScreenPlace placeOf(const QScreen& screen) const;
    [[nodiscard]] QRect workArea() const;

    std::shared_ptr<XlibConnection> m_connection;
};

} // namespace vellumry
