// SPDX-License-Identifier: GPL-3.0-or-later
#include "linux/x11/keys/X11PasteKeys.h"

#include "linux/x11/input/X11PasteKeysWorld.h"
#include "linux/x11/keys/X11PasteTarget.h"

#include <QCoreApplication>
#include <QElapsedTimer>

namespace vellumry {

using namespace std::chrono_literals;

TEST_F(X11PasteKeysTest, ThePressWaitsUntilItIsLetGoAndIsNotChanged) {
    ASSERT_TRUE(keys.start());
    client.chord({KEY_LEFTCTRL, KEY_V});
    client.chord({KEY_X});
    ASSERT_TRUE(isTold(1));
    EXPECT_EQ(presses[0].press, (KeyPress{KeyCode::v, Modifier::command, false, QStringLiteral("v"), 0, 0}));
    EXPECT_TRUE(presses[0].key->isHeld());
    collect();
    EXPECT_EQ(typed, Chords{}) << "the key and what is typed behind it";
    letGo();
    EXPECT_FALSE(presses[0].key->isHeld());
    EXPECT_TRUE(arrives({{symbolV, control}, {symbolX, 0}}));
    EXPECT_EQ(presses.size(), 1U);
}

TEST_F(X11PasteKeysTest, AllPasteChordsAreToldAndNoOthers) {
    ASSERT_TRUE(keys.start());
    keys.onPress = [this](const KeyPress& press, const std::shared_ptr<HeldKey>&) { presses.push_back({press, {}}); };
    const std::vector<std::vector<unsigned int>> chords = {{KEY_LEFTCTRL, KEY_V},
                                                           {KEY_LEFTCTRL, KEY_LEFTSHIFT, KEY_V},
                                                           {KEY_RIGHTCTRL, KEY_LEFTALT, KEY_V},
                                                           {KEY_LEFTCTRL, KEY_LEFTSHIFT, KEY_LEFTALT, KEY_V},
                                                           {KEY_LEFTSHIFT, KEY_INSERT}};
    for (std::size_t index = 0; index < chords.size(); ++index) {
        client.chord({KEY_LEFTCTRL, KEY_LEFTMETA, KEY_V}); // not a paste
        client.chord({KEY_V});
        client.chord({KEY_LEFTCTRL, KEY_INSERT});
        client.chord(chords[index]);
        ASSERT_TRUE(isTold(index + 1)) << index;
    }
    using enum Modifier;
    const std::vector<Modifiers> modifiers = {command, command | shift, command | option, command | shift | option,
                                              shift};
    for (std::size_t index = 0; index < modifiers.size(); ++index)
        EXPECT_EQ(presses[index].press.modifiers, modifiers[index]);
    EXPECT_EQ(presses.back().press.keyCode, KeyCode::insert);
}

TEST_F(X11PasteKeysTest, TheNextPressComesWhenThisOneHasGone) {
    ASSERT_TRUE(keys.start());
    for (int count = 0; count < 3; ++count)
        client.chord({KEY_LEFTCTRL, KEY_V});
    for (std::size_t count = 1; count <= 3; ++count) {
        ASSERT_TRUE(isTold(count));
        letGo();
    }
    EXPECT_TRUE(arrives(Chords(3, {symbolV, control})));
}

TEST_F(X11PasteKeysTest, APressThatNobodyAnswersGoesByItself) {
    X11PasteKeys::Options limited = options();
    limited.holdLimit = 100ms;
    X11PasteKeys short_(limited);
    std::shared_ptr<HeldKey> kept;
    short_.onPress = [&](const KeyPress&, std::shared_ptr<HeldKey> key) { kept = std::move(key); };
    ASSERT_TRUE(short_.start());
    QElapsedTimer timer;
    timer.start();
    client.chord({KEY_LEFTCTRL, KEY_V});
    EXPECT_TRUE(arrives({{symbolV, control}}));
    EXPECT_GE(timer.elapsed(), 90);
    ASSERT_NE(kept, nullptr);
    EXPECT_FALSE(kept->isHeld());
    kept->letGo(HeldKey::Contents::fresh); // too late, and harmless
    client.chord({KEY_X});
    EXPECT_TRUE(arrives({{symbolV, control}, {symbolX, 0}}));
}

TEST_F(X11PasteKeysTest, ABusyMainThreadDoesNotHoldTheKeyboard) {
    X11PasteKeys::Options limited = options();
    limited.holdLimit = 50ms;
    X11PasteKeys busy(limited);
    int told = 0;
    busy.onPress = [&](const KeyPress&, const std::shared_ptr<HeldKey>&) { ++told; };
    ASSERT_TRUE(busy.start());
    client.chord({KEY_LEFTCTRL, KEY_V});
    QElapsedTimer timer;
    timer.start();
    while (typed.empty() && timer.elapsed() < 3000) // no event of ours is delivered meanwhile
        collect();
    EXPECT_EQ(typed, (Chords{{symbolV, control}}));
    QCoreApplication::processEvents();
    EXPECT_EQ(told, 0) << "a key that has gone is not told of";
}

TEST_F(X11PasteKeysTest, AHeldKeyIsToldOnceAndItsRepeatsPass) {
    ASSERT_TRUE(keys.start());
    client.press(KEY_LEFTCTRL);
    client.press(KEY_V);
    ASSERT_TRUE(isTold(1));
    letGo();
    EXPECT_TRUE(eventually([&] {
        collect();
        return typed.size() > 5;
    }));
    client.release(KEY_V);
    client.chord({KEY_V});
    ASSERT_TRUE(isTold(2));
    letGo();
    client.release(KEY_LEFTCTRL);
}

TEST_F(X11PasteKeysTest, WhatWePressOurselvesPasses) {
    ASSERT_TRUE(keys.start());
    const auto connection = XlibConnection::create().value();
    X11PasteTarget::Options target;
    target.willPress = [this] { injected->announce(std::chrono::steady_clock::now()); };
    X11PasteTarget ours(connection, std::make_shared<X11Focus>(connection), target);
    ours.pressPaste();
    EXPECT_TRUE(arrives({{symbolV, control}}));
    EXPECT_TRUE(presses.empty());
    client.chord({KEY_LEFTCTRL, KEY_V}); // another program's, a remote desktop's for instance
    EXPECT_TRUE(isTold(1));
}

TEST_F(X11PasteKeysTest, WhatWePressedBeforeItBeganStandsForNoKeyOfTheUser) {
    injected->announce(std::chrono::steady_clock::now());
    ASSERT_TRUE(keys.start());
    client.chord({KEY_LEFTCTRL, KEY_V});
    EXPECT_TRUE(isTold(1));
}

TEST_F(X11PasteKeysTest, ThePrimarySelectionIsOfferedForShiftInsertOnly) {
    ASSERT_TRUE(keys.start());
    client.chord({KEY_LEFTCTRL, KEY_V});
    ASSERT_TRUE(isTold(1));
    letGo();
    client.chord({KEY_LEFTSHIFT, KEY_INSERT});
    ASSERT_TRUE(isTold(2));
    EXPECT_EQ(primaryOffers, 0);
    letGo();
    EXPECT_EQ(primaryOffers, 1);
    client.chord({KEY_LEFTSHIFT, KEY_INSERT});
    ASSERT_TRUE(isTold(3));
    letGo(HeldKey::Contents::same);
    EXPECT_EQ(primaryOffers, 1);
    EXPECT_TRUE(arrives({{symbolV, control}, {symbolInsert, shift}, {symbolInsert, shift}}));
}

TEST_F(X11PasteKeysTest, ThePasteBeforeItIsFetchedFirst) {
    ASSERT_TRUE(keys.start());
    client.chord({KEY_LEFTCTRL, KEY_V});
    ASSERT_TRUE(isTold(1));
    wasServed = false;
    letGo();
    client.chord({KEY_LEFTCTRL, KEY_V});
    EXPECT_TRUE(arrives({{symbolV, control}}));
    QElapsedTimer timer;
    timer.start();
    EXPECT_TRUE(eventually([&] { return timer.elapsed() > 100; }));
    EXPECT_EQ(presses.size(), 1U);
    wasServed = true;
    EXPECT_TRUE(isTold(2));
    letGo(HeldKey::Contents::same);
    wasServed = false; // nothing was written for that one
    client.chord({KEY_LEFTCTRL, KEY_V});
    timer.restart();
    EXPECT_TRUE(isTold(3));
    EXPECT_LT(timer.elapsed(), 1000);
}

/// An editor under load fetches a paste 200 ms after its key, and the user presses every 150.
TEST_F(X11PasteKeysTest, ASlowProgramIsWaitedForLongerThanAKeyIsHeld) {
    X11PasteKeys::Options limited = options();
    limited.holdLimit = 100ms;
    limited.servedLimit = 60s;
    X11PasteKeys patient(limited);
    patient.onPress = [this](const KeyPress& press, std::shared_ptr<HeldKey> key) { presses.push_back({press, key}); };
    ASSERT_TRUE(patient.start());
    client.chord({KEY_LEFTCTRL, KEY_V});
    ASSERT_TRUE(isTold(1));
    wasServed = false;
    letGo();
    EXPECT_TRUE(arrives({{symbolV, control}}));
    client.chord({KEY_LEFTCTRL, KEY_V});
    QElapsedTimer timer;
    timer.start();
    EXPECT_TRUE(eventually([&] { return timer.elapsed() > 300; }));
    collect();
    EXPECT_EQ(typed.size(), 1U) << "it went with what is on the clipboard for the one before it";
    EXPECT_EQ(presses.size(), 1U);
    wasServed = true;
    EXPECT_TRUE(isTold(2));
    letGo();
    EXPECT_TRUE(arrives(Chords(2, {symbolV, control})));
}

TEST_F(X11PasteKeysTest, AProgramThatDoesNotWantThePasteHoldsNothingUpForLong) {
    X11PasteKeys::Options limited = options();
    limited.servedLimit = 50ms;
    X11PasteKeys patient(limited);
    patient.onPress = [this](const KeyPress& press, std::shared_ptr<HeldKey> key) { presses.push_back({press, key}); };
    ASSERT_TRUE(patient.start());
    wasServed = false;
    client.chord({KEY_LEFTCTRL, KEY_V});
    ASSERT_TRUE(isTold(1));
    letGo();
    client.chord({KEY_LEFTCTRL, KEY_V});
    EXPECT_TRUE(isTold(2));
    letGo();
}

TEST_F(X11PasteKeysTest, AProgramThatLooksFirstGetsItsKeyAfterItsLook) {
    std::atomic<bool> wasListed = false;
    X11PasteKeys::Options looking = options();
    looking.wasListed = [&wasListed] { return wasListed.load(); };
    looking.looksFirst = [] { return true; };
    looking.holdLimit = 60s;
    X11PasteKeys polite(looking);
    polite.onPress = [this](const KeyPress& press, std::shared_ptr<HeldKey> key) { presses.push_back({press, key}); };
    ASSERT_TRUE(polite.start());
    client.chord({KEY_LEFTCTRL, KEY_V});
    ASSERT_TRUE(isTold(1));
    letGo();
    QElapsedTimer timer;
    timer.start();
    EXPECT_TRUE(eventually([&] { return timer.elapsed() > 60; }));
    collect();
    EXPECT_TRUE(typed.empty());
    wasListed = true;
    EXPECT_TRUE(arrives({{symbolV, control}}));
}

TEST_F(X11PasteKeysTest, TheLastKeyWaitsForTheLookThoughListeningHasStopped) {
    std::atomic<bool> wasListed = false;
    X11PasteKeys::Options looking = options();
    looking.wasListed = [&wasListed] { return wasListed.load(); };
    looking.looksFirst = [] { return true; };
    looking.holdLimit = 60s;
    X11PasteKeys polite(looking);
    polite.onPress = [this](const KeyPress& press, std::shared_ptr<HeldKey> key) { presses.push_back({press, key}); };
    ASSERT_TRUE(polite.start());
    client.chord({KEY_LEFTCTRL, KEY_V});
    ASSERT_TRUE(isTold(1));
    letGo();
    polite.stop();
    QElapsedTimer timer;
    timer.start();
    EXPECT_TRUE(eventually([&] { return timer.elapsed() > 60; }));
    collect();
    EXPECT_TRUE(typed.empty()) << "the program has not looked yet";
    ASSERT_TRUE(keys.start()) << "the keys are free for whoever comes next";
    keys.stop();
    wasListed = true;
    EXPECT_TRUE(arrives({{symbolV, control}}));
}

TEST_F(X11PasteKeysTest, AKeyThatNobodyAnsweredGoesWhenListeningStops) {
    X11PasteKeys::Options patient = options();
    patient.holdLimit = 60s;
    X11PasteKeys stopped(patient);
    std::shared_ptr<HeldKey> kept;
    stopped.onPress = [&](const KeyPress&, std::shared_ptr<HeldKey> key) { kept = std::move(key); };
    ASSERT_TRUE(stopped.start());
    client.chord({KEY_LEFTCTRL, KEY_V});
    EXPECT_TRUE(eventually([&] { return kept != nullptr; }));
    stopped.stop();
    EXPECT_TRUE(arrives({{symbolV, control}}));
}

TEST(InjectedPresses, AreForgottenWhenNobodyListened) {
    InjectedPresses presses;
    const auto now = std::chrono::steady_clock::now();
    presses.announce(now);
    presses.forget();
    EXPECT_FALSE(presses.claim(now));
}

TEST(InjectedPresses, AreOursOnceAndForAWhile) {
    InjectedPresses presses;
    const auto now = std::chrono::steady_clock::now();
    EXPECT_FALSE(presses.claim(now));
    presses.announce(now);
    EXPECT_TRUE(presses.claim(now + 10ms));
    EXPECT_FALSE(presses.claim(now + 10ms));
    presses.announce(now);
    EXPECT_FALSE(presses.claim(now + InjectedPresses::lifetime + 1ms));
    EXPECT_FALSE(presses.claim(now));
}

} // namespace vellumry
