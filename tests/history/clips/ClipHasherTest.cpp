// SPDX-License-Identifier: GPL-3.0-or-later
#include "history/clips/ClipHasher.h"

#include "history/clips/ClipFingerprint.h"
#include "support/Awaited.h"
#include "support/Drafts.h"

#include <gtest/gtest.h>

namespace vellumry {
namespace {

TEST(ClipHasher, GivesTheFingerprintOfASmallPayloadAtOnce) {
    const auto crypto = std::make_shared<const ClipCrypto>(ClipCrypto::withRandomKey());
    ClipHasher hasher;
    const ClipDraft draft = drafts::text(QStringLiteral("small"));
    auto hashing = hasher.fingerprint(draft, crypto);
    EXPECT_TRUE(hashing.isReady());
    EXPECT_EQ(awaited(std::move(hashing)), fingerprintOf(draft, *crypto));
}

TEST(ClipHasher, GivesThatOfALargePayloadLater) {
    const auto crypto = std::make_shared<const ClipCrypto>(ClipCrypto::withRandomKey());
    ClipHasher hasher;
    const ClipDraft draft = drafts::image(QByteArray(1 << 20, 'p'));
    auto hashing = hasher.fingerprint(draft, crypto);
    EXPECT_FALSE(hashing.isReady());
    EXPECT_EQ(awaited(std::move(hashing)), fingerprintOf(draft, *crypto));
}

TEST(ClipHasher, FinishesWhatWasBegunWhenItEnds) {
    const auto crypto = std::make_shared<const ClipCrypto>(ClipCrypto::withRandomKey());
    const ClipDraft draft = drafts::image(QByteArray(1 << 20, 'q'));
    auto hasher = std::make_unique<ClipHasher>();
    auto hashing = hasher->fingerprint(draft, crypto);
    hasher.reset();
    EXPECT_EQ(awaited(std::move(hashing)), fingerprintOf(draft, *crypto));
}

} // namespace
} // namespace vellumry
