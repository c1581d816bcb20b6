// SPDX-License-Identifier: GPL-3.0-or-later
#include "linux/wayland/keys/WaylandPasteTarget.h"

#include "linux/keys/FocusReturn.h"
#include "linux/keys/TerminalApps.h"

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

void WaylandPasteTarget::requestTrust() {
    if (m_injector)
        m_injector->requestPermission();
}

QCoro::Task<bool> WaylandPasteTarget::regainFocus() {
    const QPointer<QObject> self(this);
    if (m_injector) {
        auto preparing = m_injector->prepare();
        const bool isPrepared = co_await preparing;
        if (self == nullptr || !isPrepared)
            co_return false;
    }
    settleQt();
    auto returning = focusReturned(m_focus, self, m_options.focusDeadline);
    co_return co_await returning;
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
    return window != nullptr && terminalapps::contains({window->applicationID}, userNames);
}

} // namespace vellumry
