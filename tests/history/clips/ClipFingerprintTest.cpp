// SPDX-License-Identifier: GPL-3.0-or-later
#include "history/clips/ClipFingerprint.h"

#include "foundation/UniformType.h"
#include "support/Drafts.h"

#include <array>
#include <gtest/gtest.h>

namespace vellumry {
namespace {

using namespace Qt::StringLiterals;

class ClipFingerprint : public testing::Test {
protected:
    [[nodiscard]] QString of(const ClipDraft& draft) const { return fingerprintOf(draft, m_crypto).toString(); }
    [[nodiscard]] QString ofInput(QByteArrayView input) const {
        const std::array<QByteArrayView, 1> parts{input};
        return QString::fromLatin1(m_crypto.authenticationCode(parts).toHex());
    }
    ClipCrypto m_crypto = ClipCrypto::withRandomKey();
};

ClipDraft imageDraft(std::vector<PasteboardItem> items) {
    ClipDraft draft;
    draft.kind = ClipKind::image;
    draft.payload.items = std::move(items);
    return draft;
}

TEST_F(ClipFingerprint, IsTheKeyedHashInLowerCaseHexadecimal) {
    const QString fingerprint = of(drafts::text(u"grün"_s));
    EXPECT_EQ(fingerprint, ofInput("text|gr\xc3\xbcn"));
    EXPECT_EQ(fingerprint.size(), 64);
    EXPECT_EQ(fingerprint, fingerprint.toLower());
    EXPECT_NE(fingerprint, fingerprintOf(drafts::text(u"grün"_s), ClipCrypto::withRandomKey()).toString());
}

TEST_F(ClipFingerprint, TheSameWordsAreOneClipWhateverTheirKind) {
    const QString plain = of(drafts::text(u"http://x"_s));
    for (const auto kind : {ClipKind::richText, ClipKind::link, ClipKind::color}) {
        ClipDraft draft = drafts::text(u"http://x"_s);
        draft.kind = kind;
        draft.payload.items[0].representations.emplace(uniformtype::html, "<b>http://x</b>");
        EXPECT_EQ(of(draft), plain);
    }
}

TEST_F(ClipFingerprint, TextWithoutPlainTextGoesByItsBytes) {
    ClipDraft draft;
    draft.payload.items = {{{{uniformtype::html, "<b>"}}, std::nullopt}};
    EXPECT_EQ(of(draft), ofInput("text|" + draft.payload.canonicalData()));
}

TEST_F(ClipFingerprint, BytesThatAreTextAlreadyCountAsTheTextTheyAre) {
    const auto withBytes = [this](const QByteArray& bytes, bool hasRtf = false) {
        ClipDraft draft;
        draft.payload.items = {{{{uniformtype::utf8PlainText, bytes}}, std::nullopt}};
        if (hasRtf)
            draft.payload.items[0].representations.emplace(uniformtype::rtf, "{\\rtf1 word}");
        return of(draft);
    };
    EXPECT_EQ(withBytes("word"), ofInput("text|word"));
    EXPECT_EQ(withBytes(QByteArray("a\0b", 3)), ofInput(QByteArrayView("text|a\0b", 8)));
    EXPECT_EQ(withBytes("\xEF\xBB\xBFword"), ofInput("text|word")) << "a byte order mark is no text";
    EXPECT_EQ(withBytes("\xE9t\xE9", true), ofInput("text|word")) << "what is no UTF-8 is passed over";
    ClipDraft file = drafts::text(u"/tmp/a"_s);
    file.payload.items[0].representations.emplace(uniformtype::fileUrl, "file:///tmp/a");
    EXPECT_EQ(of(file), ofInput("text|a")) << "names of files come before the text";
}

TEST_F(ClipFingerprint, APictureGoesByItsBestRepresentationAlone) {
    const QString png = ofInput("image|P");
    EXPECT_EQ(of(imageDraft({{{{uniformtype::png, "P"}}, std::nullopt}})), png);
    EXPECT_EQ(
        of(imageDraft({{{{uniformtype::png, "P"}, {uniformtype::tiff, "T"}, {uniformtype::html, "H"}}, std::nullopt}})),
        png);
    EXPECT_EQ(of(imageDraft({{{{uniformtype::tiff, "T"}, {uniformtype::jpeg, "J"}}, std::nullopt}})),
              ofInput("image|T"));
    EXPECT_EQ(of(imageDraft({{{{uniformtype::jpeg, "J"}, {uniformtype::heic, "H"}}, std::nullopt}})),
              ofInput("image|J"));
    EXPECT_EQ(of(imageDraft({{{{uniformtype::heic, "H"}}, std::nullopt}})), ofInput("image|H"));
    // Items come before formats: the first item that has any of the four decides.
    EXPECT_EQ(of(imageDraft({{{{uniformtype::html, "x"}}, std::nullopt},
                             {{{uniformtype::heic, "H"}}, std::nullopt},
                             {{{uniformtype::png, "P"}}, std::nullopt}})),
              ofInput("image|H"));
}

TEST_F(ClipFingerprint, APictureInAnotherFormatGoesByItsBytes) {
    const ClipDraft draft = imageDraft({{{{uniformtype::icns, "I"}}, std::nullopt}});
    EXPECT_EQ(of(draft), ofInput("image|" + draft.payload.canonicalData()));
    EXPECT_EQ(of(imageDraft({})), ofInput("image|"));
}

TEST_F(ClipFingerprint, FilesGoByTheirSortedPaths) {
    const QString expected = ofInput("files|/a/1\n/a/2");
    EXPECT_EQ(of(drafts::files({u"/a/1"_s, u"/a/2"_s})), expected);
    EXPECT_EQ(of(drafts::files({u"/a/2"_s, u"/a/1"_s})), expected);
    EXPECT_EQ(of(drafts::files({})), ofInput("files|"));
}

TEST_F(ClipFingerprint, FilesWhoseNamesAreNotUtf8AreToldApartByTheirAddresses) {
    const auto named = [](const QByteArray& url) {
        ClipDraft draft;
        draft.kind = ClipKind::file;
        draft.files = {{u"/a/\uFFFD"_s, u"\uFFFD"_s, std::nullopt}};
        draft.payload.items = {{{{uniformtype::fileUrl, url}}, std::nullopt}};
        return draft;
    };
    EXPECT_EQ(of(named("file:///a/%FE")), of(named("file:///a/%FE")));
    EXPECT_NE(of(named("file:///a/%FE")), of(named("file:///a/%FF")));
}

} // namespace
} // namespace vellumry
