// SPDX-License-Identifier: GPL-3.0-or-later
#include "capture/text/TextReadingQueue.h"
#include "capture/text/TextRecognizer.h"
#include "linux/reader/ReaderTextReader.h"
#include "reader/ChildProcesses.h"
#include "reader/PictureBytes.h"
#include "reader/PictureDecoder.h"
#include "support/Awaited.h"
#include "support/Drafts.h"

#include <gtest/gtest.h>
#include <sys/resource.h>

namespace vellumry {
namespace {

using namespace picturebytes;

/// A picture of 20,000 x 20,000 pixels with a word in its middle, the most that is opened for reading.
QByteArray largest() {
    constexpr int side = 20'000;
    constexpr int enlarged = 12;
    const QImage word = drawnWord("HOTEL", 0xFFFFFFFF, 0xFF000000);
    QImage image(side, side, QImage::Format_Mono);
    image.setColorTable({0xFFFFFFFF, 0xFF000000});
    image.fill(0);
    for (int y = 0; y < word.height() * enlarged; ++y) {
        for (int x = 0; x < word.width() * enlarged; ++x)
            image.setPixel(side / 2 + x, side / 2 + y, qGray(word.pixel(x / enlarged, y / enlarged)) < 128 ? 1 : 0);
    }
    return encode(image, "PNG");
}

TEST(LargePictureReading, TheLargestIsOpenedRowByRow) {
    const QByteArray file = largest();
    rusage before{};
    getrusage(RUSAGE_SELF, &before);
    const QImage image = picturedecoder::imageForReading(file, TextRecognizer::maxPixelSize);
    rusage after{};
    getrusage(RUSAGE_SELF, &after);
    ASSERT_EQ(image.size(), QSize(6000, 6000));
    EXPECT_EQ(image.pixelColor(10, 10), QColor(Qt::white));
    int dark = 0;
    for (int x = 3000; x < 3600; ++x)
        dark += qGray(image.pixel(x, 3200)) < 100 ? 1 : 0;
    EXPECT_GT(dark, 20) << "the word in its middle";
    EXPECT_LT((after.ru_maxrss - before.ru_maxrss) / 1024, 300) << "megabytes, where all of its pixels are 1,600";
}

TEST(LargePictureReading, TheQueueGoesOnBehindAPictureThatTakesTooLong) {
    ReaderTextReader reader(QStringLiteral(VELLUMRY_READER));
    TextRecognizer recognizer(reader);
    ClipStore store{RetentionPolicy{}};
    const QByteArray largeFile = largest();
    const QByteArray smallFile = encode(drawnWord("HELLO", 0xFFFFFFFF, 0xFF000000), "PNG");
    TextReadingQueue::Seams seams;
    seams.read = [&](QByteArray picture, TextReader::Mode mode) {
        // Far less than opening the picture takes on any machine.
        const auto limit = picture == largeFile ? std::optional(0.02) : std::nullopt;
        return recognizer.read(std::move(picture), mode, limit);
    };
    seams.isAccurateUsable = [] { return false; };
    seams.fileStatus = [](const FileRef&) { return FileStatus::missing(); };
    seams.canReadQuietly = [](const QString&) { return true; };
    TextReadingQueue queue(store, seams);
    const QUuid large = awaited(store.add(drafts::image(largeFile), 1))->id;
    const QUuid small = awaited(store.add(drafts::image(smallFile), 2))->id;

    queue.enqueue({large, small});
    // No picture is given more than half a minute.
    runUntil([&queue] { return !queue.current(); }, 60'000);

    EXPECT_EQ(store.find(large)->imageText, std::nullopt);
    EXPECT_EQ(store.find(small)->imageText, QStringLiteral("HELLO"));
    EXPECT_EQ(queue.waitingAccurate(), (std::vector<QUuid>{large, small})) << "both come again, when there is time";
    EXPECT_EQ(childprocesses::children().size(), 1) << "the reader of the large one was ended";
}

TEST(LargePictureReading, OneWithMorePixelsIsRefusedAtOnce) {
    ReaderTextReader reader(QStringLiteral(VELLUMRY_READER));
    const auto reading = awaited(reader.read(pngHeader(20'001, 20'000), TextReader::Mode::fast,
                                             TextRecognizer::maxPixelSize, std::chrono::minutes(1)));
    EXPECT_EQ(reading.outcome, TextReader::Outcome::undecodable);
    const QList<QByteArray> readers = childprocesses::children();
    ASSERT_EQ(readers.size(), 1);
    EXPECT_LT(childprocesses::mostMegabytes(readers.first()), 100);
}

} // namespace
} // namespace vellumry
