// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "linux/x11/input/XClient.h"
#include "linux/x11/input/XSession.h"
#include "linux/x11/keys/X11PasteKeys.h"
#include "support/Eventually.h"

#include <atomic>
#include <gtest/gtest.h>
#include <linux/input-event-codes.h>
#include <memory>
#include <vector>

namespace vellumry {

/// The user's hand on the keyboard, an editor that gets the keys, and what is told of them in between.
class X11PasteKeysTest : public ::testing::Test {
protected:
    using Chords = std::vector<std::pair<unsigned long, unsigned int>>; ///< key symbol and modifiers
    static constexpr unsigned long symbolV = 0x76;
    static constexpr unsigned long symbolX = 0x78;
    static constexpr unsigned long symbolInsert = 0xff63;
    static constexpr unsigned int shift = 1;
    static constexpr unsigned int control = 4;
    static constexpr unsigned int alt = 8;

    struct Press {
        KeyPress press;
        std::shared_ptr<HeldKey> key;
    };

    void SetUp() override {
        ASSERT_TRUE(XSession::setLayout(QStringLiteral("us -variant basic")));
        // The first key of another device gives the server's keyboard a new map.
        client.chord({KEY_LEFTSHIFT});
        ASSERT_TRUE(editor.open("edit", "Editor"));
        keys.onPress = [this](const KeyPress& press, std::shared_ptr<HeldKey> key) {
            presses.push_back({press, std::move(key)});
        };
        (void)editor.takeKeys();
    }
    void TearDown() override {
        presses.clear();
        keys.stop();
        EXPECT_TRUE(XSession::setLayout(QStringLiteral("us -variant basic")));
    }

    [[nodiscard]] X11PasteKeys::Options options() {
        X11PasteKeys::Options result;
        result.wasServed = [this] { return wasServed.load(); };
        result.offerAsPrimary = [this] { ++primaryOffers; };
        result.injected = injected;
        // Where a test wants a limit to pass it waits for that; all others must not run into it.
        result.holdLimit = std::chrono::milliseconds(3000);
        result.servedLimit = std::chrono::milliseconds(2000);
        return result;
    }
    /// What the window got, modifier keys left out.
    void collect() {
        for (const XClient::Key& key : editor.takeKeys()) {
            if (key.isPress && (key.symbol < 0xffe0 || key.symbol > 0xffef))
                typed.emplace_back(key.symbol, key.state & 0xfdU);
        }
    }
    bool arrives(const Chords& chords) {
        return eventually([&] {
                   collect();
                   return typed.size() >= chords.size();
               }) &&
               typed == chords;
    }
    bool isTold(std::size_t count) {
        return eventually([&] { return presses.size() >= count; }) && presses.size() == count;
    }
    void letGo(HeldKey::Contents contents = HeldKey::Contents::fresh) { presses.back().key->letGo(contents); }

    std::atomic<bool> wasServed = true;
    int primaryOffers = 0;
    std::shared_ptr<InjectedPresses> injected = std::make_shared<InjectedPresses>();
    X11PasteKeys keys{options()};
    XClient client;
    XClient editor;
    std::vector<Press> presses;
    Chords typed;
};

} // namespace vellumry
