// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "linux/x11/windows/XlibConnection.h"
#include "platform/display/PanelSurface.h"

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

private:
    [[nodiscard]] ScreenPlace placeOf(const QScreen& screen) const;
    [[nodiscard]] QRect workArea() const;

    std::shared_ptr<XlibConnection> m_connection;
};

} // namespace vellumry
