// SPDX-License-Identifier: GPL-3.0-or-later
#include "reader/PngThumbnail.h"

#include "reader/StoredPng.h"

#include <QtEndian>
#include <algorithm>
#include <array>
#include <csetjmp>
#include <cstring>
#include <optional>
#include <png.h>
#include <vector>

namespace vellumry::pngthumbnail {

namespace {

constexpr quint32 smallestFactor = 4;
constexpr quint32 smallestFactorOfHugeOnes = 2;
constexpr quint64 hugeArea = 100'000'000;
constexpr int channels = 4;

/// What the library reads from, and where it has come to.
struct Source {
    QByteArrayView bytes;
    std::optional<StoredPng> stored{}; ///< the same, inflated
    qsizetype position = 0;
};

void readBytes(png_structp png, png_bytep to, std::size_t count) {
    auto* const source = static_cast<Source*>(png_get_io_ptr(png));
    if (source->stored) {
        if (!source->stored->read(to, count))
            png_error(png, "cut off");
        return;
    }
    if (count > static_cast<std::size_t>(source->bytes.size() - source->position))
        png_error(png, "cut off");
    std::memcpy(to, source->bytes.data() + source->position, count);
    source->position += static_cast<qsizetype>(count);
}

[[noreturn]] void onError(png_structp png, png_const_charp) {
    png_longjmp(png, 1);
}

void onWarning(png_structp, png_const_charp) {}

/// The sums of a band of rows, column by column, and the pixels made of them.
class Bands {
public:
    /// A pixel has one byte (grey), three (colours) or four (and opacity).
    Bands(int width, int bytesPerPixel, QImage& target)
        : m_width(width)
        , m_bytesPerPixel(bytesPerPixel)
        , m_sums(static_cast<std::size_t>(width) * static_cast<std::size_t>(m_bytesPerPixel))
        , m_target(&target) {}

    void add(const png_byte* row) {
        if (m_bytesPerPixel == channels)
            addWeighed(row);
        else
            addPlain(row);
        ++m_rows;
    }

    /// Makes row `y` of the target of what was added, and begins anew.
    void finish(int y) {
        auto* const line = reinterpret_cast<QRgb*>(m_target->scanLine(y));
        const qint64 columns = m_target->width();
        for (qint64 x = 0; x < columns; ++x)
            line[x] = pixel(x * m_width / columns, (x + 1) * m_width / columns);
        std::ranges::fill(m_sums, 0U);
        m_rows = 0;
    }

private:
    void addPlain(const png_byte* row) {
        quint32* const sums = m_sums.data();
        const std::size_t count = m_sums.size();
        for (std::size_t i = 0; i < count; ++i)
            sums[i] += row[i];
    }
    void addWeighed(const png_byte* row) {
        quint32* sum = m_sums.data();
        for (int x = 0; x < m_width; ++x, sum += channels, row += channels) {
            const quint32 opacity = row[3];
            sum[0] += row[0] * opacity;
            sum[1] += row[1] * opacity;
            sum[2] += row[2] * opacity;
            sum[3] += opacity;
        }
    }
    /// The mean over the columns from `first` to behind `end`, premultiplied.
    [[nodiscard]] QRgb pixel(qint64 first, qint64 end) const {
        std::array<quint64, channels> total{};
        for (qint64 x = first; x < end; ++x) {
            for (int channel = 0; channel < m_bytesPerPixel; ++channel)
                total[static_cast<std::size_t>(channel)] +=
                    m_sums[static_cast<std::size_t>(x * m_bytesPerPixel + channel)];
        }
        const quint64 count = static_cast<quint64>(end - first) * static_cast<quint64>(m_rows);
        const auto mean = [](quint64 sum, quint64 parts) { return static_cast<int>((sum + parts / 2) / parts); };
        if (m_bytesPerPixel == 1)
            return qRgb(mean(total[0], count), mean(total[0], count), mean(total[0], count));
        if (m_bytesPerPixel < channels)
            return qRgb(mean(total[0], count), mean(total[1], count), mean(total[2], count));
        const quint64 weight = count * 255;
        return qRgba(mean(total[0], weight), mean(total[1], weight), mean(total[2], weight), mean(total[3], count));
    }

