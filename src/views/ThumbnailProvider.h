// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QCache>
#include <QQuickImageProvider>
#include <QUuid>
#include <functional>
#include <optional>

namespace vellumry {

/// The small picture of a clip ("UUID"), rounded and cropped to a square, or as it is ("UUID/whole"), from the PNG that
/// our own helper made. Keeps only what is on the screen. Main thread.
class ThumbnailProvider : public QQuickImageProvider {
public:
    using Source = std::function<std::optional<QByteArray>(const QUuid&)>;
    explicit ThumbnailProvider(Source source);
    QImage requestImage(const QString& id, QSize* size, const QSize& requested) override;

private:
    Source m_source;
    QCache<QString, QImage> m_cache{64};
};

} // namespace vellumry
