// SPDX-License-Identifier: GPL-3.0-or-later

// A picture's bytes to its thumbnail of 160 pixels: `bench_pictures`. Ours, Qt's reader told the same size, and libvips
// where libvips42 is installed, in one process on one thread, in turns. Processor time, which other programs disturb
// least, and its ratio to the faster of the others. Then the way there and back of the first picture, through
// `vellumry-reader` when it runs already and when it must be started first.

#include "Measure.h"
#include "VipsLibrary.h"
#include "linux/reader/ReaderImageCodec.h"
#include "reader/ImageSummariser.h"
#include "support/Awaited.h"

#include <QBuffer>
#include <QGuiApplication>
#include <QImageReader>
#include <QPainter>
#include <QRandomGenerator>
#include <cstdio>
#include <ctime>
#include <functional>
#include <limits>

namespace vellumry::bench {

namespace {

constexpr int thumbnailPixels = 160;
constexpr int rounds = 9;
constexpr QSize screen(3840, 2160);

struct Sample {
    const char* name;
    QByteArray file;
};

QByteArray encoded(const QImage& image, const char* format) {
    QByteArray file;
    QBuffer buffer(&file);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, format);
    return file;
}

/// Windows with lines of text, and a photograph in one of them.
QImage screenshot(QImage::Format format) {
    QImage image(screen, format);
    QRandomGenerator chance(7);
    image.fill(QColor(32, 74, 135));
    QPainter painter(&image);
    for (int window = 0; window < 12; ++window) {
        const QRect frame(window % 4 * 950 + 20, window / 4 * 710 + 20, 920, 680);
        painter.fillRect(frame, window % 3 == 0 ? QColor(40, 42, 46) : QColor(250, 250, 250));
        painter.setPen(window % 3 == 0 ? QColor(220, 220, 220) : QColor(30, 30, 30));
        for (int line = frame.top() + 20; line < frame.bottom() - 10; line += 22) {
            QString text;
            for (int i = 0; i < 90; ++i)
                text += chance.bounded(6) == 0 ? u' ' : QChar(u'a' + chance.bounded(26));
            painter.drawText(frame.left() + 12, line, text);
        }
    }
    for (int y = 740; y < 1400; ++y) {
        for (int x = 980; x < 1880; ++x) {
            const int noise = chance.bounded(24);
            painter.fillRect(x, y, 1, 1, QColor((x / 8 + noise) % 256, (y / 6 + noise) % 256, (x + y) / 16 % 256));
        }
    }
    return image;
}

/// Nothing in it can be foretold: the most bytes that a picture of its size can have.
QImage noise() {
    QImage image(screen, QImage::Format_RGB888);
    QRandomGenerator chance(7);
    for (int y = 0; y < image.height(); ++y) {
        uchar* const row = image.scanLine(y);
        for (int i = 0; i < image.width() * 3; ++i)
            row[i] = static_cast<uchar>(128 + (i + y) % 97 + chance.bounded(24));
    }
    return image;
}

/// Milliseconds that the processors have worked for this process.
double worked() {
    timespec time{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) * 1e3 + static_cast<double>(time.tv_nsec) / 1e6;
}

QByteArray byQt(const QByteArray& file) {
    QByteArray bytes = file;
    QBuffer buffer(&bytes);
    QImageReader reader(&buffer);
    reader.setAutoTransform(true);
    reader.setScaledSize(reader.size().scaled(thumbnailPixels, thumbnailPixels, Qt::KeepAspectRatio));
    return encoded(reader.read(), "PNG");
}

/// The least of several times: what disturbs only adds.
class Contestant {
public:
    explicit Contestant(std::function<QByteArray()> thumbnail)
        : m_thumbnail(std::move(thumbnail)) {}
    void run() {
        const double before = worked();
        const QByteArray png = m_thumbnail();
        m_least = std::min(m_least, worked() - before);
        m_opens = m_opens && QImage::fromData(png).width() > 1;
    }
    /// Infinite when there was no thumbnail.
    [[nodiscard]] double milliseconds() const { return m_opens ? m_least : std::numeric_limits<double>::infinity(); }

private:
    std::function<QByteArray()> m_thumbnail;
    double m_least = std::numeric_limits<double>::infinity();
    bool m_opens = true;
};

void compare(const Sample& sample, const ImageSummariser& ours, const std::optional<VipsLibrary>& vips) {
    Contestant us([&] { return ours.summarise(sample.file, thumbnailPixels).thumbnail.value_or(QByteArray()); });
    Contestant qt([&] { return byQt(sample.file); });
    Contestant other([&] { return vips ? vips->thumbnail(sample.file, thumbnailPixels) : QByteArray(); });
    for (int round = 0; round < rounds; ++round) {
        for (Contestant* const contestant : {&us, &qt, &other})
            contestant->run();
    }
    std::printf("%-32s %8.1f %9.1f %9.1f %9.1f %9.2f\n", sample.name, static_cast<double>(sample.file.size()) / 1e6,
                us.milliseconds(), qt.milliseconds(), other.milliseconds(),
                us.milliseconds() / std::min(qt.milliseconds(), other.milliseconds()));
    std::fflush(stdout);
}

double answerTime(ReaderImageCodec& codec, const QByteArray& file) {
    return milliseconds([&] { (void)awaited(codec.summarise(file, thumbnailPixels)); });
}

void throughReader(const Sample& sample) {
    std::vector<double> cold;
    std::vector<double> warm;
    for (int round = 0; round < rounds; ++round) {
        ReaderImageCodec codec(QCoreApplication::applicationDirPath() + QStringLiteral("/../vellumry-reader"));
        cold.push_back(answerTime(codec, sample.file));
        warm.push_back(answerTime(codec, sample.file));
    }
    std::printf("\n%s through vellumry-reader, by the clock, median: %.0f ms, %.0f ms when it must be started\n",
                sample.name, median(warm), median(cold));
}

} // namespace

int run() {
    const ImageSummariser ours;
    const std::optional<VipsLibrary> vips = VipsLibrary::open();
    const QImage opaque = screenshot(QImage::Format_RGB32);
    const std::vector<Sample> samples{
        {"screen 3840 x 2160, PNG", encoded(opaque, "PNG")},
        {"the same with opacity", encoded(opaque.convertToFormat(QImage::Format_ARGB32), "PNG")},
        {"the same, 16 bits a channel", encoded(opaque.convertToFormat(QImage::Format_RGBX64), "PNG")},
        {"the same, 256 colours", encoded(opaque.convertToFormat(QImage::Format_Indexed8), "PNG")},
        {"noise 3840 x 2160, PNG", encoded(noise(), "PNG")},
        {"screen 3840 x 2160, JPEG", encoded(opaque, "JPEG")},
    };
    std::printf("processor time, least of %d; libvips %s\n", rounds, vips ? "on one thread" : "is not installed");
    std::printf("%-32s %8s %9s %9s %9s %9s\n", "", "MB", "ours, ms", "Qt, ms", "vips, ms", "ratio");
    for (const Sample& sample : samples)
        compare(sample, ours, vips);
    throughReader(samples.front());
    throughReader(samples.at(4));
    return 0;
}

} // namespace vellumry::bench

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    return vellumry::bench::run();
}