    qint64 m_width;
    int m_bytesPerPixel;
    std::vector<quint32> m_sums;
    QImage* m_target;
    int m_rows = 0;
};

/// One file being read. The library leaves by longjmp(3), over which no object of ours may be made: every function that
/// calls it in `guarded` has nothing but plain values.
class Reading {
public:
    explicit Reading(QByteArrayView file)
        : m_source{file, StoredPng::of(file)}
        , m_png(png_create_read_struct(PNG_LIBPNG_VER_STRING, nullptr, onError, onWarning))
        , m_info(m_png ? png_create_info_struct(m_png) : nullptr) {
        if (m_png)
            png_set_read_fn(m_png, &m_source, readBytes);
    }
    Reading(const Reading&) = delete;
    Reading& operator=(const Reading&) = delete;
    ~Reading() { png_destroy_read_struct(&m_png, &m_info, nullptr); }

    [[nodiscard]] bool readHeader() {
        return m_info && guarded([](Reading& self) { self.prepare(); });
    }
    [[nodiscard]] int width() const { return static_cast<int>(png_get_image_width(m_png, m_info)); }
    [[nodiscard]] int height() const { return static_cast<int>(png_get_image_height(m_png, m_info)); }
    [[nodiscard]] int bytesPerPixel() const { return png_get_channels(m_png, m_info); }

    [[nodiscard]] bool readInto(Bands& bands, int targetHeight) {
        m_row.resize(png_get_rowbytes(m_png, m_info));
        m_bands = &bands;
        m_targetHeight = targetHeight;
        return guarded([](Reading& self) { self.readRows(); });
    }

private:
    bool guarded(void (*work)(Reading&)) {
        if (setjmp(png_jmpbuf(m_png)) != 0) // the library reports errors in no other way
            return false;
        work(*this);
        return true;
    }
    void prepare() {
        png_set_crc_action(m_png, PNG_CRC_QUIET_USE, PNG_CRC_QUIET_USE);
#ifdef PNG_IGNORE_ADLER32 // gone from libpng 1.6.45 on, unless it was built for it
        png_set_option(m_png, PNG_IGNORE_ADLER32, PNG_OPTION_ON);
#endif
        // Text and profiles are not looked at, and may be large.
        png_set_keep_unknown_chunks(m_png, PNG_HANDLE_CHUNK_NEVER, nullptr, -1);
        png_read_info(m_png, m_info);
        png_set_scale_16(m_png);
        png_set_expand(m_png);
        const auto colours = png_get_color_type(m_png, m_info);
        // Grey without opacity stays one byte a pixel, which is a third of the work.
        if (colours == PNG_COLOR_TYPE_GRAY_ALPHA || png_get_valid(m_png, m_info, PNG_INFO_tRNS) != 0)
            png_set_gray_to_rgb(m_png);
        png_read_update_info(m_png, m_info);
    }
    void readRows() {
        const qint64 rows = height();
        qint64 row = 0;
        for (int y = 0; y < m_targetHeight; ++y) {
            for (const qint64 end = (y + 1) * rows / m_targetHeight; row < end; ++row) {
                png_read_row(m_png, m_row.data(), nullptr);
                m_bands->add(m_row.data());
            }
            m_bands->finish(y);
        }
    }

    Source m_source;
    png_structp m_png;
    png_infop m_info;
    std::vector<png_byte> m_row;
    Bands* m_bands = nullptr;
    int m_targetHeight = 0;
};

} // namespace

bool isFor(QByteArrayView file, QSize size) {
    constexpr qsizetype headerBytes = 33; // signature and IHDR
    constexpr qsizetype interlaceAt = 28;
    if (!file.startsWith(QByteArrayView("\x89PNG\r\n\x1a\n", 8)) || file.size() < headerBytes || size.isEmpty())
        return false;
    const auto width = qFromBigEndian<quint32>(file.data() + 16);
    const auto height = qFromBigEndian<quint32>(file.data() + 20);
    const quint32 factor = quint64{width} * height > hugeArea ? smallestFactorOfHugeOnes : smallestFactor;
    return file[interlaceAt] == 0 && width / factor >= static_cast<quint32>(size.width()) &&
           height / factor >= static_cast<quint32>(size.height());
}

QImage shrunk(QByteArrayView file, QSize size) {
    Reading reading(file);
    if (!reading.readHeader() || reading.width() < size.width() || reading.height() < size.height())
        return {};
    const int bytesPerPixel = reading.bytesPerPixel();
    QImage image(size, bytesPerPixel == channels ? QImage::Format_ARGB32_Premultiplied : QImage::Format_RGB32);
    if (image.isNull())
        return {};
    Bands bands(reading.width(), bytesPerPixel, image);
    if (!reading.readInto(bands, size.height()))
        return {};
    return image;
}

} // namespace vellumry::pngthumbnail
