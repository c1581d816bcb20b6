// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "linux/pasteboard/OfferedContents.h"
#include "linux/x11/drag/XdndTarget.h"
#include "linux/x11/selection/SelectionOwner.h"
#include "linux/x11/selection/XcbConnection.h"
#include "platform/display/DragSource.h"

#include <QObject>
#include <QSocketNotifier>
#include <QTimer>
#include <functional>
#include <memory>
#include <optional>

namespace vellumry {

/// One drag as its source has it in the X Drag and Drop protocol (XDND 5, with Direct Save 0), on a connection of its
/// own: finds the window below the pointer, tells it what comes, and serves the bytes until it has them. Main thread.
class XdndSession : public QObject {
    Q_OBJECT

public:
    /// Null without an X server, or when the selection of drags does not become ours. `saved` is what a target that
    /// saves files itself gets.
    [[nodiscard]] static std::unique_ptr<XdndSession> create(const QByteArray& displayName,
                                                             std::shared_ptr<const OfferedContents> contents,
                                                             std::optional<DragSource::File> saved);

    void move();
    void release();
    void cancel();

    /// Once: a target takes it, or none does.
    std::function<void(DragSource::End)> onDecided = [](DragSource::End) {};
    /// Once, after that: nothing more will be asked for.
    std::function<void()> onDone = [] {};

private:
    XdndSession(std::unique_ptr<XcbConnection> connection, std::shared_ptr<const OfferedContents> contents,
                std::optional<DragSource::File> saved);
    bool own();
    void describe();
    void enter(const XdndTarget& target);
    void leave();
    void sendPosition();
    void send(const QString& message, quint32 one, quint32 two, quint32 three, quint32 four);
    void handleEvents();
    void handleMessage(const xcb_client_message_event_t& message);
    void handleStatus(bool isAccepted);
    bool handleDirectSave(const xcb_selection_request_event_t& request);
    void decide(DragSource::End end);
    void finish();
    [[nodiscard]] xcb_atom_t atom(const char16_t* name) { return m_connection->atom(QString::fromUtf16(name)); }

    std::unique_ptr<XcbConnection> m_connection;
    std::shared_ptr<const OfferedContents> m_contents;
    std::optional<DragSource::File> m_saved;
    SelectionOwner m_owner;
    QSocketNotifier m_notifier;
    QTimer m_patience; ///< with a target that does not answer, or does not accept
    QTimer m_askAgain;
    xcb_timestamp_t m_time = XCB_CURRENT_TIME;
    XdndTarget m_target;
    quint32 m_place = 0; ///< of the pointer on the root window, x above y
    bool m_isAccepted = false;
    bool m_wasRead = false; ///< by the target, before the drop
    bool m_awaitsStatus = false;
    bool m_hasMovedSince = false; ///< while a status was awaited
    bool m_isReleased = false;
    bool m_isDecided = false;
    bool m_isDone = false;
};

} // namespace vellumry
