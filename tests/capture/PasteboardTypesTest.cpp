// SPDX-License-Identifier: GPL-3.0-or-later
#include "capture/PasteboardTypes.h"

#include "foundation/UniformType.h"

#include <gtest/gtest.h>

namespace vellumry::pasteboardtype {
namespace {

TEST(PasteboardTypes, FifteenTypesAreEssential) {
    for (const char* type :
         {"public.utf8-plain-text", "public.rtf", "com.apple.flat-rtfd", "public.html", "public.url", "public.file-url",
          "public.png", "public.tiff", "public.jpeg", "public.heic", "com.adobe.pdf",
          "com.apple.cocoa.pasteboard.color", "com.apple.icns", "public.url-name", "public.utf16-external-plain-text"})
        EXPECT_TRUE(isEssential(QString::fromUtf8(type))) << type;
    EXPECT_FALSE(isEssential(QStringLiteral("image/webp")));
    EXPECT_FALSE(isEssential(uniformtype::webArchive));
}

TEST(PasteboardTypes, AliasesOfOldSystemsAreLeftOut) {
    for (const char* type :
         {"dyn.ah62d4rv4gk81n65yru", "CorePasteboardFlavorType 0x75746638", "NeXT Rich Text Format v1.0",
          "Apple PNG pasteboard type", "NSStringPboardType", "com.apple.traditional-mac-plain-text"})
        EXPECT_TRUE(isLegacyAlias(QString::fromUtf8(type))) << type;
    for (const char* type : {"public.utf8-plain-text", "NSFilenames", "Apple pie", "dynamic", "text/x-dyn."})
        EXPECT_FALSE(isLegacyAlias(QString::fromUtf8(type))) << type;
}

TEST(PasteboardTypes, PlainTextIsReadBeforeRichTextThatBeforePicturesAndAllBeforeTheUnknown) {
    EXPECT_EQ(readingTurn(uniformtype::utf8PlainText), ReadingTurn::plainText);
    EXPECT_EQ(readingTurn(uniformtype::fileUrl), ReadingTurn::plainText);
    EXPECT_EQ(readingTurn(uniformtype::html), ReadingTurn::text);
    EXPECT_EQ(readingTurn(uniformtype::rtf), ReadingTurn::text);
    EXPECT_EQ(readingTurn(uniformtype::sourceUrl), ReadingTurn::plainText);
    EXPECT_EQ(readingTurn(uniformtype::png), ReadingTurn::picture);
    EXPECT_EQ(readingTurn(uniformtype::pdf), ReadingTurn::picture);
    EXPECT_EQ(readingTurn(QStringLiteral("application/x-private")), ReadingTurn::unknown);
}

TEST(PasteboardTypes, FourPicturesInOrderOfPreference) {
    EXPECT_EQ(imageTypes(), QStringList({uniformtype::png, uniformtype::tiff, uniformtype::jpeg, uniformtype::heic}));
}

TEST(PasteboardTypes, WhatMakesAClipOutranksUncommonPictures) {
    for (const QString& type : imageTypes())
        EXPECT_TRUE(makesClip(type));
    EXPECT_TRUE(makesClip(uniformtype::utf8PlainText));
    EXPECT_TRUE(makesClip(uniformtype::fileUrl));
    EXPECT_FALSE(makesClip(uniformtype::html));
    EXPECT_FALSE(makesClip(uniformtype::pdf));
    for (const QString& type : otherImageTypes())
        EXPECT_FALSE(makesClip(type)) << type.toStdString();
}

TEST(PasteboardTypes, ScreenshotToolsAreKnown) {
    EXPECT_TRUE(isScreenshotSource(QStringLiteral("com.apple.screencaptureui")));
    EXPECT_TRUE(isScreenshotSource(QStringLiteral("com.apple.Screenshot")));
    EXPECT_FALSE(isScreenshotSource(QStringLiteral("com.apple.screenshot")));
}

} // namespace
} // namespace vellumry::pasteboardtype
