// SPDX-License-Identifier: GPL-3.0-or-later
#include "reader/ImageMarks.h"

#include "reader/PictureBytes.h"

#include <gtest/gtest.h>
#include <vector>

namespace vellumry {
namespace {

using namespace picturebytes;
using imagemarks::isScreenshot;

const QByteArray asciiCode("ASCII\0\0\0", 8);
const QByteArray exifIntroduction("Exif\0\0", 6);

QByteArray textChunk(const QByteArray& keyword, const QByteArray& text) {
    return pngChunk("tEXt", keyword + '\0' + text);
}

QByteArray xmpWithElement(const QByteArray& comment) {
    return "<x:xmpmeta xmlns:x='adobe:ns:meta/'><rdf:RDF xmlns:rdf='http://www.w3.org/1999/02/22-rdf-syntax-ns#'>"
           "<rdf:Description xmlns:exif='http://ns.adobe.com/exif/1.0/'><exif:UserComment><rdf:Alt>"
           "<rdf:li xml:lang='x-default'>" +
           comment + "</rdf:li></rdf:Alt></exif:UserComment></rdf:Description></rdf:RDF></x:xmpmeta>";
}

QByteArray jpeg() {
    return encode(twoColours(8, 8), "JPEG");
}

TEST(ImageMarks, APngSignedByAScreenshotToolIsOne) {
    EXPECT_TRUE(isScreenshot(pngWith(textChunk("Software", "gnome-screenshot"))));
    EXPECT_FALSE(isScreenshot(pngWith(textChunk("Software", "Painter"))));
    EXPECT_FALSE(isScreenshot(pngWith(textChunk("Author", "gnome-screenshot"))));
    EXPECT_FALSE(isScreenshot(pngWith(QByteArray())));
}

TEST(ImageMarks, TheUserCommentCountsInEitherByteOrder) {
    for (const bool isBigEndian : {false, true}) {
        EXPECT_TRUE(isScreenshot(pngWith(pngChunk("eXIf", exif(asciiCode + "Screenshot", isBigEndian)))));
        EXPECT_TRUE(
            isScreenshot(jpegWith(jpeg(), 0xE1, exifIntroduction + exif(asciiCode + "Screenshot", isBigEndian))));
        EXPECT_TRUE(isScreenshot(exif(asciiCode + "Screenshot", isBigEndian))) << "a TIFF file";
    }
}

TEST(ImageMarks, TheCommentIsTrimmedAndItsCaseIgnored) {
    const auto withComment = [](const QByteArray& comment) { return isScreenshot(exif(comment, false)); };
    EXPECT_TRUE(withComment(asciiCode + " \n sCREENshot\t "));
    EXPECT_TRUE(withComment(asciiCode + QByteArray("Screenshot\0\0\0", 13)));
    EXPECT_TRUE(withComment(QByteArray(8, '\0') + "Screenshot"));
    EXPECT_TRUE(withComment("Screenshot"));
    EXPECT_FALSE(withComment(asciiCode + "Screenshots"));
    EXPECT_FALSE(withComment(asciiCode + "A Screenshot"));
    EXPECT_FALSE(withComment(asciiCode));
    EXPECT_FALSE(withComment(""));
}

TEST(ImageMarks, AUnicodeCommentIsReadInTheFilesByteOrder) {
    const QByteArray code("UNICODE\0", 8);
    QByteArray little;
    QByteArray big;
    for (const char letter : QByteArray("Screenshot")) {
        little += QByteArray(1, letter) + '\0';
        big += '\0' + QByteArray(1, letter);
    }
    EXPECT_TRUE(isScreenshot(exif(code + little, false)));
    EXPECT_TRUE(isScreenshot(exif(code + big, true)));
    EXPECT_FALSE(isScreenshot(exif(code + big, false)));
}

TEST(ImageMarks, XmpCountsAsElementAndAsAttribute) {
    const QByteArray attribute = "<d xmlns:e='http://ns.adobe.com/exif/1.0/' e:UserComment='Screenshot'/>";
    const QByteArray start("http://ns.adobe.com/xap/1.0/\0", 29);
    EXPECT_TRUE(isScreenshot(jpegWith(jpeg(), 0xE1, start + xmpWithElement("Screenshot"))));
    EXPECT_TRUE(isScreenshot(jpegWith(jpeg(), 0xE1, start + attribute)));
    EXPECT_FALSE(isScreenshot(jpegWith(jpeg(), 0xE1, start + xmpWithElement("Holiday"))));
    const QByteArray international = QByteArray("XML:com.adobe.xmp\0\0\0\0\0", 22);
    EXPECT_TRUE(isScreenshot(pngWith(pngChunk("iTXt", international + xmpWithElement("Screenshot")))));
}

TEST(ImageMarks, WebpCarriesBoth) {
    const auto webp = [](const QByteArray& name, const QByteArray& content) {
        const auto size = static_cast<char>(content.size());
        return QByteArray("RIFF\0\0\0\0WEBP", 12) + "VP8X" + QByteArray("\x02\0\0\0ab", 6) + name + size +
               QByteArray(3, '\0') + content;
    };
    EXPECT_TRUE(isScreenshot(webp("EXIF", exif(asciiCode + "Screenshot", true))));
    EXPECT_TRUE(isScreenshot(webp("XMP ", "<d xmlns:e='http://ns.adobe.com/exif/1.0/' e:UserComment='Screenshot'/>")));
    EXPECT_FALSE(isScreenshot(webp("EXIF", exif(asciiCode + "Other", true))));
}

TEST(ImageMarks, AMarkBehindThePictureOfAJpegIsNoMark) {
    const QByteArray marked = jpegWith(jpeg(), 0xE1, exifIntroduction + exif(asciiCode + "Screenshot", false));
    const QByteArray plain = jpeg();
    EXPECT_FALSE(isScreenshot(plain + marked.sliced(2)));
}

TEST(ImageMarks, EveryTruncationIsReadWithinBounds) {
    const QByteArray files[] = {pngWith(textChunk("Software", "gnome-screenshot")),
                                pngWith(pngChunk("eXIf", exif(asciiCode + "Screenshot", true))),
                                jpegWith(jpeg(), 0xE1, exifIntroduction + exif(asciiCode + "Screenshot", false)),
                                exif(asciiCode + "Screenshot", false)};
    for (const QByteArray& file : files) {
        ASSERT_TRUE(isScreenshot(file));
        EXPECT_FALSE(isScreenshot(file.first(20)));
        for (qsizetype length = 0; length < file.size(); ++length) {
            // A copy of exactly that length, so that a sanitizer sees a read behind it.
            const std::vector<char> bytes(file.begin(), file.begin() + length);
            (void)isScreenshot(QByteArrayView(bytes.data(), length));
        }
    }
}

} // namespace
} // namespace vellumry
