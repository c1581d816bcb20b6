// SPDX-License-Identifier: GPL-3.0-or-later
#include "capture/ImageCompleteness.h"

#include "foundation/UniformType.h"

#include <QByteArray>
#include <QtEndian>
#include <gtest/gtest.h>

namespace vellumry::imagecompleteness {
namespace {

template <typename Number>
QByteArray number(Number value, bool isBigEndian) {
    QByteArray bytes(sizeof value, '\0');
    isBigEndian ? qToBigEndian(value, bytes.data()) : qToLittleEndian(value, bytes.data());
    return bytes;
}

/// A TIFF of one strip of ten bytes at the end.
QByteArray tiff(bool isBigEndian) {
    const auto entry = [isBigEndian](quint16 tag, quint32 value) {
        return number(tag, isBigEndian) + number(quint16(4), isBigEndian) + number(quint32(1), isBigEndian) +
               number(value, isBigEndian);
    };
    const QByteArray head = isBigEndian ? QByteArray("MM\0*", 4) : QByteArray("II*\0", 4);
    return head + number(quint32(8), isBigEndian) + number(quint16(2), isBigEndian) + entry(273, 38) + entry(279, 10) +
           number(quint32(0), isBigEndian) + "0123456789";
}

QByteArray box(const QByteArray& name, const QByteArray& content) {
    return number(quint32(content.size() + 8), true) + name + content;
}

/// True for the whole, false for each beginning of it.
void expectNeedsEveryByte(const QByteArray& whole, const QString& type) {
    EXPECT_TRUE(isComplete(whole, type));
    for (qsizetype length = 0; length < whole.size(); ++length)
        EXPECT_FALSE(isComplete(QByteArrayView(whole).first(length), type)) << "after " << length << " bytes";
}

TEST(ImageCompleteness, APngEndsInItsEndChunk) {
    const QByteArray png =
        QByteArray("\x89PNG\r\n\x1a\n", 8) + "rows of pixels" + QByteArray("\0\0\0\0IEND\xAE\x42\x60\x82", 12);
    EXPECT_TRUE(isComplete(png, uniformtype::png));
    EXPECT_FALSE(isComplete(png.chopped(8), uniformtype::png));
    EXPECT_FALSE(isComplete(png + "more than twelve bytes", uniformtype::png));
    EXPECT_FALSE(isComplete("IEND", uniformtype::png));
    EXPECT_FALSE(isComplete({}, uniformtype::png));
}

TEST(ImageCompleteness, AJpegEndsInItsEndMarker) {
    expectNeedsEveryByte("\xFF\xD8 scans \xFF\xD9", uniformtype::jpeg);
}

TEST(ImageCompleteness, ATiffHoldsWhatItsDirectoryPointsTo) {
    expectNeedsEveryByte(tiff(false), uniformtype::tiff);
    expectNeedsEveryByte(tiff(true), uniformtype::tiff);
}

TEST(ImageCompleteness, ATiffThatPointsAnywhereIsIncomplete) {
    QByteArray lost = tiff(false);
    qToLittleEndian(quint32(0xfffffff0), lost.data() + 4);
    EXPECT_FALSE(isComplete(lost, uniformtype::tiff));
    QByteArray many = tiff(false);
    qToLittleEndian(quint32(0xffffffff), many.data() + 8 + 2 + 4);
    EXPECT_FALSE(isComplete(many, uniformtype::tiff));
}

TEST(ImageCompleteness, TheBoxesOfAHeicFillTheFile) {
    const QByteArray heic = box("ftyp", "heic") + box("meta", "about") + box("mdat", "pixels");
    EXPECT_TRUE(isComplete(heic, uniformtype::heic));
    EXPECT_FALSE(isComplete(heic.chopped(1), uniformtype::heic));
    EXPECT_FALSE(isComplete(heic + "x", uniformtype::heic));
    EXPECT_FALSE(isComplete(box("ftyp", "heic"), uniformtype::heic));
    EXPECT_FALSE(isComplete(box("mdat", "pixels"), uniformtype::heic));
    EXPECT_FALSE(isComplete({}, uniformtype::heic));
}

TEST(ImageCompleteness, LongAndOpenBoxesAreUnderstood) {
    const QByteArray longBox = number(quint32(1), true) + "mdat" + number(quint64(16 + 6), true) + "pixels";
    const QByteArray openBox = number(quint32(0), true) + "mdat" + "to the end";
    EXPECT_TRUE(isComplete(box("ftyp", "heic") + longBox, uniformtype::heic));
    EXPECT_TRUE(isComplete(box("ftyp", "heic") + openBox, uniformtype::heic));
    const QByteArray liar = number(quint32(1), true) + "mdat" + number(quint64(-1), true);
    EXPECT_FALSE(isComplete(box("ftyp", "heic") + liar, uniformtype::heic));
}

TEST(ImageCompleteness, OtherTypesAreNeverComplete) {
    EXPECT_FALSE(isComplete("GIF89a;", QStringLiteral("com.compuserve.gif")));
}

TEST(ImageCompleteness, AMarkIsFoundInEveryEncoding) {
    EXPECT_TRUE(mayHoldScreenshotMark("..gnome-screenshot.."));
    EXPECT_TRUE(mayHoldScreenshotMark(QByteArray("ASCII\0\0\0ScreenShot", 18)));
    EXPECT_TRUE(mayHoldScreenshotMark(QByteArray("S\0c\0r\0e\0e\0n\0s\0h\0o\0t\0", 20)));
    EXPECT_TRUE(mayHoldScreenshotMark(QByteArray("\0S\0c\0r\0e\0e\0n\0s\0h\0o\0t", 20)));
    EXPECT_FALSE(mayHoldScreenshotMark("a screen and a shot"));
    EXPECT_FALSE(mayHoldScreenshotMark("screensho"));
    EXPECT_FALSE(mayHoldScreenshotMark({}));
}

} // namespace
} // namespace vellumry::imagecompleteness
