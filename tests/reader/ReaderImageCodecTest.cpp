// SPDX-License-Identifier: GPL-3.0-or-later
#include "linux/reader/ReaderImageCodec.h"

#include "reader/ChildProcesses.h"
#include "reader/HeifBytes.h"
#include "reader/PictureBytes.h"
#include "support/Awaited.h"
#include "support/LoggedLines.h"

#include <QElapsedTimer>
#include <QTimer>
#include <csignal>
#include <gtest/gtest.h>

namespace vellumry {
namespace {

using namespace picturebytes;
using childprocesses::children;

const QString realReader = QStringLiteral(VELLUMRY_READER);
const QString fakeReader = QStringLiteral(VELLUMRY_FAKE_READER);
/// A reader is started and answers within it on a busy machine, too.
constexpr auto longDeadline = std::chrono::minutes(1);
constexpr auto shortDeadline = std::chrono::seconds(5);

TEST(ReaderImageCodec, SummarisesAPicture) {
    ReaderImageCodec codec(realReader);
    const ImageSummary summary = awaited(codec.summarise(encode(twoColours(640, 320), "PNG"), 160));
    EXPECT_EQ(summary.pixelSize, QSize(640, 320));
    EXPECT_EQ(QImage::fromData(summary.thumbnail.value_or(QByteArray()), "PNG").size(), QSize(160, 80));
    EXPECT_FALSE(summary.isScreenshot);
}

TEST(ReaderImageCodec, OpensAPictureToBeLookedAt) {
    ReaderImageCodec codec(realReader);
    const QByteArray png = awaited(codec.preview(encode(twoColours(640, 320), "JPEG"), 320));
    EXPECT_EQ(QImage::fromData(png, "PNG").size(), QSize(320, 160));
    EXPECT_TRUE(awaited(codec.preview("no picture", 320)).isEmpty());
}

TEST(ReaderImageCodec, EveryDecoderWorksInTheSealedReader) {
    ReaderImageCodec codec(realReader);
    for (const char* format : {"PNG", "JPEG", "TIFF", "WEBP", "BMP"}) {
        const ImageSummary summary = awaited(codec.summarise(encode(twoColours(640, 320), format), 160));
        EXPECT_EQ(summary.pixelSize, QSize(640, 320)) << format;
        EXPECT_TRUE(summary.thumbnail.has_value()) << format;
    }
    const ImageSummary summary = awaited(codec.summarise(heifbytes::encode(twoColours(640, 320)), 160));
    EXPECT_EQ(summary.pixelSize, QSize(640, 320)) << "HEIC";
    EXPECT_TRUE(summary.thumbnail.has_value()) << "HEIC";
}

TEST(ReaderImageCodec, APictureLargerThanASocketHoldsArrivesWhole) {
    QImage noise(2000, 1500, QImage::Format_RGB32);
    quint32 state = 1;
    for (int y = 0; y < noise.height(); ++y) {
        for (int x = 0; x < noise.width(); ++x)
            noise.setPixel(x, y, state = state * 1664525 + 1013904223);
    }
    const QByteArray file = encode(noise, "PNG");
    ASSERT_GT(file.size(), 5'000'000);
    ReaderImageCodec codec(realReader);
    const ImageSummary summary = awaited(codec.summarise(file, 3000));
    EXPECT_EQ(QImage::fromData(summary.thumbnail.value_or(QByteArray()), "PNG").convertToFormat(QImage::Format_RGB32),
              noise);
}

TEST(ReaderImageCodec, APictureIsMadeAPngOfTheSamePixels) {
    const QImage picture = twoColours(1920, 1080);
    ReaderImageCodec codec(realReader);
    for (const char* format : {"BMP", "WEBP"}) {
        const ImageSummary summary = awaited(codec.summarise(encode(picture, format), 8192));
        ASSERT_TRUE(summary.thumbnail) << format;
        const QImage png = QImage::fromData(*summary.thumbnail, "PNG").convertToFormat(QImage::Format_RGB32);
        EXPECT_EQ(png.size(), picture.size()) << format;
        const bool isLossless = qstrcmp(format, "BMP") == 0;
        EXPECT_TRUE(!isLossless || png == picture);
    }
}

TEST(ReaderImageCodec, OneReaderServesMany) {
    ReaderImageCodec codec(realReader);
    (void)awaited(codec.summarise(encode(twoColours(8, 8), "PNG"), 160));
    const QList<QByteArray> first = children();
    (void)awaited(codec.summarise(encode(twoColours(9, 9), "PNG"), 160));
    EXPECT_EQ(first.size(), 1);
    EXPECT_EQ(children(), first);
}

TEST(ReaderImageCodec, NothingIsStartedForNothing) {
    ReaderImageCodec codec(realReader);
    EXPECT_EQ(awaited(codec.summarise(QByteArray(), 160)), ImageSummary());
    EXPECT_TRUE(children().isEmpty());
}

TEST(ReaderImageCodec, AReaderStartedAheadServesThePictureThatComes) {
    ReaderImageCodec codec(realReader);
    codec.prepare();
    runUntil([] { return !children().isEmpty(); });
    const QList<QByteArray> first = children();
    ASSERT_EQ(first.size(), 1);
    codec.prepare();
    EXPECT_EQ(awaited(codec.summarise(encode(twoColours(10, 20), "PNG"), 160)).pixelSize, QSize(10, 20));
    EXPECT_EQ(children(), first);
}

TEST(ReaderImageCodec, ToldToRestItEndsItsReaderBehindWhatItWasAsked) {
    ReaderImageCodec codec(realReader);
    auto asked = codec.summarise(encode(twoColours(10, 20), "PNG"), 160);
    codec.rest();
    EXPECT_EQ(awaited(std::move(asked)).pixelSize, QSize(10, 20));
    QTimer looks;
    looks.start(std::chrono::milliseconds(1));
    // Left alone, it would stay for some seconds.
    QElapsedTimer passed;
    passed.start();
    runUntil([] { return children().isEmpty(); });
    EXPECT_LT(passed.elapsed(), 4'000);
    codec.rest();
    EXPECT_EQ(awaited(codec.summarise(encode(twoColours(30, 40), "PNG"), 160)).pixelSize, QSize(30, 40));
}

TEST(ReaderImageCodec, RequestsMadeTogetherAreAnsweredEachForItself) {
    ReaderImageCodec codec(realReader);
    auto first = codec.summarise(encode(twoColours(10, 20), "PNG"), 160);
    auto second = codec.summarise("no picture", 160);
    auto third = codec.summarise(encode(twoColours(30, 40), "JPEG"), 160);
    EXPECT_EQ(awaited(std::move(first)).pixelSize, QSize(10, 20));
    EXPECT_EQ(awaited(std::move(second)), ImageSummary());
    EXPECT_EQ(awaited(std::move(third)).pixelSize, QSize(30, 40));
}

class ReaderImageCodecMisfortune : public testing::TestWithParam<const char*> {};

TEST_P(ReaderImageCodecMisfortune, CostsThatOnePicture) {
    // Only one that hangs is ended by the clock.
    const bool hangs = QByteArray(GetParam()) == "hang";
    ReaderImageCodec codec(fakeReader, hangs ? shortDeadline : longDeadline);
    EXPECT_EQ(awaited(codec.summarise("good", 160)).pixelSize, QSize(7, 9));
    EXPECT_EQ(awaited(codec.summarise(QByteArray(GetParam()), 160)), ImageSummary());
    EXPECT_EQ(awaited(codec.summarise("good", 160)).pixelSize, QSize(7, 9));
    EXPECT_LE(children().size(), 1);
}

INSTANTIATE_TEST_SUITE_P(Readers, ReaderImageCodecMisfortune,
                         testing::Values("crash", "hang", "leave", "flood", "lie", "babble"),
                         [](const auto& instance) { return std::string(instance.param); });

TEST(ReaderImageCodec, AReaderThatLeftIsReplacedUnnoticed) {
    ReaderImageCodec codec(fakeReader, longDeadline);
    ASSERT_EQ(awaited(codec.summarise("good", 160)).pixelSize, QSize(7, 9));
    ASSERT_EQ(children().size(), 1);
    const pid_t reader = children().first().toInt();
    kill(reader, SIGKILL);
    // It is collected on another thread, which notifies nothing.
    QTimer looks;
    looks.start(std::chrono::milliseconds(1));
    runUntil([] { return children().isEmpty(); });
    EXPECT_EQ(awaited(codec.summarise("good", 160)).pixelSize, QSize(7, 9));
}

TEST(ReaderImageCodec, WithoutAReaderSummariesAreEmpty) {
    ReaderImageCodec codec(QStringLiteral("/no/such/reader"));
    EXPECT_EQ(awaited(codec.summarise(encode(twoColours(8, 8), "PNG"), 160)), ImageSummary());
}

TEST(ReaderImageCodec, GoingAwayEndsAHangingReaderAtOnce) {
    const LoggedLines log;
    auto codec = std::make_unique<ReaderImageCodec>(fakeReader, std::chrono::hours(1));
    auto first = codec->summarise("hang", 160);
    auto second = codec->summarise("good", 160);
    codec.reset();
    EXPECT_TRUE(children().isEmpty());
    EXPECT_EQ(awaited(std::move(first)), ImageSummary());
    EXPECT_EQ(awaited(std::move(second)), ImageSummary());
    EXPECT_EQ(log.count(QtWarningMsg, u"reader"), 0) << "that is no fault of the reader's";
}

} // namespace
} // namespace vellumry
