// SPDX-License-Identifier: GPL-3.0-or-later
#include "linux/update/Appcast.h"

#include "linux/update/Signature.h"
#include "linux/update/SigningKey.h"

#include <gtest/gtest.h>

namespace vellumry {
namespace {

QByteArray item(const char* version, const char* more = "", const char* length = "7") {
    return QByteArray("<item><title>x</title>") + more + "<sparkle:version>" + version +
           "</sparkle:version><enclosure url=\"https://a.example/V.AppImage\" length=\"" + length +
           "\" type=\"application/octet-stream\" sparkle:edSignature=\"c2lnbmVk\"/></item>\n";
}

QByteArray feed(const QByteArray& items) {
    return "<?xml version=\"1.0\"?>\n<rss version=\"2.0\" xmlns:sparkle=\"urn:x\"><channel>\n" + items +
           "</channel></rss>\n";
}

class AppcastTest : public ::testing::Test {
protected:
    [[nodiscard]] OrReason<std::vector<AppcastItem>> read(const QByteArray& content) const {
        return readAppcast(key.signedFeed(content), key.publicKey);
    }
    SigningKey key;
};

TEST_F(AppcastTest, TheNewestVersionIsLastWhateverTheOrder) {
    const auto items = read(feed(item("1.10") + item("1.9.9") + item("1.2")));
    ASSERT_TRUE(items) << qPrintable(items.error().text);
    ASSERT_EQ(items->size(), 3U);
    EXPECT_EQ(items->back().version, QVersionNumber(1, 10));
    EXPECT_EQ(items->back().displayVersion, QStringLiteral("1.10"));
    EXPECT_EQ(items->back().length, 7);
    EXPECT_EQ(items->back().signature, "signed");
    EXPECT_EQ(items->back().url, QUrl(QStringLiteral("https://a.example/V.AppImage")));
    EXPECT_FALSE(items->back().isCritical);
}

TEST_F(AppcastTest, ACriticalVersionAndItsNameAreRead) {
    const auto items = read(feed(item("2.0", "<sparkle:criticalUpdate/><sparkle:shortVersionString>Two</"
                                             "sparkle:shortVersionString>")));
    ASSERT_TRUE(items);
    EXPECT_TRUE(items->back().isCritical);
    EXPECT_EQ(items->back().displayVersion, QStringLiteral("Two"));
}

TEST_F(AppcastTest, OneByteThatWasChangedIsRefused) {
    const QByteArray whole = key.signedFeed(feed(item("2.0")));
    for (const char* was : {"2.0<", "a.example", "length=\"7", "signature: "}) {
        QByteArray changed = whole;
        const qsizetype place = changed.indexOf(was);
        ASSERT_GE(place, 0) << was;
        changed[place] = changed[place] == 'x' ? 'y' : 'x';
        EXPECT_FALSE(readAppcast(changed, key.publicKey)) << was;
    }
    EXPECT_TRUE(readAppcast(whole, key.publicKey));
}

TEST_F(AppcastTest, WhatIsNotSignedByThatKeyIsRefused) {
    EXPECT_FALSE(readAppcast(feed(item("2.0")), key.publicKey));
    EXPECT_FALSE(readAppcast(SigningKey().signedFeed(feed(item("2.0"))), key.publicKey));
    EXPECT_FALSE(readAppcast(QByteArray(), key.publicKey));
    EXPECT_FALSE(readAppcast("<!-- signature: -->", key.publicKey));
    EXPECT_FALSE(readAppcast(key.signedFeed(feed(item("2.0"))) + feed(item("3.0")), key.publicKey))
        << "nothing may follow the signature";
}

TEST_F(AppcastTest, AnItemThatCouldNotBeUsedSpoilsTheFeed) {
    for (const char* version : {"", "two", "2.0-beta", "2.0; rm"})
        EXPECT_FALSE(read(feed(item(version)))) << version;
    for (const char* length : {"", "0", "-1", "99999999999999", "many"})
        EXPECT_FALSE(read(feed(item("2.0", "", length)))) << length;
    EXPECT_FALSE(read(feed("<item><version>2.0</version></item>"))) << "without a file";
    EXPECT_FALSE(read(feed(item("2.0")).chopped(9))) << "cut off before it was signed";
}

TEST_F(AppcastTest, EntitiesAreNotExpanded) {
    EXPECT_FALSE(read("<?xml version=\"1.0\"?><!DOCTYPE rss [<!ENTITY a \"2.0\">]><rss><channel>" + item("&a;") +
                      "</channel></rss>\n"));
}

// RFC 8032, section 7.1, TEST 3.
TEST(Signature, FollowsThePublishedVector) {
    const QByteArray publicKey =
        QByteArray::fromHex("fc51cd8e6218a1a38da47ed00230f0580816ed13ba3303ac5deb911548908025");
    const QByteArray signature =
        QByteArray::fromHex("6291d657deec24024827e69c3abe01a30ce548a284743a445e3680d7db5ac3ac"
                            "18ff9b538d16f290ae67f760984dc6594a7c15e9716ed28dc027beceea1ec40a");
    const QByteArray message = QByteArray::fromHex("af82");
    EXPECT_TRUE(signature::isOf(message, signature, publicKey));
    EXPECT_FALSE(signature::isOf("other", signature, publicKey));
    EXPECT_FALSE(signature::isOf(message, signature.chopped(1), publicKey));
    EXPECT_FALSE(signature::isOf(message, signature, publicKey.chopped(1)));
}

} // namespace
} // namespace vellumry
