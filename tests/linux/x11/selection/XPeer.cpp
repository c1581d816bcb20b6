// SPDX-License-Identifier: GPL-3.0-or-later
#include "linux/x11/selection/XPeer.h"

namespace vellumry {

XPeer::XPeer(const QByteArray& display) {
    m_connection = xcb_connect(display.constData(), nullptr);
    if (xcb_connection_has_error(m_connection)) {
        leave();
        return;
    }
    m_root = xcb_setup_roots_iterator(xcb_get_setup(m_connection)).data->root;
    m_window = xcb_generate_id(m_connection);
    const quint32 events = XCB_EVENT_MASK_PROPERTY_CHANGE;
    xcb_create_window(m_connection, XCB_COPY_FROM_PARENT, m_window, m_root, 0, 0, 1, 1, 0, XCB_WINDOW_CLASS_INPUT_ONLY,
                      XCB_COPY_FROM_PARENT, XCB_CW_EVENT_MASK, &events);
}

XPeer::~XPeer() {
    leave();
}

void XPeer::leave() {
    if (m_connection)
        xcb_disconnect(m_connection);
    m_connection = nullptr;
}

xcb_atom_t XPeer::atom(const QByteArray& name) {
    if (const auto known = m_atoms.find(name); known != m_atoms.end())
        return known->second;
    const auto cookie = xcb_intern_atom(m_connection, 0, static_cast<quint16>(name.size()), name.constData());
    const Reply<xcb_intern_atom_reply_t> reply(xcb_intern_atom_reply(m_connection, cookie, nullptr));
    const xcb_atom_t atom = reply ? reply->atom : xcb_atom_t(XCB_ATOM_NONE);
    m_atoms[name] = atom;
    return atom;
}

QByteArray XPeer::atomName(xcb_atom_t atom) {
    const Reply<xcb_get_atom_name_reply_t> reply(
        xcb_get_atom_name_reply(m_connection, xcb_get_atom_name(m_connection, atom), nullptr));
    return reply ? QByteArray(xcb_get_atom_name_name(reply.get()), reply->name_len) : QByteArray();
}

bool XPeer::owns(const QByteArray& selection) {
    const Reply<xcb_get_selection_owner_reply_t> reply(
        xcb_get_selection_owner_reply(m_connection, xcb_get_selection_owner(m_connection, atom(selection)), nullptr));
    return reply && reply->owner == m_window;
}

bool XPeer::hasOwner(const QByteArray& selection) {
    const Reply<xcb_get_selection_owner_reply_t> reply(
        xcb_get_selection_owner_reply(m_connection, xcb_get_selection_owner(m_connection, atom(selection)), nullptr));
    return reply && reply->owner != XCB_NONE;
}

void XPeer::set(Destination destination, xcb_atom_t type, int format, const QByteArray& bytes) {
    xcb_change_property(m_connection, XCB_PROP_MODE_REPLACE, destination.first, destination.second, type,
                        static_cast<quint8>(format), static_cast<quint32>(bytes.size() / (format / 8)),
                        bytes.constData());
}

} // namespace vellumry
