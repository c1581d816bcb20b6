// SPDX-License-Identifier: GPL-3.0-or-later
#include "history/file/ClipCrypto.h"

#include "foundation/CryptoError.h"
#include "history/file/Unsealer.h"

#include <array>
#include <gtest/gtest.h>

namespace vellumry {
namespace {

using namespace Qt::StringLiterals;

UnsealError::Case failureOf(const ClipCrypto& crypto, const QByteArray& blob) {
    try {
        (void)crypto.unseal(blob);
    } catch (const UnsealError& error) {
        return error.kind();
    }
    throw std::logic_error("opened");
}

TEST(ClipCrypto, PassesItsOwnTest) {
    EXPECT_NO_THROW(ClipCrypto::selfTest());
}

TEST(ClipCrypto, SealingTwiceGivesTwoBlobsThatBothOpen) {
    const auto crypto = ClipCrypto::withRandomKey();
    const QByteArray plain("the same bytes");
    const QByteArray one = crypto.seal(plain);
    const QByteArray two = crypto.seal(plain);
    EXPECT_NE(one, two);
    EXPECT_NE(one.first(12), two.first(12));
    EXPECT_EQ(one.size(), plain.size() + 28);
    EXPECT_EQ(crypto.unseal(one), plain);
    EXPECT_EQ(crypto.unseal(two), plain);
}

TEST(ClipCrypto, NothingSealsToTwentyEightBytes) {
    const auto crypto = ClipCrypto::withRandomKey();
    const QByteArray blob = crypto.seal({});
    EXPECT_EQ(blob.size(), 28);
    EXPECT_EQ(crypto.unseal(blob), QByteArray());
}

TEST(ClipCrypto, SealingInPlaceMakesWhatSealingMakes) {
    const auto crypto = ClipCrypto::withRandomKey();
    for (const qsizetype size : {0, 1, 16, 5000}) {
        const QByteArray plain(size, 'p');
        QByteArray blob = QByteArray(12, 'n') + plain + QByteArray(16, 't');
        const QByteArray before = blob;
        crypto.sealInPlace(blob);
        EXPECT_EQ(crypto.unseal(blob), plain);
        EXPECT_NE(blob.first(12), before.first(12));
    }
}

TEST(ClipCrypto, WithoutRoomNothingIsSealedInPlace) {
    QByteArray blob(27, 's');
    EXPECT_THROW(ClipCrypto::withRandomKey().sealInPlace(blob), CryptoError);
    EXPECT_EQ(blob, QByteArray(27, '\0')) << "what could not be sealed is wiped";
}

TEST(ClipCrypto, RefusesAnotherKey) {
    const QByteArray blob = ClipCrypto::withRandomKey().seal("secret");
    EXPECT_EQ(failureOf(ClipCrypto::withRandomKey(), blob), UnsealError::Case::notAuthentic);
}

TEST(ClipCrypto, RefusesAChangeOfAnyByte) {
    const auto crypto = ClipCrypto::withRandomKey();
    const QByteArray blob = crypto.seal("secret");
    for (qsizetype i = 0; i < blob.size(); ++i) {
        QByteArray changed = blob;
        changed[i] = static_cast<char>(changed[i] ^ 0x40);
        EXPECT_EQ(failureOf(crypto, changed), UnsealError::Case::notAuthentic) << i;
    }
}

TEST(ClipCrypto, RefusesAShortBlobWithoutTrying) {
    const auto crypto = ClipCrypto::withRandomKey();
    for (const qsizetype size : {0, 1, 12, 27})
        EXPECT_EQ(failureOf(crypto, QByteArray(size, 'x')), UnsealError::Case::incorrectSize);
    EXPECT_EQ(failureOf(crypto, QByteArray(28, 'x')), UnsealError::Case::notAuthentic);
}

TEST(ClipCrypto, AuthenticationCodeDependsOnTheConcatenationAndTheKey) {
    const auto crypto = ClipCrypto::withRandomKey();
    const std::array<QByteArrayView, 3> parts{"ab", "", "c"};
    const std::array<QByteArrayView, 1> whole{"abc"};
    EXPECT_EQ(crypto.authenticationCode(parts), crypto.authenticationCode(whole));
    EXPECT_EQ(crypto.authenticationCode(whole).size(), 32);
    EXPECT_NE(crypto.authenticationCode(whole), ClipCrypto::withRandomKey().authenticationCode(whole));
}

TEST(ClipCrypto, AuthenticationCodeIsThePublishedOne) {
    // RFC 4231, test case 1, whose key of 20 bytes is padded as HMAC itself would pad it.
    const ClipCrypto crypto{SymmetricKey(QByteArray(20, '\x0b').leftJustified(32, '\0'))};
    const std::array<QByteArrayView, 1> data{"Hi There"};
    EXPECT_EQ(crypto.authenticationCode(data).toHex(),
              QByteArray("b0344c61d8db38535ca8afceaf0bf12b881dc200c9833da726e9376c2e32cff7"));
}

TEST(Unsealer, OpensManyBlobsAndOutlivesARefusal) {
    const auto crypto = ClipCrypto::withRandomKey();
    Unsealer unsealer(crypto.key());
    for (const qsizetype size : {0, 1, 16, 5000, 3, 100'000}) {
        const QByteArray plain(size, static_cast<char>('a' + size % 26));
        EXPECT_FALSE(unsealer.open(QByteArray(40, 'x')).has_value());
        const auto opened = unsealer.open(crypto.seal(plain));
        ASSERT_TRUE(opened.has_value());
        EXPECT_EQ(*opened, plain);
    }
}

TEST(CryptoError, SaysWhatTheUserReads) {
    EXPECT_EQ(CryptoError::sealFailed().errorDescription(), u"Encryption failed."_s);
}

} // namespace
} // namespace vellumry
