// SPDX-License-Identifier: GPL-3.0-or-later
#include "linux/wayland/keys/WaylandPasteKeys.h"

#include "foundation/SerialExecutor.h"
#include "linux/wayland/selection/DataControlThread.h"

#include <utility>

namespace vellumry {

namespace {

using namespace std::chrono_literals;

/// The listener may take over the next item: it is offered when the paste is over.
constexpr auto usualTime = 100ms;

} // namespace

/// Nothing waits for it: the paste has what it came for.
class WaylandPasteKeys::Key : public HeldKey {
public:
    [[nodiscard]] bool isHeld() const override { return !m_isLetGo; }
    [[nodiscard]] std::chrono::milliseconds timeLeft() const override { return m_isLetGo ? 0ms : usualTime; }
    void letGo(Contents) override { m_isLetGo = true; }

private:
    bool m_isLetGo = false;
};

WaylandPasteKeys::WaylandPasteKeys(std::weak_ptr<DataControlThread> pasteboard)
    : m_pasteboard(std::move(pasteboard)) {}

WaylandPasteKeys::~WaylandPasteKeys() {
    stop();
}

bool WaylandPasteKeys::start() {
    const std::shared_ptr<DataControlThread> pasteboard = m_pasteboard.lock();
    if (!pasteboard)
        return false;
    if (m_link)
        return true;
    m_link = std::make_shared<Link>(this);
    pasteboard->post([link = m_link](DataControlEngine& engine, auto) {
        engine.startCounting([link] {
            postToMain([link] {
                if (link->keys != nullptr)
                    link->keys->receive();
            });
        });
    });
    return true;
}

void WaylandPasteKeys::stop() {
    if (!m_link)
        return;
    std::exchange(m_link, nullptr)->keys = nullptr;
    if (const std::shared_ptr<DataControlThread> pasteboard = m_pasteboard.lock())
        pasteboard->post([](DataControlEngine& engine, auto) { engine.stopCounting(); });
}

void WaylandPasteKeys::expect(std::optional<std::vector<PasteboardItem>> items) {
    const std::shared_ptr<DataControlThread> pasteboard = m_pasteboard.lock();
    if (!pasteboard || !m_link)
        return;
    const auto contents = items ? OfferedContents::of(std::move(*items)) : nullptr;
    pasteboard->post([contents](DataControlEngine& engine, auto now) { engine.expect(contents, now); });
}

void WaylandPasteKeys::receive() {
    KeyPress press;
    press.keyCode = KeyCode::v;
    press.modifiers = Modifier::command;
    press.characters = QStringLiteral("v");
    const auto told = onPress; // the callback may stop the listening
    if (told)
        told(press, std::make_shared<Key>());
}

} // namespace vellumry
