// SPDX-License-Identifier: GPL-3.0-or-later
#include "linux/x11/keys/X11PasteKeys.h"

#include "foundation/SerialExecutor.h"

#include <future>
#include <utility>

namespace vellumry {

namespace {

using namespace std::chrono_literals;

/// The X server's time for an answer.
constexpr auto serverLimit = 1000ms;

} // namespace

class X11PasteKeys::Key : public HeldKey {
public:
    Key(std::shared_ptr<Link> link, X11PasteKeyGrab::Held held)
        : m_link(std::move(link))
        , m_held(std::move(held)) {}
    ~Key() override { letGo(Contents::same); }
    Key(const Key&) = delete;
    Key& operator=(const Key&) = delete;

    [[nodiscard]] bool isHeld() const override { return !m_isLetGo && m_held.isHeld->load(); }
    [[nodiscard]] std::chrono::milliseconds timeLeft() const override {
        if (!isHeld())
            return 0ms;
        return std::chrono::floor<std::chrono::milliseconds>(m_held.until - std::chrono::steady_clock::now());
    }
    void letGo(Contents contents) override {
        if (!std::exchange(m_isLetGo, true) && m_link->keys != nullptr)
            m_link->keys->letGo(m_held, contents);
    }

private:
    std::shared_ptr<Link> m_link;
    X11PasteKeyGrab::Held m_held;
    bool m_isLetGo = false;
};

X11PasteKeys::X11PasteKeys(Options options)
    : m_options(std::move(options))
    , m_link(std::make_shared<Link>(this)) {}

X11PasteKeys::~X11PasteKeys() {
    stop();
    endRetired();
    m_link->keys = nullptr;
}

X11PasteKeyGrab::Options X11PasteKeys::grabOptions() const {
    X11PasteKeyGrab::Options options;
    options.displayName = m_options.displayName;
    options.wasServed = m_options.wasServed;
    options.wasListed = m_options.wasListed;
    options.injected = m_options.injected;
    options.holdLimit = m_options.holdLimit;
    options.servedLimit = m_options.servedLimit;
    options.onHeld = [link = m_link](const X11PasteKeyGrab::Held& held) {
        postToMain([link, held] {
            if (link->keys != nullptr)
                link->keys->receive(held);
        });
    };
    return options;
}

bool X11PasteKeys::start() {
    if (m_thread)
        return true;
    m_thread = std::make_unique<QThread>();
    m_thread->setObjectName(QStringLiteral("PasteKeys"));
    m_grab = new X11PasteKeyGrab(grabOptions());
    m_grab->moveToThread(m_thread.get());
    QObject::connect(m_thread.get(), &QThread::finished, m_grab, &QObject::deleteLater);
    m_thread->start();
    auto answer = std::make_shared<std::promise<bool>>();
    auto isHolding = answer->get_future();
    QMetaObject::invokeMethod(
        m_grab, [grab = m_grab, answer] { answer->set_value(grab->start()); }, Qt::QueuedConnection);
    if (isHolding.wait_for(serverLimit) == std::future_status::ready && isHolding.get())
        return true;
    stop();
    return false;
}

void X11PasteKeys::stop() {
    if (!m_thread)
        return;
    endRetired();
    const auto released = std::make_shared<std::promise<void>>();
    const auto isReleased = released->get_future();
    QMetaObject::invokeMethod(
        m_grab,
        [grab = m_grab, thread = m_thread.get(), released] {
            grab->retire([thread] { thread->quit(); });
            released->set_value();
        },
        Qt::QueuedConnection);
    m_grab = nullptr;
    m_retired = std::move(m_thread);
    // The keys are free when this returns; the next start needs them.
    (void)isReleased.wait_for(serverLimit);
}

void X11PasteKeys::endRetired() {
    if (!m_retired)
        return;
    // A server that does not answer keeps its thread; destroying a running one would end the process.
    if (m_retired->wait(QDeadlineTimer(serverLimit)))
        m_retired.reset();
    else
        (void)m_retired.release();
}

void X11PasteKeys::receive(const X11PasteKeyGrab::Held& held) {
    if (m_grab == nullptr || !held.isHeld->load())
        return;
    const auto told = onPress; // the callback may stop the listening
    auto key = std::make_shared<Key>(m_link, held);
    if (told)
        told(held.press, std::move(key));
}

void X11PasteKeys::letGo(const X11PasteKeyGrab::Held& held, HeldKey::Contents contents) {
    if (m_grab == nullptr)
        return;
    if (contents == HeldKey::Contents::fresh && held.pastesPrimary && m_options.offerAsPrimary)
        m_options.offerAsPrimary();
    const bool looksFirst = contents == HeldKey::Contents::fresh && m_options.looksFirst && m_options.looksFirst();
    QMetaObject::invokeMethod(
        m_grab,
        [grab = m_grab, serial = held.serial, contents, looksFirst] { grab->letGo(serial, contents, looksFirst); },
        Qt::QueuedConnection);
}

} // namespace vellumry
