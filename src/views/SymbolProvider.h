// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QCache>
#include <QHash>
#include <QQuickImageProvider>

namespace vellumry {

/// Draws our symbols ("NAME/RRGGBB") and the panel's shadow ("shadow") for QML. A small cache keeps what is on the
/// screen. Main thread (QML asks synchronously).
class SymbolProvider : public QQuickImageProvider {
public:
    SymbolProvider();
    QImage requestImage(const QString& id, QSize* size, const QSize& requested) override;

    /// True when a symbol of that name exists.
    [[nodiscard]] static bool has(const QString& name);

private:
    QCache<QString, QImage> m_cache{256};
};

/// The symbol of that name in one colour; empty of paint when there is none.
[[nodiscard]] QImage symbolImage(const QString& name, const QColor& tint, const QSize& size);

/// A soft shadow around a rounded rectangle, made to be stretched from its middle; borders of 86, room of 40 around the
/// panel.
[[nodiscard]] QImage panelShadow();
/// The same of a small board; it reaches 18 pixels beyond it.
[[nodiscard]] QImage smallShadow();

} // namespace vellumry
