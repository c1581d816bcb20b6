// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "foundation/SerialExecutor.h"

#include <QCoroTask>
#include <QImage>
#include <QObject>
#include <QQuickImageProvider>
#include <QSize>
#include <QUuid>
#include <memory>
#include <optional>

namespace vellumry {

class ClipStore;
class ImageCodec;

/// The picture of the clip that the preview shows, opened by the codec at the size that it is shown in, one picture at
/// a time. Main thread; pixels are unpacked on another one.
class PreviewPicture : public QObject {
    Q_OBJECT

public:
    /// `store` and `codec` must outlive this.
    PreviewPicture(ClipStore& store, ImageCodec& codec, QObject* parent = nullptr);
    ~PreviewPicture() override;

    /// Shows the picture of that clip; the one before stays until it is there.
    void show(const QUuid& id);
    /// The pixels that there are for it.
    void setRoom(QSize pixels);
    /// Lets go of everything.
    void clear();

    /// Null while there is none.
    [[nodiscard]] const QImage& image() const { return m_image; }
    /// Whose picture `image` is.
    [[nodiscard]] std::optional<QUuid> imageID() const { return m_imageID; }
    /// Grows with each picture.
    [[nodiscard]] int number() const { return m_number; }
    /// The codec could not open it.
    [[nodiscard]] bool hasFailed() const { return m_hasFailed; }

    /// Gives QML the picture under "image://…/NUMBER". The engine owns the provider, which outlives nothing of this.
    [[nodiscard]] QQuickImageProvider* makeProvider();

Q_SIGNALS:
    void changed();

private:
    struct Wanted {
        QUuid id;
        QSize room;
        bool operator==(const Wanted&) const = default;
    };

    [[nodiscard]] std::optional<Wanted> wanted() const;
    void wake();
    QCoro::Task<void> work();
    QCoro::Task<QImage> load(Wanted wanted);

    ClipStore* m_store;
    ImageCodec* m_codec;
    std::optional<QUuid> m_shown;
    QSize m_room;
    std::optional<Wanted> m_loaded;
    QImage m_image;
    std::optional<QUuid> m_imageID;
    int m_number = 0;
    bool m_hasFailed = false;
    bool m_isWorking = false;
    std::unique_ptr<SerialExecutor> m_executor; ///< made for the first picture
};

} // namespace vellumry
