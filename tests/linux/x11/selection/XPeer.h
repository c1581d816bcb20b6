// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <cstdlib>
#include <map>
#include <memory>
#include <utility>
#include <xcb/xcb.h>

namespace vellumry {

/// A client of the X server with a window of its own, sharing nothing with the program's connections.
class XPeer {
public:
    explicit XPeer(const QByteArray& display);
    virtual ~XPeer();
    XPeer(const XPeer&) = delete;
    XPeer& operator=(const XPeer&) = delete;

    [[nodiscard]] bool isConnected() const { return m_connection != nullptr; }
    [[nodiscard]] int fileDescriptor() const { return xcb_get_file_descriptor(m_connection); }
    [[nodiscard]] xcb_atom_t atom(const QByteArray& name);
    [[nodiscard]] QByteArray atomName(xcb_atom_t atom);
    [[nodiscard]] bool owns(const QByteArray& selection);
    [[nodiscard]] bool hasOwner(const QByteArray& selection);
    /// Closes the connection, as a program that ends.
    void leave();

protected:
    using Destination = std::pair<xcb_window_t, xcb_atom_t>;
    struct Free {
        void operator()(void* memory) const { std::free(memory); }
    };
    template <typename T>
    using Reply = std::unique_ptr<T, Free>;

    void set(Destination destination, xcb_atom_t type, int format, const QByteArray& bytes);

    xcb_connection_t* m_connection = nullptr;
    xcb_window_t m_root = XCB_NONE;
    xcb_window_t m_window = XCB_NONE;

private:
    std::map<QByteArray, xcb_atom_t> m_atoms;
};

} // namespace vellumry
