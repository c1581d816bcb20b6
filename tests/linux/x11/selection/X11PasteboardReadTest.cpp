// SPDX-License-Identifier: GPL-3.0-or-later
#include "foundation/UniformType.h"
#include "linux/x11/selection/X11PasteboardWorld.h"

namespace vellumry {

namespace {

using Manner = HostileOwner::Manner;

class X11PasteboardRead : public X11PasteboardWorld {
protected:
    std::optional<QByteArray> read(PasteboardReading& reading, const QString& type, qsizetype item = 0,
                                   qint64 maxBytes = 1 << 30) {
        return resultOf(reading.data(item, type, maxBytes));
    }
};

TEST_F(X11PasteboardRead, NothingWithoutAnOwner) {
    EXPECT_EQ(reading(), nullptr);
}

TEST_F(X11PasteboardRead, CountsEachChangeOfOwnerAndSaysSo) {
    int notices = 0;
    pasteboard->onChanged = [&notices] { ++notices; };
    qint64 last = pasteboard->changeCount();
    for (int i = 0; i < 3; ++i) {
        copied({{"UTF8_STRING", "text"}});
        EXPECT_GT(pasteboard->changeCount(), last);
        last = pasteboard->changeCount();
    }
    EXPECT_TRUE(eventually([&notices] { return notices > 0; }));
    EXPECT_LE(notices, 3);
    EXPECT_TRUE(pasteboard->notifiesChanges());
}

TEST_F(X11PasteboardRead, AnOwnerFromBeforeOurStartIsRead) {
    copied({{"UTF8_STRING", "early"}});
    pasteboard = X11Pasteboard::create(display).value();
    const auto early = reading();
    ASSERT_NE(early, nullptr);
    EXPECT_EQ(read(*early, uniformtype::utf8PlainText), "early");
}

TEST_F(X11PasteboardRead, TypesComeInTheOwnersOrderEachOnce) {
    copied({{"image/png", "p"}, {"text/html", "h"}, {"UTF8_STRING", "t"}, {"STRING", "t"}, {"application/x-own", "o"}});
    const auto look = reading();
    ASSERT_NE(look, nullptr);
    const QStringList expected{uniformtype::png, uniformtype::html, uniformtype::utf8PlainText,
                               QStringLiteral("application/x-own")};
    EXPECT_EQ(look->types(), expected);
    EXPECT_EQ(resultOf(look->itemTypes()), std::vector<QStringList>{expected});
    EXPECT_TRUE(look->isCurrent());
}

TEST_F(X11PasteboardRead, RepresentationsComeByteForByte) {
    const QByteArray bytes("\x89PNG\0\r\n\0", 8);
    const QByteArray odd = "application/x-thing;windows_formatname=\"A B\"";
    copied({{"image/png", bytes},
            {odd, bytes},
            {"text/html", "\xff\xfe<\0"},
            {"application/x-color", "\1\2\3\4\5\6\7\10", Manner::whole, {}, 16}});
    const auto look = reading();
    ASSERT_NE(look, nullptr);
    EXPECT_EQ(read(*look, uniformtype::png), bytes);
    EXPECT_EQ(read(*look, QString::fromUtf8(odd)), bytes);
    EXPECT_EQ(read(*look, uniformtype::color), "\1\2\3\4\5\6\7\10");
    EXPECT_EQ(read(*look, uniformtype::pdf), std::nullopt);
    EXPECT_EQ(read(*look, uniformtype::png, 1), std::nullopt);
}

TEST_F(X11PasteboardRead, TextIsUtf8WithoutItsFinalNul) {
    copied({{"STRING", "latin"}, {"UTF8_STRING", QByteArray("gr\xc3\xbc\xc3\x9f\0", 7)}});
    const auto look = reading();
    ASSERT_NE(look, nullptr);
    EXPECT_EQ(read(*look, uniformtype::utf8PlainText), "gr\xc3\xbc\xc3\x9f");
}

TEST_F(X11PasteboardRead, LatinTextIsRecoded) {
    copied({{"STRING", "gr\xfc\xdf"}});
    EXPECT_EQ(read(*reading(), uniformtype::utf8PlainText), "gr\xc3\xbc\xc3\x9f");
}

TEST_F(X11PasteboardRead, TextGivenInAnotherEncodingThanAskedForIsUnderstood) {
    copied({{"TEXT", "gr\xc3\xbc", Manner::whole, "UTF8_STRING"}});
    EXPECT_EQ(read(*reading(), uniformtype::utf8PlainText), "gr\xc3\xbc");
}

TEST_F(X11PasteboardRead, ARefusedTextIsAskedForByItsNextName) {
    copied({{"UTF8_STRING", {}, Manner::refusal}, {"text/plain", "second"}});
    EXPECT_EQ(read(*reading(), uniformtype::utf8PlainText), "second");
}

TEST_F(X11PasteboardRead, MozillasPageAddressBecomesUtf8) {
    copied({{"text/x-moz-url-priv", QByteArray("h\0t\0t\0p\0:\0", 10)}});
    EXPECT_EQ(read(*reading(), uniformtype::sourceUrl), "http:");
}

TEST_F(X11PasteboardRead, ASecretIsDeclaredAndNotRead) {
    HostileOwner& owner = copied({{"UTF8_STRING", "pw"}, {"x-kde-passwordManagerHint", "secret"}});
    const auto look = reading();
    ASSERT_NE(look, nullptr);
    EXPECT_TRUE(look->types().contains(uniformtype::concealed));
    EXPECT_EQ(resultOf(look->itemTypes()).size(), 1U);
    EXPECT_EQ(read(*look, uniformtype::concealed), std::nullopt);
    EXPECT_EQ(owner.requests, QByteArrayList{"TARGETS"});
}

TEST_F(X11PasteboardRead, LargeRepresentationsComeInIncrements) {
    const QByteArray bytes = patternOf(20 * 1024 * 1024 + 17);
    copied({{"image/png", bytes, Manner::increments}});
    EXPECT_EQ(read(*reading(), uniformtype::png), bytes);
}

TEST_F(X11PasteboardRead, EmptyIncrementsAreAnEmptyRepresentation) {
    copied({{"image/png", {}, Manner::increments}});
    EXPECT_EQ(read(*reading(), uniformtype::png), QByteArray());
}

TEST_F(X11PasteboardRead, TheLimitIsKeptToTheByte) {
    copied({{"image/png", patternOf(1000)}, {"image/jpeg", patternOf(300000), Manner::increments}});
    const auto look = reading();
    ASSERT_NE(look, nullptr);
    EXPECT_TRUE(read(*look, uniformtype::png, 0, 1000));
    EXPECT_FALSE(read(*look, uniformtype::png, 0, 999));
    EXPECT_TRUE(read(*look, uniformtype::jpeg, 0, 300000));
    EXPECT_FALSE(read(*look, uniformtype::jpeg, 0, 299999));
    EXPECT_TRUE(read(*look, uniformtype::png, 0, 1000));
}

TEST_F(X11PasteboardRead, FilesAreItemsAndTheFirstCarriesTheRest) {
    copied({{"text/uri-list", QByteArray("file:///a%20b\r\nfile:///c\r\n\0", 27)},
            {"x-special/gnome-copied-files", QByteArray("cut\nfile:///a%20b\nfile:///c\0", 28)},
            {"UTF8_STRING", "/a b\n/c"}});
    const auto look = reading();
    ASSERT_NE(look, nullptr);
    const QString copiedFiles = QStringLiteral("x-special/gnome-copied-files");
    const std::vector<QStringList> expected{{uniformtype::fileUrl, copiedFiles, uniformtype::utf8PlainText},
                                            {uniformtype::fileUrl}};
    EXPECT_EQ(resultOf(look->itemTypes()), expected);
    EXPECT_EQ(read(*look, uniformtype::fileUrl, 0), "file:///a%20b");
    EXPECT_EQ(read(*look, uniformtype::fileUrl, 1), "file:///c");
    EXPECT_EQ(read(*look, uniformtype::fileUrl, 2), std::nullopt);
    EXPECT_EQ(read(*look, copiedFiles), "cut\nfile:///a%20b\nfile:///c");
    EXPECT_EQ(read(*look, uniformtype::utf8PlainText), "/a b\n/c");
}

TEST_F(X11PasteboardRead, AListOfWebAddressesIsNoListOfFiles) {
    copied({{"text/uri-list", "https://example.org/\r\nhttp://example.com/\r\n"}, {"UTF8_STRING", "t"}});
    const auto look = reading();
    ASSERT_NE(look, nullptr);
    const std::vector<QStringList> expected{{uniformtype::url, uniformtype::utf8PlainText}};
    EXPECT_EQ(resultOf(look->itemTypes()), expected);
    EXPECT_EQ(read(*look, uniformtype::url), "https://example.org/");
}

TEST_F(X11PasteboardRead, AListOfFilesElsewhereIsKeptAsItIs) {
    const QByteArray list = "sftp://host/a\r\nsmb://server/b\r\n";
    const QByteArray copies = "copy\nsftp://host/a\nsmb://server/b";
    copied({{"text/uri-list", list}, {"x-special/gnome-copied-files", copies}});
    const auto look = reading();
    ASSERT_NE(look, nullptr);
    const QString uriList = QStringLiteral("text/uri-list");
    const QString copiedFiles = QStringLiteral("x-special/gnome-copied-files");
    const std::vector<QStringList> expected{{uniformtype::url, uriList, copiedFiles}};
    EXPECT_EQ(resultOf(look->itemTypes()), expected);
    EXPECT_EQ(read(*look, uniformtype::url), "sftp://host/a\nsmb://server/b");
    EXPECT_EQ(read(*look, uriList), list);
    EXPECT_EQ(read(*look, copiedFiles), copies);
}

TEST_F(X11PasteboardRead, KeysOfTheDocumentsPortalAreLeftOut) {
    copied({{"application/vnd.portal.filetransfer", "2342"},
            {"application/vnd.portal.files", "2342"},
            {"text/x-libfmqt-pid", "17"},
            {"text/uri-list", "file:///a\r\n"}});
    const auto look = reading();
    ASSERT_NE(look, nullptr);
    EXPECT_EQ(resultOf(look->itemTypes()), std::vector<QStringList>{{uniformtype::fileUrl}});
}

TEST_F(X11PasteboardRead, AHundredThousandFilesAreSurvived) {
    QByteArray list;
    for (int i = 0; i < 100000; ++i)
        list += "file:///tmp/" + QByteArray::number(i) + "\r\n";
    copied({{"text/uri-list", list, Manner::increments}});
    const auto look = reading();
    ASSERT_NE(look, nullptr);
    EXPECT_EQ(resultOf(look->itemTypes()).size(), 100000U);
    EXPECT_EQ(read(*look, uniformtype::fileUrl, 99999), "file:///tmp/99999");
}

TEST_F(X11PasteboardRead, AReadingThatOutlivesThePasteboardGivesNothing) {
    copied({{"UTF8_STRING", "t"}});
    const auto look = reading();
    ASSERT_NE(look, nullptr);
    auto late = look->data(0, uniformtype::utf8PlainText, 100);
    pasteboard.reset();
    EXPECT_FALSE(look->isCurrent());
    (void)resultOf(std::move(late));
    EXPECT_EQ(read(*look, uniformtype::utf8PlainText), std::nullopt);
}

} // namespace

} // namespace vellumry
