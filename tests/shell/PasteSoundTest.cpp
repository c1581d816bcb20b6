// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/PasteSound.h"

#include "support/FakeSoundPlayer.h"
#include "support/PasteWorld.h"

#include <gtest/gtest.h>

namespace vellumry {

namespace {

struct SoundWorld : PasteWorld {
    SoundWorld() { engine->onPasted = pasteSound(defaults, sounds); }

    PasteOutcome paste() { return awaited(engine->paste(addText("heard"), {}, {})); }
    void want(bool isWanted) { defaults.setObject(QStringLiteral("soundWhenPasting"), isWanted); }

    FakeSoundPlayer sounds;
};

} // namespace

TEST(PasteSound, IsHeardOnceForEachPasteOfAUserWhoWantsIt) {
    SoundWorld world;
    world.want(true);
    EXPECT_EQ(world.paste(), PasteOutcome::pasted());
    EXPECT_EQ(world.sounds.played, std::vector{Sound::pop});
    EXPECT_EQ(world.paste(), PasteOutcome::pasted());
    EXPECT_EQ(world.sounds.played.size(), 2U);
}

TEST(PasteSound, IsSilentUnlessWantedAndFollowsTheSettingAtTheNextPaste) {
    SoundWorld world;
    world.paste();
    EXPECT_TRUE(world.sounds.played.empty());
    world.want(true);
    world.paste();
    world.want(false);
    world.paste();
    EXPECT_EQ(world.sounds.played.size(), 1U);
}

TEST(PasteSound, AMereCopyIsNotHeard) {
    SoundWorld world;
    world.want(true);
    world.target.secureInput = true;
    EXPECT_EQ(world.paste(), PasteOutcome::copiedOnly(PasteReason::secureInput));
    EXPECT_EQ(awaited(world.engine->copy(world.addText("copied"))), CopyOutcome::copied());
    EXPECT_TRUE(world.sounds.played.empty());
}

} // namespace vellumry
