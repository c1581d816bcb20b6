// SPDX-License-Identifier: GPL-3.0-or-later
#include "foundation/UniformType.h"
#include "linux/pasteboard/FileList.h"
#include "linux/pasteboard/OfferedContents.h"
#include "linux/pasteboard/TargetCoding.h"

#include <gtest/gtest.h>

namespace vellumry {

namespace {

std::optional<QByteArray> text(const char16_t* target, const char16_t* propertyType, const QByteArray& bytes) {
    return targetcoding::decode(uniformtype::utf8PlainText, QString::fromUtf16(target),
                                QString::fromUtf16(propertyType), bytes);
}

TEST(TargetCoding, OneNulAtTheEndOfTextIsNotContent) {
    EXPECT_EQ(text(u"UTF8_STRING", u"UTF8_STRING", QByteArray("a\0\0", 3)), QByteArray("a\0", 2));
    EXPECT_EQ(text(u"STRING", u"STRING", QByteArray("\xe9\0", 2)), "\xc3\xa9");
}

TEST(TargetCoding, PlainTextIsUtf8WhereItCanBe) {
    EXPECT_EQ(text(u"text/plain", u"text/plain", "\xc3\xa9"), "\xc3\xa9");
    EXPECT_EQ(text(u"text/plain", u"text/plain", "\xe9"), "\xc3\xa9");
}

TEST(TargetCoding, CompoundTextIsUnderstoodWithoutEscapeSequences) {
    EXPECT_EQ(text(u"COMPOUND_TEXT", u"COMPOUND_TEXT", "caf\xe9"), "caf\xc3\xa9");
    EXPECT_EQ(text(u"COMPOUND_TEXT", u"COMPOUND_TEXT", "\x1b%G\xe2\x82\xac"), std::nullopt);
}

TEST(TargetCoding, OtherBytesStayAsTheyAre) {
    const QByteArray bytes("\xff\xfe<\0\0", 5);
    EXPECT_EQ(targetcoding::decode(uniformtype::html, QStringLiteral("text/html"), QStringLiteral("text/html"), bytes),
              bytes);
}

TEST(FileList, ReadsFilesAndLeavesOutTheRest) {
    const auto entries = filelist::parse("# comment\r\nfile:///a\r\n\r\nfile://far.example/b\r\nfile:///bad%zz\r\n"
                                         "ftp://x/y\r\nfile:///caf%E9\r\nhttps://one/\r\nhttp://two/\r\n");
    EXPECT_EQ(entries.files, (QByteArrayList{"file:///a", "file:///caf%E9"}));
    EXPECT_EQ(entries.webAddress, "https://one/");
    EXPECT_EQ(entries.elsewhere, QByteArrayList{"ftp://x/y"});
}

TEST(FileList, AddressesElsewhereHaveASchemeThatTheListIsNotFor) {
    const auto entries =
        filelist::parse("copy\nsftp://u@host/a\nmtp://phone/b\ntrash:///c\nC:\\file\n1:2\nscheme:\nplain\n");
    EXPECT_EQ(entries.elsewhere, (QByteArrayList{"sftp://u@host/a", "mtp://phone/b", "trash:///c"}));
    EXPECT_EQ(entries.urls(), "sftp://u@host/a\nmtp://phone/b\ntrash:///c");
}

TEST(FileList, ReadsTheDesktopsOwnList) {
    EXPECT_EQ(filelist::parse(QByteArray("cut\nfile:///a\nfile:///b\0", 24)).files,
              (QByteArrayList{"file:///a", "file:///b"}));
    EXPECT_EQ(filelist::parse("").files, QByteArrayList());
    EXPECT_EQ(filelist::parse(QByteArray(100000, '\n')).files, QByteArrayList());
}

TEST(FileList, AHundredThousandEntriesAreReadOddOnesLeftOut) {
    QByteArray list;
    for (int i = 0; i < 100'000; ++i) {
        const QByteArray number = QByteArray::number(i);
        list += "file:///home/someone/" + number + ".txt\r\n";
        list += i % 3 == 0
                    ? "file:///home/%" + number + "\r\n"
                    : (i % 3 == 1 ? "file://server/share/" + number + "\r\n" : "smb://server/" + number + "\r\n");
    }
    // "%10" to "%99" of every third number are good escapes.
    const filelist::Entries entries = filelist::parse(list);
    EXPECT_GE(entries.files.size(), 100'000);
    EXPECT_EQ(entries.files.count("file:///home/someone/99999.txt"), 1);
    for (const QByteArray& file : entries.files)
        ASSERT_TRUE(file.startsWith("file:///home/"));
}

TEST(FileList, NamesThatAreNotUtf8KeepTheirBytes) {
    const filelist::Entries entries = filelist::parse("file:///caf%E9\r\nfile:///raw\xe9\r\n");
    EXPECT_EQ(entries.files, (QByteArrayList{"file:///caf%E9", "file:///raw\xe9"}));
    EXPECT_EQ(filelist::asUriList(entries.files), "file:///caf%E9\r\nfile:///raw\xe9\r\n");
}

TEST(FileList, WritesTheOperationOfTheOriginal) {
    EXPECT_EQ(filelist::asCopiedFiles({"file:///a"}, {}), "copy\nfile:///a");
    EXPECT_EQ(filelist::asCopiedFiles({"file:///a"}, "cut\nfile:///other"), "cut\nfile:///a");
    EXPECT_EQ(filelist::asCopiedFiles({"file:///a"}, "cutter"), "copy\nfile:///a");
    EXPECT_EQ(filelist::asCopiedFiles({"file:///a"}, QByteArray("1\0", 2)), "cut\nfile:///a");
    EXPECT_EQ(filelist::asCopiedFiles({"file:///a"}, "0"), "copy\nfile:///a");
}

TEST(OfferedContents, TextsOfSeveralItemsBecomeLines) {
    const PasteboardItem one{{{uniformtype::utf8PlainText, "one"}}, std::nullopt};
    const PasteboardItem two{{{uniformtype::utf8PlainText, "two"}}, std::nullopt};
    const auto contents = OfferedContents::of({one, two});
    EXPECT_EQ(contents->data(QStringLiteral("UTF8_STRING")), "one\ntwo");
    EXPECT_EQ(contents->items().size(), 2U);
}

TEST(OfferedContents, LatinNamesAreOfferedForTextThatLatinHasLettersFor) {
    const auto latin =
        OfferedContents::of({PasteboardItem{{{uniformtype::utf8PlainText, "caf\xc3\xa9"}}, std::nullopt}});
    EXPECT_EQ(latin->data(QStringLiteral("STRING")), "caf\xe9");
    EXPECT_EQ(latin->data(QStringLiteral("COMPOUND_TEXT")), "caf\xe9");
    const auto greek = OfferedContents::of({PasteboardItem{{{uniformtype::utf8PlainText, "\xce\xb1"}}, std::nullopt}});
    EXPECT_FALSE(greek->targets().contains(QStringLiteral("STRING")));
    EXPECT_FALSE(greek->targets().contains(QStringLiteral("COMPOUND_TEXT")));
}

TEST(OfferedContents, AWebAddressIsOfferedAsAListToo) {
    const auto contents = OfferedContents::of({PasteboardItem{{{uniformtype::url, "https://one/"}}, std::nullopt}});
    EXPECT_EQ(contents->data(QStringLiteral("text/uri-list")), "https://one/\r\n");
}

TEST(OfferedContents, TypesFollowTheOrderThatIsKnown) {
    const PasteboardItem item{{{uniformtype::html, "h"}, {uniformtype::png, "p"}, {uniformtype::rtf, "r"}},
                              QStringList{uniformtype::rtf, uniformtype::pdf, uniformtype::html}};
    EXPECT_EQ(OfferedContents::typesOf(item), (QStringList{uniformtype::rtf, uniformtype::html, uniformtype::png}));
}

TEST(OfferedContents, BytesAreSharedNotCopied) {
    const QByteArray bytes(1000, 'x');
    const auto contents = OfferedContents::of({PasteboardItem{{{uniformtype::png, bytes}}, std::nullopt}});
    EXPECT_EQ(contents->data(QStringLiteral("image/png"))->constData(), bytes.constData());
}

} // namespace

} // namespace vellumry
