// SPDX-License-Identifier: GPL-3.0-or-later
#include "linux/wayland/keys/WaylandPasteTarget.h"

#include "foundation/OneShot.h"
#include "linux/keys/TerminalApps.h"

#include <QCoreApplication>
#include <QPointer>
#include <linux/input-event-codes.h>

#include <xkbcommon/xkbcommon-names.h>

namespace vellumry {

namespace {

constexpr KeyInjector::Modifier control{KEY_LEFTCTRL, XKB_MOD_NAME_CTRL};
constexpr KeyInjector::Modifier shift{KEY_LEFTSHIFT, XKB_MOD_NAME_SHIFT};

} // namespace

WaylandPasteTarget::WaylandPasteTarget(std::shared_ptr<WaylandFocus> focus, std::shared_ptr<WaylandKeymap> keymap,
                                       std::unique_ptr<KeyInjector> injector, Options options)
    : m_focus(std::move(focus))
    , m_keymap(std::move(keymap))
    , m_injector(std::move(injector))
    , m_options(std::move(options)) {}

QCoro::Task<bool> WaylandPasteTarget::isSecureInput() {
    const WaylandWindows::Window* window = m_focus->inFront();
    if (!m_options.isPasswordField || window == nullptr)
        co_return false;
    auto asking = m_options.isPasswordField(window->process);
    co_return co_await asking;
}

QCoro::Task<bool> WaylandPasteTarget::regainFocus() {
    const QPointer<WaylandPasteTarget> guard(this);
    const std::shared_ptr<WaylandFocus> focus = m_focus;
    const auto deadline = std::chrono::steady_clock::now() + m_options.focusDeadline;
    settleQt();
    while (guard != nullptr) {
        const WaylandFocus::Standing standing = focus->standing();
        if (standing != WaylandFocus::Standing::away)
            co_return standing == WaylandFocus::Standing::returned;
        const auto left =
            std::chrono::duration_cast<std::chrono::milliseconds>(deadline - std::chrono::steady_clock::now());
        if (left.count() <= 0)
            co_return false;
        const OneShot<void> moved;
        moved.deliverAfter(left);
        // Queued: the wait does not end amid the focus's own doings.
        const auto watching = QObject::connect(
            focus.get(), &WaylandFocus::moved, QCoreApplication::instance(), [moved] { moved.deliver(); },
            Qt::QueuedConnection);
        co_await moved;
        QObject::disconnect(watching);
    }
    co_return false;
}

void WaylandPasteTarget::pressPaste() {
    if (!isTrusted())
        return;
    const quint32 letter = m_keymap->keyTyping(u'v', KEY_V);
    if (!isTerminalInFront())
        m_injector->press({control}, letter);
    else if (m_options.offerAsPrimary && m_options.offerAsPrimary())
        m_injector->press({shift}, KEY_INSERT);
    else
        // Most terminals paste the clipboard on this one; Shift+Insert would paste what the primary selection holds.
        m_injector->press({control, shift}, letter);
}

bool WaylandPasteTarget::isTerminalInFront() const {
    const WaylandWindows::Window* window = m_focus->inFront();
    const QStringList userNames = m_options.terminalApps ? m_options.terminalApps() : QStringList();
    return window != nullptr && TerminalApps::contains({window->applicationID}, userNames);
}

} // namespace vellumry
