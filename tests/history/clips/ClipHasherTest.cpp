// SPDX-License-Identifier: GPL-3.0-or-later
#include "history/clips/ClipHasher.h"

#include "history/clips/ClipFingerprint.h"
#include "support/Awaited.h"
#include "support/Drafts.h"

#include <gtest/gtest.h>

namespace vellumry {
namespace {

TEST(ClipHasher, GivesTheFingerprintOfASmallPayloadAtOnce) {
    const ClipCrypto crypto = ClipCrypto::withRandomKey();
    ClipHasher hasher(crypto);
    const ClipDraft draft = drafts::text(QStringLiteral("small"));
    auto hashing = hasher.fingerprint(draft);
    EXPECT_TRUE(hashing.isReady());
    EXPECT_EQ(awaited(std::move(hashing)), fingerprintOf(draft, crypto));
}

TEST(ClipHasher, GivesThatOfALargePayloadLater) {
    const ClipCrypto crypto = ClipCrypto::withRandomKey();
    ClipHasher hasher(crypto);
    const ClipDraft draft = drafts::image(QByteArray(1 << 20, 'p'));
    auto hashing = hasher.fingerprint(draft);
    EXPECT_FALSE(hashing.isReady());
    EXPECT_EQ(awaited(std::move(hashing)), fingerprintOf(draft, crypto));
}

TEST(ClipHasher, FinishesWhatWasBegunWhenItEnds) {
    const ClipCrypto crypto = ClipCrypto::withRandomKey();
    const ClipDraft draft = drafts::image(QByteArray(1 << 20, 'q'));
    auto hasher = std::make_unique<ClipHasher>(crypto);
    auto hashing = hasher->fingerprint(draft);
    hasher.reset();
    EXPECT_EQ(awaited(std::move(hashing)), fingerprintOf(draft, crypto));
}

} // namespace
} // namespace vellumry
