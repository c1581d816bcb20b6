// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/desktop/ActionMenuItem.h"

#include <QByteArray>
#include <QColor>
#include <QDBusArgument>
#include <QHash>
#include <QImage>
#include <functional>

namespace vellumry {

/// "(iiay)" of a StatusNotifierItem: width, height and pixels, four bytes each: alpha, red, green, blue.
struct TrayPixmap {
    int width = 0;
    int height = 0;
    QByteArray bytes{};
    bool operator==(const TrayPixmap&) const = default;
};
QDBusArgument& operator<<(QDBusArgument& argument, const TrayPixmap& pixmap);
const QDBusArgument& operator>>(const QDBusArgument& argument, TrayPixmap& pixmap);

[[nodiscard]] TrayPixmap trayPixmap(const QImage& image);

/// The pictures in the tray's menu, drawn once each. Main thread.
class TrayPictures {
public:
    /// A symbol of that name in a colour.
    using DrawSymbol = std::function<QImage(const QString& name, const QColor& colour, const QSize& size)>;

    /// The ground that they are shown on may be light or dark; this stands out from both (3.4 : 1 and more).
    static constexpr QRgb colour = 0xff8a8a8a;

    explicit TrayPictures(DrawSymbol drawSymbol);

    /// The symbol or the swatch of an entry as PNG; empty for none.
    [[nodiscard]] QByteArray pictureOf(const ActionMenuItem& item);
    /// The program's mark in the sizes that panels have.
    [[nodiscard]] QList<TrayPixmap> mark() const;

private:
    DrawSymbol m_drawSymbol;
    QHash<QString, QByteArray> m_symbols;
};

} // namespace vellumry

Q_DECLARE_METATYPE(vellumry::TrayPixmap)
