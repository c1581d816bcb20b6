// SPDX-License-Identifier: GPL-3.0-or-later
#include "linux/x11/drag/DropTarget.h"

#include <algorithm>
#include <array>

namespace vellumry {

namespace {

QByteArray bytesOf(quint32 number) {
    return QByteArray(reinterpret_cast<const char*>(&number), sizeof number);
}

} // namespace

DropTarget::DropTarget(const QByteArray& display, qint16 x, quint32 newest)
    : XPeer(display) {
    const std::array<quint32, 2> values{1, XCB_EVENT_MASK_PROPERTY_CHANGE};
    xcb_destroy_window(m_connection, m_window);
    xcb_create_window(m_connection, XCB_COPY_FROM_PARENT, m_window, m_root, x, 0, 100, 100, 0,
                      XCB_WINDOW_CLASS_INPUT_OUTPUT, XCB_COPY_FROM_PARENT, XCB_CW_OVERRIDE_REDIRECT | XCB_CW_EVENT_MASK,
                      values.data());
    set({m_window, atom("XdndAware")}, XCB_ATOM_ATOM, 32, bytesOf(newest));
    xcb_map_window(m_connection, m_window);
    point(0, 500);
}

void DropTarget::point(qint16 x, qint16 y) {
    xcb_warp_pointer(m_connection, XCB_NONE, m_root, 0, 0, 0, 0, x, y);
    std::free(xcb_query_pointer_reply(m_connection, xcb_query_pointer(m_connection, m_root), nullptr));
}

void DropTarget::work() {
    while (const Reply<xcb_generic_event_t> event{xcb_poll_for_event(m_connection)}) {
        const int kind = event->response_type & 0x7F;
        if (kind == XCB_CLIENT_MESSAGE)
            handle(*reinterpret_cast<const xcb_client_message_event_t*>(event.get()));
        else if (kind == XCB_SELECTION_NOTIFY)
            m_saveAnswer = read(m_window, "SAVED");
    }
    xcb_flush(m_connection);
}

void DropTarget::handle(const xcb_client_message_event_t& message) {
    const QByteArray name = atomName(message.type);
    heard.append(name);
    m_source = message.data.data32[0];
    m_target = message.window;
    if (name == "XdndEnter") {
        version = message.data.data32[1] >> 24;
        types.clear();
        const QByteArray list = read(m_source, "XdndTypeList");
        for (qsizetype at = 0; at + 4 <= list.size(); at += 4) {
            quint32 type = 0;
            std::copy_n(list.constData() + at, sizeof type, reinterpret_cast<char*>(&type));
            types.append(atomName(type));
        }
    } else if (name == "XdndPosition" && answers) {
        send("XdndStatus", accepts ? 1 : 0);
    }
}

void DropTarget::finish() {
    send("XdndFinished", 1);
}

void DropTarget::send(const QByteArray& name, quint32 one) {
    xcb_client_message_event_t event{};
    event.response_type = XCB_CLIENT_MESSAGE;
    event.format = 32;
    event.window = m_source;
    event.type = atom(name);
    event.data.data32[0] = m_target;
    event.data.data32[1] = one;
    xcb_send_event(m_connection, 0, m_source, XCB_EVENT_MASK_NO_EVENT, reinterpret_cast<const char*>(&event));
    xcb_flush(m_connection);
}

QByteArray DropTarget::read(xcb_window_t window, const QByteArray& property) {
    const Reply<xcb_get_property_reply_t> reply(xcb_get_property_reply(
        m_connection, xcb_get_property(m_connection, 0, window, atom(property), XCB_ATOM_ANY, 0, 4096), nullptr));
    if (!reply)
        return {};
    return QByteArray(static_cast<const char*>(xcb_get_property_value(reply.get())),
                      xcb_get_property_value_length(reply.get()));
}

QByteArray DropTarget::offeredName() {
    return read(m_source, "XdndDirectSave0");
}

void DropTarget::askToSave(const QByteArray& address) {
    set({m_source, atom("XdndDirectSave0")}, atom("text/plain"), 8, address);
    xcb_convert_selection(m_connection, m_window, atom("XdndSelection"), atom("XdndDirectSave0"), atom("SAVED"),
                          XCB_CURRENT_TIME);
    xcb_flush(m_connection);
}

void DropTarget::askToSaveFrom(const DropTarget& other, const QByteArray& address) {
    m_source = other.m_source;
    askToSave(address);
}

void DropTarget::setProxy(const DropTarget& proxy) {
    set({m_window, atom("XdndProxy")}, XCB_ATOM_WINDOW, 32, bytesOf(proxy.m_window));
    set({proxy.m_window, atom("XdndProxy")}, XCB_ATOM_WINDOW, 32, bytesOf(proxy.m_window));
    std::free(xcb_get_input_focus_reply(m_connection, xcb_get_input_focus(m_connection), nullptr));
}

} // namespace vellumry
