// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/display/PasteKeys.h"

#include <memory>
#include <optional>

namespace vellumry {

/// Paste keys without a keyboard: `press` stands for the user.
class FakePasteKeys : public PasteKeys {
public:
    /// What became of one press.
    struct Fate {
        bool isHeld = true;
        std::optional<HeldKey::Contents> contents; ///< absent while it is held, and when it went by itself
    };

    [[nodiscard]] static KeyPress controlV() {
        return {KeyCode::v, Modifier::command, false, QStringLiteral("v"), 0, 0};
    }

    bool available = true; ///< false: `start` fails
    bool isStarted = false;
    int startCalls = 0;
    bool servesAhead = false; ///< true: a press is told of when it has been served
    /// What `expect` was called with, in its order.
    std::vector<std::optional<std::vector<PasteboardItem>>> expected;

    [[nodiscard]] bool start() override {
        ++startCalls;
        isStarted = available;
        return available;
    }
    void stop() override { isStarted = false; }
    [[nodiscard]] bool wantsNext() const override { return servesAhead; }
    void expect(std::optional<std::vector<PasteboardItem>> items) override { expected.push_back(std::move(items)); }

    /// The fate changes as the press goes its way. A press that nobody listens to goes at once.
    std::shared_ptr<Fate> press(const KeyPress& press = controlV()) {
        const auto fate = std::make_shared<Fate>();
        const auto told = onPress;
        if (isStarted && told)
            told(press, std::make_shared<Key>(fate));
        else
            fate->isHeld = false;
        return fate;
    }

private:
    class Key : public HeldKey {
    public:
        explicit Key(std::shared_ptr<Fate> fate)
            : m_fate(std::move(fate)) {}
        ~Key() override { m_fate->isHeld = false; }
        [[nodiscard]] bool isHeld() const override { return m_fate->isHeld; }
        [[nodiscard]] std::chrono::milliseconds timeLeft() const override {
            return std::chrono::milliseconds(m_fate->isHeld ? 150 : 0);
        }
        void letGo(Contents contents) override {
            if (m_fate->isHeld)
                m_fate->contents = contents;
            m_fate->isHeld = false;
        }

    private:
        std::shared_ptr<Fate> m_fate;
    };
};

} // namespace vellumry
