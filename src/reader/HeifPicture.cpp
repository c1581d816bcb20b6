// SPDX-License-Identifier: GPL-3.0-or-later
#include "reader/HeifPicture.h"

#include <QtEndian>
#include <algorithm>
#include <array>

namespace vellumry {

namespace {

/// Real files name fewer than ten brands.
constexpr qsizetype longestTypeBox = 256;
constexpr qsizetype brandBytes = 4;
/// No EXIF block is longer: JPEG has no room for more, and cameras make the same for both.
constexpr std::size_t longestExif = 256 * 1024;

bool isBrandOfHeic(QByteArrayView brand) {
    static constexpr std::array<const char*, 4> brands{"heic", "heix", "heim", "heis"};
    return std::any_of(brands.begin(), brands.end(), [brand](const char* known) { return brand == known; });
}

/// The pixels in memory of ours: the library's go with its picture.
QImage copied(const HeifLibrary& library, const heif_image* image, QImage::Format format) {
    int bytesPerLine = 0;
    const uint8_t* pixels = library.plane(image, heif_channel_interleaved, &bytesPerLine);
    const int width = library.width(image, heif_channel_interleaved);
    const int height = library.height(image, heif_channel_interleaved);
    if (!pixels || width <= 0 || height <= 0)
        return {};
    return QImage(pixels, width, height, bytesPerLine, format).copy();
}

} // namespace

bool HeifPicture::isOne(QByteArrayView file) {
    // Size, "ftyp", major brand, version, compatible brands (ISO/IEC 14496-12, 4.3).
    constexpr qsizetype majorBrand = 8;
    constexpr qsizetype compatibleBrands = 16;
    if (file.size() < compatibleBrands || file.sliced(4, brandBytes) != "ftyp")
        return false;
    if (isBrandOfHeic(file.sliced(majorBrand, brandBytes)))
        return true;
    const qsizetype size = qFromBigEndian<quint32>(file.data());
    const qsizetype end = std::min({size, file.size(), longestTypeBox});
    for (qsizetype position = compatibleBrands; position + brandBytes <= end; position += brandBytes) {
        if (isBrandOfHeic(file.sliced(position, brandBytes)))
            return true;
    }
    return false;
}

std::optional<HeifPicture> HeifPicture::open(const HeifLibrary& library, QByteArrayView file) {
    Context context(library.allocate(), ContextDeleter{library.free});
    if (!context)
        return std::nullopt;
    // A thumbnail is not urgent enough to take all processors.
    library.setMaxThreads(context.get(), 0);
    if (library.readFromMemory(context.get(), file.data(), static_cast<std::size_t>(file.size()), nullptr).code !=
        heif_error_Ok)
        return std::nullopt;
    heif_image_handle* primary = nullptr;
    if (library.primaryImage(context.get(), &primary).code != heif_error_Ok)
        return std::nullopt;
    Handle handle(primary, HandleDeleter{library.releaseHandle});
    const QSize size(library.storedWidth(primary), library.storedHeight(primary));
    if (size.isEmpty())
        return std::nullopt;
    return HeifPicture(library, std::move(context), std::move(handle), size);
}

QImage HeifPicture::decode() const {
    const std::unique_ptr<heif_decoding_options, decltype(m_library.freeOptions)> options(m_library.allocateOptions(),
                                                                                          m_library.freeOptions);
    if (!options)
        return {};
    options->convert_hdr_to_8bit = 1;
    const bool hasAlpha = m_library.hasAlpha(m_handle.get()) != 0;
    heif_image* decoded = nullptr;
    const heif_error error =
        m_library.decode(m_handle.get(), &decoded, heif_colorspace_RGB,
                         hasAlpha ? heif_chroma_interleaved_RGBA : heif_chroma_interleaved_RGB, options.get());
    if (error.code != heif_error_Ok)
        return {};
    const std::unique_ptr<heif_image, decltype(m_library.releaseImage)> image(decoded, m_library.releaseImage);
    return copied(m_library, image.get(), hasAlpha ? QImage::Format_RGBA8888 : QImage::Format_RGB888);
}

QByteArray HeifPicture::exif() const {
    // The block begins with the distance from behind this number to the TIFF header (ISO/IEC 23008-12, A.2.1).
    constexpr qsizetype distanceBytes = 4;
    heif_item_id item = 0;
    if (m_library.listMetadata(m_handle.get(), "Exif", &item, 1) < 1)
        return {};
    const std::size_t size = m_library.metadataSize(m_handle.get(), item);
    if (size < distanceBytes || size > longestExif)
        return {};
    QByteArray block(static_cast<qsizetype>(size), '\0');
    if (m_library.metadata(m_handle.get(), item, block.data()).code != heif_error_Ok)
        return {};
    const qsizetype distance = qFromBigEndian<quint32>(block.constData());
    return distance > block.size() - distanceBytes ? QByteArray() : block.sliced(distanceBytes + distance);
}

} // namespace vellumry
