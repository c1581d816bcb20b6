// SPDX-License-Identifier: GPL-3.0-or-later
#include "linux/x11/selection/XcbConnection.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <xcb/xfixes.h>

namespace vellumry {

namespace {

constexpr qsizetype longestTypeName = 1024;
constexpr qsizetype rememberedNames = 4096;
constexpr quint32 pieceBytes = 4 * 1024 * 1024;

} // namespace

OrReason<std::unique_ptr<XcbConnection>> XcbConnection::create(const QByteArray& displayName) {
    std::unique_ptr<XcbConnection> connection(new XcbConnection);
    if (auto problem = connection->open(displayName))
        return std::unexpected(std::move(*problem));
    return connection;
}

XcbConnection::~XcbConnection() {
    if (m_connection)
        xcb_disconnect(m_connection);
}

std::optional<Reason> XcbConnection::open(const QByteArray& displayName) {
    int screenNumber = 0;
    m_connection = xcb_connect(displayName.isEmpty() ? nullptr : displayName.constData(), &screenNumber);
    if (isBroken())
        return Reason{QStringLiteral("the X server does not let us in or does not run")};

    auto screen = xcb_setup_roots_iterator(xcb_get_setup(m_connection));
    for (int i = 0; i < screenNumber && screen.rem > 1; ++i)
        xcb_screen_next(&screen);
    m_root = screen.data->root;
    m_managerSelection = QStringLiteral("WM_S%1").arg(screenNumber);

    const xcb_query_extension_reply_t* xfixes = xcb_get_extension_data(m_connection, &xcb_xfixes_id);
    if (!xfixes || !xfixes->present)
        return Reason{QStringLiteral("the X server lacks XFixes, which tells of changes of the clipboard")};
    m_xfixesFirstEvent = xfixes->first_event;
    const XcbPointer<xcb_xfixes_query_version_reply_t> version(
        xcb_xfixes_query_version_reply(m_connection, xcb_xfixes_query_version(m_connection, 5, 0), nullptr));
    if (!version)
        return Reason{QStringLiteral("the X server does not speak XFixes 5")};

    m_window = xcb_generate_id(m_connection);
    const quint32 events = XCB_EVENT_MASK_PROPERTY_CHANGE;
    xcb_create_window(m_connection, XCB_COPY_FROM_PARENT, m_window, m_root, -1, -1, 1, 1, 0,
                      XCB_WINDOW_CLASS_INPUT_ONLY, XCB_COPY_FROM_PARENT, XCB_CW_EVENT_MASK, &events);

    const qsizetype requestBytes = static_cast<qsizetype>(xcb_get_maximum_request_length(m_connection)) * 4;
    m_chunkBytes = std::min<qsizetype>(256 * 1024, requestBytes - 64);
    return std::nullopt;
}

void XcbConnection::remember(xcb_atom_t atom, const QString& name) {
    // Clients may make up names without end; what the program needs itself is asked for again.
    if (m_names.size() >= rememberedNames) {
        m_names.clear();
        m_atoms.clear();
    }
    m_names.insert(atom, name);
    m_atoms.insert(name, atom);
}

xcb_atom_t XcbConnection::atom(const QString& name) {
    if (const auto known = m_atoms.constFind(name); known != m_atoms.constEnd())
        return *known;
    const QByteArray bytes = name.toUtf8();
    const XcbPointer<xcb_intern_atom_reply_t> reply(xcb_intern_atom_reply(
        m_connection, xcb_intern_atom(m_connection, 0, static_cast<quint16>(bytes.size()), bytes.constData()),
        nullptr));
    if (!reply)
        return XCB_ATOM_NONE;
    remember(reply->atom, name);
    return reply->atom;
}

QStringList XcbConnection::atomNames(std::span<const xcb_atom_t> atoms) {
    // All questions go out before the first answer is waited for.
    std::vector<std::pair<xcb_atom_t, xcb_get_atom_name_cookie_t>> questions;
    QHash<xcb_atom_t, QString> answers;
    for (const xcb_atom_t atom : atoms) {
        if (answers.contains(atom))
            continue;
        answers.insert(atom, m_names.value(atom));
        if (!m_names.contains(atom))
            questions.emplace_back(atom, xcb_get_atom_name(m_connection, atom));
    }
    for (const auto& [atom, cookie] : questions) {
        xcb_generic_error_t* error = nullptr;
        const XcbPointer<xcb_get_atom_name_reply_t> reply(xcb_get_atom_name_reply(m_connection, cookie, &error));
        std::free(error);
        if (!reply || reply->name_len == 0 || reply->name_len > longestTypeName)
            continue;
        const QString name = QString::fromUtf8(xcb_get_atom_name_name(reply.get()), reply->name_len);
        answers.insert(atom, name);
        // A name that is not UTF-8 does not lead back to its atom.
        if (!name.contains(QChar::ReplacementCharacter))
            remember(atom, name);
    }
    QStringList names;
    names.reserve(static_cast<qsizetype>(atoms.size()));
    for (const xcb_atom_t atom : atoms)
        names.append(answers.value(atom));
    return names;
}

QString XcbConnection::atomName(xcb_atom_t atom) {
    return atomNames({&atom, 1}).constFirst();
}

std::optional<XcbProperty> XcbConnection::property(xcb_window_t window, xcb_atom_t name, qint64 maxBytes, bool remove) {
    XcbProperty result;
    bool isWhole = false;
    for (quint32 offset = 0; !isWhole;) {
        // One byte beyond the limit is enough to know that there is too much.
        const qint64 wanted = std::min<qint64>(pieceBytes, maxBytes - result.bytes.size() + 1);
        xcb_generic_error_t* error = nullptr;
        const XcbPointer<xcb_get_property_reply_t> reply(
            xcb_get_property_reply(m_connection,
                                   xcb_get_property(m_connection, 0, window, name, XCB_GET_PROPERTY_TYPE_ANY,
                                                    offset / 4, static_cast<quint32>((wanted + 3) / 4)),
                                   &error));
        std::free(error);
        if (!reply)
            return std::nullopt;
        result.type = reply->type;
        result.format = reply->format;
        const int length = xcb_get_property_value_length(reply.get());
        if (offset == 0)
            result.bytes.reserve(std::min<qint64>(maxBytes, qint64(length) + reply->bytes_after));
        result.bytes.append(static_cast<const char*>(xcb_get_property_value(reply.get())), length);
        offset += static_cast<quint32>(length);
        isWhole = reply->bytes_after == 0;
        if (result.bytes.size() > maxBytes || (!isWhole && (length == 0 || length % 4 != 0)))
            break;
    }
    if (remove)
        deleteProperty(window, name);
    if (result.bytes.size() > maxBytes) {
        result.bytes = {};
        result.isTooLong = true;
    } else if (!isWhole) {
        return std::nullopt;
    }
    return result;
}

void XcbConnection::setProperty(xcb_window_t window, xcb_atom_t name, xcb_atom_t type, int format,
                                QByteArrayView bytes) {
    xcb_change_property(m_connection, XCB_PROP_MODE_REPLACE, window, name, type, static_cast<quint8>(format),
                        static_cast<quint32>(bytes.size() / (format / 8)), bytes.data());
}

void XcbConnection::deleteProperty(xcb_window_t window, xcb_atom_t name) {
    xcb_delete_property(m_connection, window, name);
}

void XcbConnection::notifyRequestor(const xcb_selection_request_event_t& request, xcb_atom_t property) {
    xcb_selection_notify_event_t notice{};
    notice.response_type = XCB_SELECTION_NOTIFY;
    notice.time = request.time;
    notice.requestor = request.requestor;
    notice.selection = request.selection;
    notice.target = request.target;
    notice.property = property;
    // The server copies 32 bytes whatever the event's own size.
    std::array<char, 32> buffer{};
    std::memcpy(buffer.data(), &notice, sizeof notice);
    xcb_send_event(m_connection, 0, request.requestor, XCB_EVENT_MASK_NO_EVENT, buffer.data());
}

quint32 XcbConnection::clientOf(xcb_window_t window) const {
    return window & ~xcb_get_setup(m_connection)->resource_id_mask;
}

bool XcbConnection::isSameClient(xcb_window_t one, xcb_window_t other) const {
    return clientOf(one) == clientOf(other);
}

xcb_window_t XcbConnection::focusWindow() {
    const XcbPointer<xcb_get_input_focus_reply_t> reply(
        xcb_get_input_focus_reply(m_connection, xcb_get_input_focus(m_connection), nullptr));
    return reply && reply->focus != XCB_INPUT_FOCUS_POINTER_ROOT ? reply->focus : xcb_window_t(XCB_NONE);
}

xcb_window_t XcbConnection::selectionOwner(xcb_atom_t selection) {
    const XcbPointer<xcb_get_selection_owner_reply_t> reply(
        xcb_get_selection_owner_reply(m_connection, xcb_get_selection_owner(m_connection, selection), nullptr));
    return reply ? reply->owner : XCB_NONE;
}

} // namespace vellumry
