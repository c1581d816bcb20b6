// SPDX-License-Identifier: GPL-3.0-or-later
#include "panel/PreviewPicture.h"

#include "capture/PasteboardTypes.h"
#include "history/clips/ClipStore.h"
#include "platform/files/ImageCodec.h"

#include <QPointer>
#include <algorithm>
#include <utility>

namespace vellumry {

namespace {

/// The bytes of the picture that opens best; empty without one.
QByteArray pictureOf(const std::vector<PasteboardItem>& items) {
    const QStringList types = pasteboardtype::imageTypes() + pasteboardtype::otherImageTypes();
    for (const QString& type : types) {
        for (const PasteboardItem& item : items) {
            if (const auto found = item.representations.find(type); found != item.representations.end())
                return found->second;
        }
    }
    return {};
}

class Provider : public QQuickImageProvider {
public:
    explicit Provider(PreviewPicture* picture)
        : QQuickImageProvider(QQuickImageProvider::Image)
        , m_picture(picture) {}
    QImage requestImage(const QString&, QSize* size, const QSize&) override {
        const QImage image = m_picture ? m_picture->image() : QImage();
        if (size)
            *size = image.size();
        return image;
    }

private:
    QPointer<PreviewPicture> m_picture;
};

} // namespace

PreviewPicture::PreviewPicture(ClipStore& store, ImageCodec& codec, QObject* parent)
    : QObject(parent)
    , m_store(&store)
    , m_codec(&codec) {}

PreviewPicture::~PreviewPicture() = default;

QQuickImageProvider* PreviewPicture::makeProvider() {
    return new Provider(this);
}

void PreviewPicture::show(const QUuid& id) {
    m_shown = id;
    wake();
}

void PreviewPicture::setRoom(QSize pixels) {
    if (std::exchange(m_room, pixels) != pixels)
        wake();
}

void PreviewPicture::clear() {
    m_shown.reset();
    m_loaded.reset();
    m_hasFailed = false;
    if (!m_imageID)
        return;
    m_imageID.reset();
    m_image = QImage();
    Q_EMIT changed();
}

/// What is still to be loaded.
std::optional<PreviewPicture::Wanted> PreviewPicture::wanted() const {
    if (!m_shown || m_room.isEmpty())
        return std::nullopt;
    const Wanted wanted{*m_shown, m_room};
    return m_loaded == wanted ? std::nullopt : std::optional(wanted);
}

void PreviewPicture::wake() {
    if (!m_isWorking && wanted())
        work();
}

/// One picture at a time; what was passed over meanwhile is never opened.
QCoro::Task<void> PreviewPicture::work() {
    const QPointer<PreviewPicture> self(this);
    m_isWorking = true;
    while (const auto next = wanted()) {
        auto loading = load(*next);
        QImage image = co_await loading;
        if (!self)
            co_return;
        if (m_shown != next->id)
            continue;
        m_loaded = next;
        m_hasFailed = image.isNull();
        m_image = std::move(image);
        m_imageID = next->id;
        ++m_number;
        Q_EMIT changed();
    }
    m_isWorking = false;
}

QCoro::Task<QImage> PreviewPicture::load(Wanted wanted) {
    const QPointer<PreviewPicture> self(this);
    QImage image;
    m_codec->prepare();
    auto loading = m_store->payload(wanted.id);
    const std::optional<ClipPayload> payload = co_await loading;
    if (!self || m_shown != wanted.id || !payload)
        co_return image;
    auto opening = m_codec->preview(pictureOf(payload->items), std::max(wanted.room.width(), wanted.room.height()));
    const QByteArray png = co_await opening;
    if (!self || m_shown != wanted.id || png.isEmpty())
        co_return image;
    if (!m_executor)
        m_executor = std::make_unique<SerialExecutor>("preview picture");
    auto unpacking = m_executor->run([png, room = wanted.room] {
        // Made by our own reader. As large and in the form that it is painted without further work.
        QImage picture = QImage::fromData(png, "PNG");
        if (picture.width() > room.width() || picture.height() > room.height())
            picture = picture.scaled(room, Qt::KeepAspectRatio, Qt::SmoothTransformation);
        picture.convertTo(picture.hasAlphaChannel() ? QImage::Format_ARGB32_Premultiplied : QImage::Format_RGB32);
        return picture;
    });
    image = co_await unpacking;
    co_return image;
}

} // namespace vellumry
