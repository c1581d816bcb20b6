// SPDX-License-Identifier: GPL-3.0-or-later
#include "foundation/UniformType.h"

#include <gtest/gtest.h>

namespace vellumry {

namespace {

struct TargetRow {
    const char* name;
    QString target;
    std::optional<QString> type;
};

class UniformTypeOfTarget : public testing::TestWithParam<TargetRow> {};

QString text(const char16_t* value) {
    return QString::fromUtf16(value);
}

TargetRow kept(const char* name, const char16_t* target) {
    return {name, text(target), text(target)};
}
TargetRow dropped(const char* name, const char16_t* target) {
    return {name, text(target), std::nullopt};
}

} // namespace

TEST_P(UniformTypeOfTarget, FollowsTheTable) {
    EXPECT_EQ(uniformtype::fromTarget(GetParam().target), GetParam().type);
}

INSTANTIATE_TEST_SUITE_P(
    Known, UniformTypeOfTarget,
    testing::Values(TargetRow{"Utf8String", text(u"UTF8_STRING"), uniformtype::utf8PlainText},
                    TargetRow{"PlainText", text(u"text/plain"), uniformtype::utf8PlainText},
                    TargetRow{"PlainUtf8", text(u"text/plain;charset=utf-8"), uniformtype::utf8PlainText},
                    TargetRow{"PlainUtf8Spelled", text(u"text/plain; charset=\"UTF-8\""), uniformtype::utf8PlainText},
                    TargetRow{"String", text(u"STRING"), uniformtype::utf8PlainText},
                    TargetRow{"CompoundText", text(u"COMPOUND_TEXT"), uniformtype::utf8PlainText},
                    TargetRow{"Utf16", text(u"text/plain;charset=utf-16"), uniformtype::utf16PlainText},
                    TargetRow{"Html", text(u"text/html"), uniformtype::html},
                    TargetRow{"RichText", text(u"text/richtext"), uniformtype::rtf},
                    TargetRow{"ApplicationRtf", text(u"application/rtf"), uniformtype::rtf},
                    TargetRow{"Png", text(u"image/png"), uniformtype::png},
                    TargetRow{"PngUpperCase", text(u"IMAGE/PNG"), uniformtype::png},
                    TargetRow{"Heif", text(u"image/heif"), uniformtype::heic},
                    TargetRow{"Pdf", text(u"application/pdf"), uniformtype::pdf},
                    TargetRow{"Colour", text(u"application/x-color"), uniformtype::color},
                    TargetRow{"ChromiumSource", text(u"chromium/x-source-url"), uniformtype::sourceUrl},
                    TargetRow{"MozillaSource", text(u"text/x-moz-url-priv"), uniformtype::sourceUrl},
                    TargetRow{"PasswordHint", text(u"x-kde-passwordManagerHint"), uniformtype::concealed}),
    [](const auto& row) { return row.param.name; });

INSTANTIATE_TEST_SUITE_P(Kept, UniformTypeOfTarget,
                         testing::Values(kept("OwnMarker", u"com.vellumry.marker"), kept("UriList", u"text/uri-list"),
                                         kept("GnomeFiles", u"x-special/gnome-copied-files"),
                                         kept("KdeCut", u"application/x-kde-cutselection"),
                                         kept("MozillaUrl", u"text/x-moz-url"),
                                         kept("UnknownKeepsItsCase", u"Application/X-Thing"),
                                         kept("ReverseDns", u"org.example.thing"),
                                         kept("Latin1", u"text/plain;charset=iso-8859-1"),
                                         kept("GeneratorMarker", u"Pasteboard generator type"),
                                         kept("TransientMarker", u"de.lorentwick.TransientPasteboardType")),
                         [](const auto& row) { return row.param.name; });

INSTANTIATE_TEST_SUITE_P(
    Dropped, UniformTypeOfTarget,
    testing::Values(dropped("Targets", u"TARGETS"), dropped("Multiple", u"MULTIPLE"),
                    dropped("Timestamp", u"TIMESTAMP"), dropped("SaveTargets", u"SAVE_TARGETS"),
                    dropped("Delete", u"DELETE"), dropped("InsertProperty", u"INSERT_PROPERTY"),
                    dropped("GtkPointer", u"GTK_TEXT_BUFFER_CONTENTS"),
                    dropped("ChromiumInternal", u"chromium/x-internal-source-rfh-token"),
                    dropped("OfficeInternal", u"application/x-libreoffice-internal-id-4711"),
                    dropped("OfficeLink", u"application/x-openoffice-link;windows_formatname=\"Link\""),
                    dropped("HostName", u"HOSTNAME"), dropped("ClientWindow", u"CLIENT_WINDOW"), dropped("Empty", u"")),
    [](const auto& row) { return row.param.name; });

TEST(UniformType, TextIsOfferedBestFirst) {
    EXPECT_EQ(uniformtype::targetsFor(uniformtype::utf8PlainText),
              (QStringList{text(u"UTF8_STRING"), text(u"text/plain;charset=utf-8"), text(u"text/plain"),
                           text(u"STRING"), text(u"TEXT"), text(u"COMPOUND_TEXT")}));
}

TEST(UniformType, UnknownTypesAreOfferedUnderTheirOwnName) {
    EXPECT_EQ(uniformtype::targetsFor(text(u"org.example.thing")), QStringList{text(u"org.example.thing")});
    EXPECT_EQ(uniformtype::targetsFor(uniformtype::ownMarker), QStringList{uniformtype::ownMarker});
}

TEST(UniformType, EveryOfferedNameReadsBack) {
    for (const QString& type :
         {uniformtype::utf8PlainText, uniformtype::utf16PlainText, uniformtype::rtf, uniformtype::html,
          uniformtype::png, uniformtype::tiff, uniformtype::jpeg, uniformtype::heic, uniformtype::pdf,
          uniformtype::icns, uniformtype::color, uniformtype::sourceUrl, uniformtype::url, uniformtype::urlName,
          uniformtype::rtfd, uniformtype::concealed, uniformtype::ownMarker}) {
        for (const QString& target : uniformtype::targetsFor(type))
            EXPECT_EQ(uniformtype::fromTarget(target), type) << qPrintable(target);
    }
}

TEST(UniformType, ThePreferredTargetIsTheMostFaithful) {
    const QStringList offered{text(u"TEXT"), text(u"text/plain"), text(u"text/plain;charset=UTF-8"),
                              text(u"text/html")};
    EXPECT_EQ(uniformtype::preferredTarget(uniformtype::utf8PlainText, offered), text(u"text/plain;charset=UTF-8"));
    EXPECT_EQ(uniformtype::preferredTarget(uniformtype::html, offered), text(u"text/html"));
    EXPECT_EQ(uniformtype::preferredTarget(uniformtype::png, offered), std::nullopt);
    EXPECT_EQ(uniformtype::preferredTarget(uniformtype::sourceUrl,
                                           {text(u"text/x-moz-url-priv"), text(u"chromium/x-source-url")}),
              text(u"chromium/x-source-url"));
    EXPECT_EQ(uniformtype::preferredTarget(text(u"org.example.x"), {text(u"org.example.x")}), text(u"org.example.x"));
}

TEST(UniformType, PicturesAreKnownByTheirExtension) {
    for (const char16_t* extension : {u"png", u"JPG", u"Heic", u"tiff", u"webp", u"svg", u"gif", u"cr2"})
        EXPECT_TRUE(uniformtype::isImageExtension(text(extension))) << qPrintable(text(extension));
    for (const char16_t* extension : {u"", u"txt", u"pdf", u"mp4", u"png2"})
        EXPECT_FALSE(uniformtype::isImageExtension(text(extension))) << qPrintable(text(extension));
}

TEST(UniformType, FourKindsOfPictureHaveAPasteboardType) {
    EXPECT_EQ(uniformtype::imageTypeOfExtension(text(u"PNG")), uniformtype::png);
    EXPECT_EQ(uniformtype::imageTypeOfExtension(text(u"jpeg")), uniformtype::jpeg);
    EXPECT_EQ(uniformtype::imageTypeOfExtension(text(u"heic")), uniformtype::heic);
    EXPECT_EQ(uniformtype::imageTypeOfExtension(text(u"tif")), uniformtype::tiff);
    EXPECT_EQ(uniformtype::imageTypeOfExtension(text(u"gif")), std::nullopt);
}

TEST(UniformType, EightTypesRefuseACopy) {
    for (const char* type :
         {"org.nspasteboard.ConcealedType", "org.nspasteboard.TransientType", "org.nspasteboard.AutoGeneratedType",
          "de.lorentwick.TransientPasteboardType", "com.agilebits.onepassword", "Pasteboard generator type",
          "com.typeit4me.clipping", "net.antelle.keeweb"}) {
        EXPECT_TRUE(uniformtype::isRefusalMark(QString::fromUtf8(type))) << type;
        EXPECT_TRUE(uniformtype::isKnownTarget(QString::fromUtf8(type))) << type;
    }
    EXPECT_FALSE(uniformtype::isRefusalMark(QStringLiteral("org.nspasteboard.concealedtype")));
    EXPECT_FALSE(uniformtype::isRefusalMark(uniformtype::utf8PlainText));
}

TEST(UniformType, WhatDecidesAboutACopyIsKnown) {
    for (const char* target : {"UTF8_STRING", "STRING", "TEXT/Plain; charset=utf-8", "image/png", "text/uri-list",
                               "x-special/gnome-copied-files", "x-kde-passwordManagerHint", "com.vellumry.marker"})
        EXPECT_TRUE(uniformtype::isKnownTarget(QString::fromUtf8(target))) << target;
    for (const char* target : {"application/x-private", "TARGETS", "image/webp"})
        EXPECT_FALSE(uniformtype::isKnownTarget(QString::fromUtf8(target))) << target;
}

TEST(UniformType, KeysThatOpenNothingLaterAreLeftOut) {
    for (const char* target : {"application/vnd.portal.filetransfer", "application/vnd.portal.files",
                               "text/x-libfmqt-pid", "GTK_TEXT_BUFFER_CONTENTS"}) {
        EXPECT_TRUE(uniformtype::isProcessLocal(QString::fromUtf8(target))) << target;
        EXPECT_EQ(uniformtype::fromTarget(QString::fromUtf8(target)), std::nullopt) << target;
    }
    EXPECT_FALSE(uniformtype::isProcessLocal(QStringLiteral("text/uri-list")));
}

} // namespace vellumry
