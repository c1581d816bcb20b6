// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "linux/x11/selection/XPeer.h"

#include <QByteArrayList>
#include <vector>

namespace vellumry {

/// A program with one window that hears of drags, and with the pointer at its command.
class DropTarget : public XPeer {
public:
    /// The window stands at `x`, 0, a hundred pixels wide and high; it speaks the protocol up to version `newest`.
    DropTarget(const QByteArray& display, qint16 x, quint32 newest = 5);

    bool accepts = true;
    bool answers = true;
    /// The messages that came, by their names.
    QByteArrayList heard;
    /// What the last drag said that it carries, and by what version it spoke.
    QByteArrayList types;
    quint32 version = 0;

    void point(qint16 x, qint16 y);
    /// Handles what has arrived.
    void work();
    /// Says that it has all that it wants.
    void finish();
    [[nodiscard]] bool hears(const QByteArray& name) const { return heard.contains(name); }
    /// Sets the destination of the direct save and requests it; `work` receives the answer.
    void askToSave(const QByteArray& address);
    /// The same in the drag that `other` heard of.
    void askToSaveFrom(const DropTarget& other, const QByteArray& address);
    [[nodiscard]] QByteArray saveAnswer() const { return m_saveAnswer; }
    [[nodiscard]] QByteArray offeredName();
    /// Messages for this window go to that one.
    void setProxy(const DropTarget& proxy);

private:
    void handle(const xcb_client_message_event_t& message);
    void send(const QByteArray& name, quint32 one);
    [[nodiscard]] QByteArray read(xcb_window_t window, const QByteArray& property);

    xcb_window_t m_source = XCB_NONE;
    xcb_window_t m_target = XCB_NONE; ///< that the messages are about
    QByteArray m_saveAnswer;
};

} // namespace vellumry
