// SPDX-License-Identifier: GPL-3.0-or-later
// Becoming the owner of a selection, and ceasing to be.
#include "linux/x11/selection/PasteboardEngine.h"

#include <utility>

namespace vellumry {

void PasteboardEngine::claim(Claim claim) {
    if (m_ended) {
        claim.result.deliver(std::nullopt);
        return;
    }
    if (claim.isTakeover) {
        // At the time when it was left: the server then refuses if another program was faster, whether or not we have
        // heard of that yet.
        if (m_goneSince && !claim.isWithdrawn->load() && m_connection->selectionOwner(m_clipboard) == XCB_NONE)
            settleClaim(claim, *m_goneSince);
        else
            claim.result.deliver(std::nullopt);
        return;
    }
    askForServerTime([this, claim = std::move(claim)](std::optional<xcb_timestamp_t> time) {
        if (time && !claim.isWithdrawn->load())
            settleClaim(claim, *time);
        else
            claim.result.deliver(std::nullopt);
    });
}

void PasteboardEngine::catchUp(OneShot<bool> result) {
    if (m_ended) {
        result.deliver(false);
        return;
    }
    // The server tells things in their order.
    askForServerTime([result](std::optional<xcb_timestamp_t> time) { result.deliver(time.has_value()); });
}

void PasteboardEngine::settleClaim(const Claim& claim, xcb_timestamp_t time) {
    const xcb_atom_t selection = claim.isPrimary ? xcb_atom_t(XCB_ATOM_PRIMARY) : m_clipboard;
    xcb_set_selection_owner(m_connection->handle(), m_connection->window(), selection, time);
    if (m_connection->selectionOwner(selection) != m_connection->window()) {
        claim.result.deliver(std::nullopt);
        return;
    }
    m_owner.hold(selection, claim.contents, time);
    if (claim.isPrimary) {
        claim.result.deliver(changeCount());
        return;
    }
    // The change count of this ownership is known when the server's notice of it is read.
    m_wasServed.store(false, std::memory_order_release);
    m_wasListed.store(false, std::memory_order_release);
    finishClaim(std::nullopt);
    m_unconfirmed = claim;
    m_unconfirmedTime = time;
}

void PasteboardEngine::finishClaim(std::optional<qint64> count) {
    if (m_unconfirmed)
        m_unconfirmed->result.deliver(count);
    m_unconfirmed.reset();
}

void PasteboardEngine::disown(const std::shared_ptr<const OfferedContents>& contents) {
    if (m_ended)
        return;
    for (const xcb_atom_t selection : {m_clipboard, xcb_atom_t(XCB_ATOM_PRIMARY)})
        disownSelection(selection, contents);
}

void PasteboardEngine::disownSelection(xcb_atom_t selection, const std::shared_ptr<const OfferedContents>& contents) {
    if (m_owner.contents(selection) != contents)
        return;
    const xcb_timestamp_t since = m_owner.since(selection);
    m_owner.release(selection);
    // At the time of our ownership: the server then lets an owner stand that comes between question and request.
    if (m_connection->selectionOwner(selection) == m_connection->window())
        xcb_set_selection_owner(m_connection->handle(), XCB_NONE, selection, since);
}

} // namespace vellumry
