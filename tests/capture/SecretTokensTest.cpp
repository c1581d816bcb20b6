// SPDX-License-Identifier: GPL-3.0-or-later
#include "capture/ContentDetection.h"

#include <gtest/gtest.h>

namespace vellumry {
namespace {

/// The letters are put together here, so that no scanner takes this file for a leak.
QString letters(int count, const char* prefix, const char* alphabet = "aB3dE5gH7k") {
    const QString source = QString::fromLatin1(alphabet);
    QString result = QString::fromLatin1(prefix);
    for (int i = 0; i < count; ++i)
        result += source[i % source.size()];
    return result;
}

struct TokenRow {
    const char* name;
    QString token;    ///< the shortest that counts
    QString nearMiss; ///< one character short of it, or wrong in one place
};

void PrintTo(const TokenRow& row, std::ostream* out) {
    *out << row.name;
}

class SecretToken : public ::testing::TestWithParam<TokenRow> {};

TEST_P(SecretToken, IsKnownByItsShape) {
    EXPECT_TRUE(isSecretToken(GetParam().token));
    EXPECT_TRUE(isSecretToken(u' ' + GetParam().token + u'\n'));
}

TEST_P(SecretToken, IsNotTakenForOneInsideALongerText) {
    EXPECT_FALSE(isSecretToken(QStringLiteral("key: ") + GetParam().token));
    EXPECT_FALSE(isSecretToken(u'_' + GetParam().token));
    EXPECT_FALSE(isSecretToken(GetParam().token + u'!'));
}

TEST_P(SecretToken, LetsANearMissGo) {
    EXPECT_FALSE(isSecretToken(GetParam().nearMiss));
}

INSTANTIATE_TEST_SUITE_P(
    Rows, SecretToken,
    ::testing::Values(TokenRow{"AiService", letters(20, "sk-"), letters(19, "sk-")},
                      TokenRow{"AiServiceLongPrefix", letters(20, "sk-ant-"), letters(20, "sk_ant_")},
                      TokenRow{"GitHub", letters(36, "ghp_"), letters(35, "ghp_")},
                      TokenRow{"GitHubServer", letters(36, "ghs_"), letters(36, "ghx_")},
                      TokenRow{"GitHubFineGrained", letters(40, "github_pat_"), letters(39, "github_pat_")},
                      TokenRow{"GitLab", letters(20, "glpat-"), letters(19, "glpat-")},
                      TokenRow{"Aws", letters(16, "AKIA", "A1B2C3D4"), letters(17, "AKIA", "A1B2C3D4")},
                      TokenRow{"AwsLowerCase", letters(16, "AKIA", "Z9"), letters(16, "AKIA", "a1")},
                      TokenRow{"Slack", letters(10, "xoxb-"), letters(10, "xoxz-")},
                      TokenRow{"StripeSecret", letters(20, "sk_live_"), letters(19, "sk_live_")},
                      TokenRow{"StripeRestricted", letters(20, "rk_test_"), letters(20, "pk_test_")},
                      TokenRow{"Webhook", letters(20, "whsec_", "aB3+/="), letters(19, "whsec_")},
                      TokenRow{"GoogleApi", letters(35, "AIza"), letters(36, "AIza")},
                      TokenRow{"GoogleOAuth", letters(20, "GOCSPX-"), letters(19, "GOCSPX-")},
                      TokenRow{"Npm", letters(36, "npm_"), letters(37, "npm_")},
                      TokenRow{"PyPi", letters(50, "pypi-"), letters(49, "pypi-")},
                      TokenRow{"HuggingFace", letters(30, "hf_"), letters(29, "hf_")},
                      TokenRow{"Billing", letters(20, "polar_oat_"), letters(20, "polar_o_")},
                      TokenRow{"SendGrid", letters(16, "SG.") + letters(16, "."),
                               letters(16, "SG.") + letters(15, ".")},
                      TokenRow{"Shopify", letters(32, "shpat_", "0aF9"), letters(32, "shpat_", "0aG9")},
                      TokenRow{"DigitalOcean", letters(64, "dop_v1_", "0af9"), letters(64, "dop_v1_", "0AF9")},
                      TokenRow{"TelegramBot", letters(33, "12345678:AA"), letters(33, "1234567:AA")},
                      TokenRow{"WebToken", letters(8, "eyJ") + letters(8, ".eyJ") + letters(16, "."),
                               letters(8, "eyJ") + letters(7, ".eyJ") + letters(16, ".")}),
    [](const auto& row) { return row.param.name; });

TEST(IsSecretToken, OrdinaryTextIsNone) {
    for (const char* text : {"", " ", "hello", "sk-short", "a3f5c7d9e1b2048695f7a3c1d4e6b8907f5a3c1e", "hunter2",
                             "correct horse battery staple"})
        EXPECT_FALSE(isSecretToken(QString::fromUtf8(text))) << text;
}

TEST(IsSecretToken, PrivateKeyBlockCountsAtAnyLength) {
    const QString begin = QStringLiteral("-----BEGIN RSA ") + QStringLiteral("PRIVATE KEY-----\n");
    EXPECT_TRUE(isSecretToken(begin));
    EXPECT_TRUE(isSecretToken(QStringLiteral("see below\n") + begin + QStringLiteral("MIIE\n").repeated(100'000)));
    EXPECT_FALSE(isSecretToken(QStringLiteral("-----BEGIN CERTIFICATE-----\nMIIE\n-----END CERTIFICATE-----")));
    EXPECT_FALSE(isSecretToken(QStringLiteral("the PRIVATE KEY of the house")));
}

TEST(IsSecretToken, TokensEndAt512Characters) {
    EXPECT_TRUE(isSecretToken(letters(509, "sk-")));
    EXPECT_FALSE(isSecretToken(letters(510, "sk-")));
    EXPECT_FALSE(isSecretToken(letters(597, "sk-")));
}

TEST(IsSecretToken, WhiteSpaceInsideEndsTheSearch) {
    EXPECT_FALSE(isSecretToken(letters(20, "sk-") + u' ' + letters(20, "sk-")));
    EXPECT_FALSE(isSecretToken(letters(20, "sk-") + QChar(0x2028) + letters(20, "sk-")));
}

} // namespace
} // namespace vellumry
