// SPDX-License-Identifier: GPL-3.0-or-later
#include "reader/HeifBytes.h"

#include <cstring>
#include <libheif/heif.h>
#include <memory>

namespace vellumry::heifbytes {

namespace {

template <typename Type>
using Owned = std::unique_ptr<Type, void (*)(Type*)>;

bool isFine(const heif_error& error) {
    return error.code == heif_error_Ok;
}

heif_error append(heif_context*, const void* data, std::size_t size, void* bytes) {
    static_cast<QByteArray*>(bytes)->append(static_cast<const char*>(data), static_cast<qsizetype>(size));
    return {heif_error_Ok, heif_suberror_Unspecified, ""};
}

/// The library's picture with the same pixels; null on failure.
heif_image* copyOf(const QImage& picture) {
    const QImage pixels = picture.convertToFormat(QImage::Format_RGB888);
    heif_image* image = nullptr;
    if (!isFine(heif_image_create(pixels.width(), pixels.height(), heif_colorspace_RGB, heif_chroma_interleaved_RGB,
                                  &image)))
        return nullptr;
    heif_image_add_plane(image, heif_channel_interleaved, pixels.width(), pixels.height(), 8);
    int bytesPerLine = 0;
    uint8_t* plane = heif_image_get_plane(image, heif_channel_interleaved, &bytesPerLine);
    for (int y = 0; y < pixels.height(); ++y)
        std::memcpy(plane + y * bytesPerLine, pixels.constScanLine(y), static_cast<std::size_t>(pixels.width()) * 3);
    return image;
}

} // namespace

QByteArray encode(const QImage& image, int orientation, const QByteArray& exif) {
    const Owned<heif_context> context(heif_context_alloc(), heif_context_free);
    heif_encoder* found = nullptr;
    if (!isFine(heif_context_get_encoder_for_format(context.get(), heif_compression_HEVC, &found)))
        return {};
    const Owned<heif_encoder> encoder(found, heif_encoder_release);
    const std::unique_ptr<heif_image, void (*)(const heif_image*)> pixels(copyOf(image), heif_image_release);
    const Owned<heif_encoding_options> options(heif_encoding_options_alloc(), heif_encoding_options_free);
    options->image_orientation = static_cast<heif_orientation>(orientation);
    heif_image_handle* handle = nullptr;
    if (!pixels ||
        !isFine(heif_context_encode_image(context.get(), pixels.get(), encoder.get(), options.get(), &handle)))
        return {};
    if (!exif.isEmpty())
        heif_context_add_exif_metadata(context.get(), handle, exif.constData(), static_cast<int>(exif.size()));
    heif_image_handle_release(handle);
    QByteArray bytes;
    heif_writer writer{1, append};
    return isFine(heif_context_write(context.get(), &writer, &bytes)) ? bytes : QByteArray();
}

} // namespace vellumry::heifbytes
