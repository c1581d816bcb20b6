// SPDX-License-Identifier: GPL-3.0-or-later
#include "linux/accessibility/PasswordFocus.h"

#include "linux/accessibility/AccessibilityBus.h"
#include "linux/keyring/CallDeadline.h"

#include <algorithm>
#include <iterator>

namespace vellumry {

namespace {

using Node = AccessibilityBus::Node;
using Role = AccessibilityBus::Role;

/// Looks at what shows below the window, object by object, as toolkits without the Collection interface want it.
bool walkFindsPasswordFocus(const AccessibilityBus& bus, const Node& window, const CallDeadline& deadline) {
    std::vector<Node> waiting = bus.children(window);
    while (!waiting.empty() && !deadline.hasPassed()) {
        const Node node = std::move(waiting.back());
        waiting.pop_back();
        const quint64 states = bus.states(node);
        if (AccessibilityBus::has(states, AccessibilityBus::focused) && bus.roleOf(node) == Role::passwordText)
            return true;
        if (!AccessibilityBus::has(states, AccessibilityBus::showing))
            continue;
        for (Node& child : bus.children(node))
            waiting.push_back(std::move(child));
    }
    return false;
}

std::vector<Node> typedIn(const AccessibilityBus& bus, const Node& application) {
    std::vector<Node> windows = bus.children(application);
    std::vector<Node> active;
    std::ranges::copy_if(windows, std::back_inserter(active), [&bus](const Node& window) {
        return AccessibilityBus::has(bus.states(window), AccessibilityBus::active);
    });
    return active.empty() ? windows : active;
}

bool hasPasswordFocus(qint64 process, std::chrono::milliseconds limit) {
    const CallDeadline deadline(limit);
    const AccessibilityBus bus(deadline.cancellable());
    for (const Node& application : bus.applicationsOf(process)) {
        for (const Node& window : typedIn(bus, application)) {
            const auto answer = bus.contains(window, Role::passwordText, AccessibilityBus::focused);
            if (answer.has_value() ? *answer : walkFindsPasswordFocus(bus, window, deadline))
                return true;
        }
    }
    return false;
}

} // namespace

QCoro::Task<bool> PasswordFocus::isIn(qint64 process) {
    if (process <= 0)
        co_return false;
    if (m_executor == nullptr)
        m_executor = std::make_shared<SerialExecutor>("Password focus");
    // Held here too: the caller may go meanwhile.
    const std::shared_ptr<SerialExecutor> executor = m_executor;
    auto asking = executor->run([process, limit = m_deadline] { return hasPasswordFocus(process, limit); });
    co_return co_await asking;
}

} // namespace vellumry
