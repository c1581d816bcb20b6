// SPDX-License-Identifier: GPL-3.0-or-later
#include "capture/ContentDetection.h"

#include <gtest/gtest.h>

namespace vellumry {
namespace {

struct LinkRow {
    const char* name;
    QString text;
    std::optional<QString> url;
};

void PrintTo(const LinkRow& row, std::ostream* out) {
    *out << row.name;
}

class DetectLink : public ::testing::TestWithParam<LinkRow> {};

TEST_P(DetectLink, GivesTheUrlOrNothing) {
    const auto& row = GetParam();
    const auto url = detectLink(row.text);
    ASSERT_EQ(url.has_value(), row.url.has_value());
    if (url) {
        EXPECT_EQ(url->toString(QUrl::FullyEncoded).toStdString(), row.url->toStdString());
    }
}

const QString longPath = QStringLiteral("https://example.com/") + QString(4096 - 20, u'a');

INSTANTIATE_TEST_SUITE_P(
    Rows, DetectLink,
    ::testing::Values(
        LinkRow{"Empty", QString(), {}}, LinkRow{"Blank", QStringLiteral(" \n\t"), {}},
        LinkRow{"BareDomain", QStringLiteral("example.com"), QStringLiteral("https://example.com")},
        LinkRow{"SurroundingSpace", QStringLiteral("  example.com \n"), QStringLiteral("https://example.com")},
        LinkRow{"UnknownEnding", QStringLiteral("readme.txt"), {}},
        LinkRow{"UnknownEndingWithPath", QStringLiteral("foo.internal/path"),
                QStringLiteral("https://foo.internal/path")},
        LinkRow{"Port", QStringLiteral("example.com:8080"), QStringLiteral("https://example.com:8080")},
        LinkRow{"PortAndPath", QStringLiteral("example.com:8080/a"), QStringLiteral("https://example.com:8080/a")},
        LinkRow{"PortUnknownEnding", QStringLiteral("example.internal:8080"), {}},
        LinkRow{"Subdomain", QStringLiteral("a.b-c.example.de"), QStringLiteral("https://a.b-c.example.de")},
        LinkRow{"Address", QStringLiteral("1.2.3.4"), {}}, LinkRow{"AddressWithPort", QStringLiteral("1.2.3.4:80"), {}},
        LinkRow{"Version", QStringLiteral("v1.2"), {}}, LinkRow{"NoDot", QStringLiteral("localhost"), {}},
        LinkRow{"LocalhostPort", QStringLiteral("localhost:3000"), {}},
        LinkRow{"LabelEndsInHyphen", QStringLiteral("exa-.com"), {}},
        LinkRow{"MailAddress", QStringLiteral("someone@example.com"), {}},
        LinkRow{"Http", QStringLiteral("http://example.com/a?b=c#d"), QStringLiteral("http://example.com/a?b=c#d")},
        LinkRow{"UpperCaseScheme", QStringLiteral("HTTPS://example.com/"), QStringLiteral("https://example.com/")},
        LinkRow{"Ftp", QStringLiteral("ftp://ftp.example.com/x"), QStringLiteral("ftp://ftp.example.com/x")},
        LinkRow{"LocalHostWithScheme", QStringLiteral("http://localhost:3000"),
                QStringLiteral("http://localhost:3000")},
        LinkRow{"SchemeAlone", QStringLiteral("http:"), {}}, LinkRow{"SchemeAndSlashes", QStringLiteral("http://"), {}},
        LinkRow{"NoHost", QStringLiteral("https:example.com"), {}},
        LinkRow{"MailtoEightCharacters", QStringLiteral("mailto:a"), QStringLiteral("mailto:a")},
        LinkRow{"MailtoAlone", QStringLiteral("mailto:"), {}}, LinkRow{"File", QStringLiteral("file:///etc/hosts"), {}},
        LinkRow{"Telephone", QStringLiteral("tel:+123456"), {}},
        LinkRow{"CustomScheme", QStringLiteral("custom://example.com"), {}},
        LinkRow{"Javascript", QStringLiteral("javascript:alert(1)"), {}},
        LinkRow{"InnerBlank", QStringLiteral("https://example.com/a b"), {}},
        LinkRow{"InnerNewline", QStringLiteral("https://example.com/a\nb"), {}},
        LinkRow{"InnerIdeographicSpace", QStringLiteral("https://example.com/a\u3000b"), {}},
        LinkRow{"UnescapedCharacters", QStringLiteral("https://example.com/a|b"),
                QStringLiteral("https://example.com/a%7Cb")},
        LinkRow{"LonePercent", QStringLiteral("https://example.com/100%"),
                QStringLiteral("https://example.com/100%25")},
        LinkRow{"LongestLink", longPath, longPath}, LinkRow{"TooLong", longPath + u'a', {}}),
    [](const auto& row) { return row.param.name; });

TEST(DetectLinkCase, KeepsTheCaseOfThePath) {
    EXPECT_EQ(detectLink(QStringLiteral("Example.COM/Path"))->path(), QStringLiteral("/Path"));
    EXPECT_TRUE(detectLink(QStringLiteral("Example.COM")).has_value());
}

TEST(DetectLinkCase, KnowsEachDomainEnding) {
    const QString endings = QStringLiteral("com net org io co app dev ai me gg xyz info biz tv page site online store "
                                           "shop tech blog cloud design studio so to fm "
                                           "ly edu gov us uk in de fr jp ca au nl es it se ch br cn ru eu nz ie be at "
                                           "dk fi no pt kr sg hk mx za ae tr id vn th ph");
    const QStringList list = endings.split(u' ');
    EXPECT_EQ(list.size(), 66);
    for (const QString& ending : list)
        EXPECT_TRUE(detectLink(QStringLiteral("name.") + ending.toUpper())) << ending.toStdString();
    for (const char* other : {"txt", "pdf", "md", "rs", "py", "exe", "local"})
        EXPECT_FALSE(detectLink(QStringLiteral("name.") + QLatin1String(other))) << other;
}

TEST(DetectLinkCase, SurvivesATextMadeToBacktrack) {
    EXPECT_FALSE(detectLink(QString(4096, u'a')));
    EXPECT_FALSE(detectLink(QStringLiteral("a.").repeated(2048)));
    EXPECT_FALSE(detectLink(QStringLiteral("a-").repeated(2000) + u'!'));
}

TEST(DetectColor, AcceptsLiteralsOfCss) {
    for (const char* text : {"#fff", "#FFAA00", "#11223344", "rgb(1,2,3)", "RGBA( 10%, 20% ,30%, 0.5 )",
                             "hsl(120, 50%, 50%)", "hsla(120,50%,50%,.3)", "Rgb(1, 2, 3, 4)", "  #abc\n"})
        EXPECT_TRUE(detectColor(QString::fromUtf8(text))) << text;
}

TEST(DetectColor, RefusesNearMisses) {
    for (const char* text : {"", "#", "#ff", "#ffff", "#fffff", "#fffffff", "#ggg", "fff", "rgb(1,2)", "rgb(1,2,3,4,5)",
                             "rgb 1,2,3", "rgb(1;2;3)", "rgb(-1,2,3)", "hsl(120deg, 50%, 50%)", "#fff and more", "red"})
        EXPECT_FALSE(detectColor(QString::fromUtf8(text))) << text;
}

TEST(IsCardNumber, AcceptsPublishedTestNumbers) {
    for (const char* text : {"4111 1111 1111 1111", "4111-1111-1111-1111", "4111111111111111", "5555555555554444",
                             "378282246310005", "6011111111111117", "2223003122003222", "30569309025904",
                             " 4111 1111 1111 1111\n", "4222222222222", "6304000000000000000"})
        EXPECT_TRUE(isCardNumber(QString::fromUtf8(text))) << text;
}

TEST(IsCardNumber, RefusesNearMisses) {
    for (const char* text :
         {"", " ", "-", "4111 1111 1111 1112", "1111111111111117", "0000000000000000", "4444444444444448x",
          "8888888888888888", "7111111111111115", "411111111111", "41111111111111111110", "4111.1111.1111.1111",
          "4111 1111 1111 1111 a", "4111\n1111\n1111\n1111", "4111\t1111 1111 1111"})
        EXPECT_FALSE(isCardNumber(QString::fromUtf8(text))) << text;
}

TEST(IsCardNumber, RefusesFirstDigitsThatNoIssuerHas) {
    // The checksum holds for all of these.
    for (const char* text : {"0234567890123454", "1234567890123452", "7234567890123459"})
        EXPECT_FALSE(isCardNumber(QString::fromUtf8(text))) << text;
}

TEST(IsCardNumber, NeedsTwoDifferentDigits) {
    // Length, first digit and checksum are those of a card.
    for (const char* text : {"22222222222222222", "44444444444444444", "6666666666666", "8888888888888888"})
        EXPECT_FALSE(isCardNumber(QString::fromUtf8(text))) << text;
}

TEST(IsCardNumber, HasThirteenToNineteenDigits) {
    // The checksum holds for all of these.
    for (const char* text : {"4111111111119", "4111111111111111110"})
        EXPECT_TRUE(isCardNumber(QString::fromUtf8(text))) << text;
    for (const char* text : {"411111111117", "41111111111111111115"})
        EXPECT_FALSE(isCardNumber(QString::fromUtf8(text))) << text;
}

TEST(IsCardNumber, ReadsTheDigitsOfOtherScripts) {
    // The same number in fullwidth digits.
    QString wide;
    for (const QChar digit : QStringLiteral("4111111111111111"))
        wide += QChar(0xFF10 + digit.digitValue());
    EXPECT_TRUE(isCardNumber(wide));
    // A half is numeric and has no whole value: it is passed over.
    EXPECT_TRUE(isCardNumber(QStringLiteral("4111111111111111\u00BD")));
}

TEST(IsCardNumber, GivesUpEarlyOnALongRowOfDigits) {
    EXPECT_FALSE(isCardNumber(QString(5'000'000, u'4')));
}

const std::optional<QString> mail = QStringLiteral("com.apple.mail");
const std::optional<QString> sheet = QStringLiteral("org.libreoffice.calc");

TEST(IsOneTimeCode, PrefixedFormCountsFromAnySource) {
    for (const char* text : {"G-12345", "G-123456", "G-12345678", " G-123456\n"}) {
        EXPECT_TRUE(isOneTimeCode(QString::fromUtf8(text), {}, {})) << text;
        EXPECT_TRUE(isOneTimeCode(QString::fromUtf8(text), sheet, {})) << text;
    }
    for (const char* text : {"G-1234", "G-123456789", "g-123456", "G123456", "G-12345a", "G-"}) {
        EXPECT_FALSE(isOneTimeCode(QString::fromUtf8(text), {}, {})) << text;
        EXPECT_FALSE(isOneTimeCode(QString::fromUtf8(text), mail, {})) << text;
    }
}

TEST(IsOneTimeCode, DigitsAloneNeedATrustedSource) {
    EXPECT_FALSE(isOneTimeCode(QStringLiteral("123456"), {}, {}));
    EXPECT_FALSE(isOneTimeCode(QStringLiteral("123456"), sheet, {}));
    EXPECT_TRUE(isOneTimeCode(QStringLiteral("123456"), mail, {}));
    EXPECT_TRUE(
        isOneTimeCode(QStringLiteral("123456"), sheet, QUrl(QStringLiteral("https://mail.google.com/mail/u/0"))));
    EXPECT_FALSE(isOneTimeCode(QStringLiteral("123456"), sheet, QUrl(QStringLiteral("https://example.com/"))));
}

TEST(IsOneTimeCode, AcceptsOneOrTwoGroupsOfFourToEightDigits) {
    for (const char* text : {"1234", "12345678", "123 456", "123-456", "1 234", " 123456 ", "1234 5678"})
        EXPECT_TRUE(isOneTimeCode(QString::fromUtf8(text), mail, {})) << text;
    for (const char* text : {"", "123", "123456789", "12 34 56", "123-", "-123456", "12a456", "123  456", "123--456",
                             "1 2", "123.456", "\u0661\u0662\u0663\u0664"})
        EXPECT_FALSE(isOneTimeCode(QString::fromUtf8(text), mail, {})) << text;
}

} // namespace
} // namespace vellumry
