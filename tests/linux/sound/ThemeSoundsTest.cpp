// SPDX-License-Identifier: GPL-3.0-or-later
#include "linux/sound/ThemeSounds.h"

#include <array>
#include <cstdlib>
#include <gtest/gtest.h>
#include <poll.h>
#include <string>
#include <unistd.h>

namespace vellumry {

namespace {

class ThemeSoundsTest : public ::testing::Test {
protected:
    void SetUp() override {
        ASSERT_EQ(pipe(m_ends.data()), 0);
        setenv("FAKE_CANBERRA", std::to_string(m_ends[1]).c_str(), 1);
        unsetenv("FAKE_CANBERRA_FAILS");
    }
    void TearDown() override {
        close(m_ends[0]);
        close(m_ends[1]);
    }

    /// The next call that reached the library; empty when none came in time.
    std::string call(int patience = 10000) const {
        std::string line;
        pollfd readable{m_ends[0], POLLIN, 0};
        char letter = 0;
        while (poll(&readable, 1, patience) == 1 && read(m_ends[0], &letter, 1) == 1 && letter != '\n')
            line += letter;
        return line;
    }

private:
    std::array<int, 2> m_ends{};
};

constexpr auto introduction = "properties application.name=Vellumry application.id=com.vellumry.Vellumry";
constexpr auto pop = "play event.id=audio-volume-change canberra.cache-control=permanent";

} // namespace

TEST_F(ThemeSoundsTest, ASoundIsAskedForByItsNameInTheTheme) {
    ThemeSounds sounds(VELLUMRY_FAKE_CANBERRA);
    sounds.play(Sound::pop);
    EXPECT_EQ(call(), introduction);
    EXPECT_EQ(call(), pop);
}

TEST_F(ThemeSoundsTest, NothingIsLoadedBeforeTheFirstSound) {
    const ThemeSounds sounds(VELLUMRY_FAKE_CANBERRA);
    EXPECT_EQ(call(0), "");
}

TEST_F(ThemeSoundsTest, IntroducesItselfOnce) {
    ThemeSounds sounds(VELLUMRY_FAKE_CANBERRA);
    sounds.play(Sound::pop);
    EXPECT_EQ(call(), introduction);
    EXPECT_EQ(call(), pop);
    // What comes while the sound before is being handed over is left out, so ask until one gets through.
    std::string next;
    while (next.empty()) {
        sounds.play(Sound::pop);
        next = call(20);
    }
    EXPECT_EQ(next, pop);
}

TEST_F(ThemeSoundsTest, WithoutTheLibraryOrAServerItIsSilent) {
    ThemeSounds missing("/nowhere/libcanberra.so.0");
    missing.play(Sound::pop);
    setenv("FAKE_CANBERRA_FAILS", "1", 1);
    ThemeSounds refused(VELLUMRY_FAKE_CANBERRA);
    refused.play(Sound::pop);
    EXPECT_EQ(call(200), "");
}

} // namespace vellumry
