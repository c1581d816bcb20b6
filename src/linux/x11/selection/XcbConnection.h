// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "foundation/Reason.h"

#include <QByteArray>
#include <QHash>
#include <QString>
#include <QStringList>
#include <cstdlib>
#include <memory>
#include <optional>
#include <span>
#include <vector>
#include <xcb/xcb.h>

namespace vellumry {

struct FreeDeleter {
    void operator()(void* memory) const { std::free(memory); }
};
/// An event or a reply as xcb hands it out.
template <typename T>
using XcbPointer = std::unique_ptr<T, FreeDeleter>;

/// A property as it was found: its type, the width of its elements (8, 16, 32; 0 when it does not exist) and its bytes.
struct XcbProperty {
    xcb_atom_t type = XCB_ATOM_NONE;
    int format = 0;
    QByteArray bytes;
    bool isTooLong = false; ///< there is more than was asked for; `bytes` are empty then
};

/// A connection of its own to the X server, with one invisible window and a memory of atom names. One thread.
class XcbConnection {
public:
    /// Fails when there is no such display, or it lacks XFixes.
    [[nodiscard]] static OrReason<std::unique_ptr<XcbConnection>> create(const QByteArray& displayName);
    ~XcbConnection();
    XcbConnection(const XcbConnection&) = delete;
    XcbConnection& operator=(const XcbConnection&) = delete;

    [[nodiscard]] xcb_connection_t* handle() const { return m_connection; }
    [[nodiscard]] xcb_window_t root() const { return m_root; }
    /// What the window manager of our screen owns as long as it is that (ICCCM 2.8).
    [[nodiscard]] const QString& managerSelection() const { return m_managerSelection; }
    /// The invisible window; PropertyNotify events of it are selected.
    [[nodiscard]] xcb_window_t window() const { return m_window; }
    /// What the events of XFixes count from.
    [[nodiscard]] quint8 xfixesFirstEvent() const { return m_xfixesFirstEvent; }
    [[nodiscard]] int fileDescriptor() const { return xcb_get_file_descriptor(m_connection); }
    [[nodiscard]] bool isBroken() const { return xcb_connection_has_error(m_connection) != 0; }
    /// The longest property that one request may set, in bytes; never more than 256 KiB, so that no reader waits long.
    [[nodiscard]] qsizetype chunkBytes() const { return m_chunkBytes; }

    /// The atom of a name, made when it does not exist. Waits for the server once per name.
    [[nodiscard]] xcb_atom_t atom(const QString& name);
    /// The names of many atoms in one exchange with the server; null strings for atoms that do not exist and for names
    /// beyond 1024 bytes, which no type has: those of office programs hold the title of the document.
    [[nodiscard]] QStringList atomNames(std::span<const xcb_atom_t> atoms);
    /// As `atomNames`, for one.
    [[nodiscard]] QString atomName(xcb_atom_t atom);

    /// Reads a property of ours or another client's window, up to `maxBytes`; nothing when the window or the connection
    /// is gone. With `remove` it is deleted afterwards, whatever came out.
    [[nodiscard]] std::optional<XcbProperty> property(xcb_window_t window, xcb_atom_t name, qint64 maxBytes,
                                                      bool remove);
    void setProperty(xcb_window_t window, xcb_atom_t name, xcb_atom_t type, int format, QByteArrayView bytes);
    void deleteProperty(xcb_window_t window, xcb_atom_t name);
    /// Tells the requestor of a selection where the answer is; no property for a refusal (ICCCM 2.2).
    void notifyRequestor(const xcb_selection_request_event_t& request, xcb_atom_t property);
    /// True for windows of one client: a window's number begins with its client's (X protocol, connection setup).
    [[nodiscard]] bool isSameClient(xcb_window_t one, xcb_window_t other) const;
    /// The client that a window belongs to, as a number.
    [[nodiscard]] quint32 clientOf(xcb_window_t window) const;
    /// The window that has the keyboard; XCB_NONE where that is no window.
    [[nodiscard]] xcb_window_t focusWindow();
    /// The present owner of a selection; XCB_NONE without one.
    [[nodiscard]] xcb_window_t selectionOwner(xcb_atom_t selection);

private:
    XcbConnection() = default;
    std::optional<Reason> open(const QByteArray& displayName);
    void remember(xcb_atom_t atom, const QString& name);

    xcb_connection_t* m_connection = nullptr;
    xcb_window_t m_root = XCB_NONE;
    QString m_managerSelection;
    xcb_window_t m_window = XCB_NONE;
    quint8 m_xfixesFirstEvent = 0;
    qsizetype m_chunkBytes = 0;
    QHash<QString, xcb_atom_t> m_atoms;
    QHash<xcb_atom_t, QString> m_names;
};

} // namespace vellumry
