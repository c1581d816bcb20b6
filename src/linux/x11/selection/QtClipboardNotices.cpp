// SPDX-License-Identifier: GPL-3.0-or-later
#include "linux/x11/selection/QtClipboardNotices.h"

#include <QGuiApplication>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <span>
#include <xcb/xfixes.h>

namespace vellumry {

namespace {

struct Free {
    void operator()(void* reply) const { std::free(reply); }
};
template <typename Reply>
using Owned = std::unique_ptr<Reply, Free>;

xcb_atom_t atomOf(xcb_connection_t* connection, const char* name) {
    const auto asked = xcb_intern_atom(connection, 1, static_cast<std::uint16_t>(std::strlen(name)), name);
    const Owned<xcb_intern_atom_reply_t> reply(xcb_intern_atom_reply(connection, asked, nullptr));
    return reply ? reply->atom : XCB_NONE;
}

} // namespace

void stopQtClipboardNotices() {
    const auto* native = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
    if (native == nullptr || native->connection() == nullptr)
        return;
    xcb_connection_t* const connection = native->connection();
    const xcb_setup_t* const setup = xcb_get_setup(connection);
    const xcb_atom_t clipboard = atomOf(connection, "CLIPBOARD");
    for (auto screen = xcb_setup_roots_iterator(setup); screen.rem > 0; xcb_screen_next(&screen)) {
        const Owned<xcb_query_tree_reply_t> tree(
            xcb_query_tree_reply(connection, xcb_query_tree(connection, screen.data->root), nullptr));
        if (!tree)
            continue;
        const std::span windows(xcb_query_tree_children(tree.get()),
                                static_cast<std::size_t>(xcb_query_tree_children_length(tree.get())));
        for (const xcb_window_t window : windows) {
            // Qt asks in the name of a window of its own, which it does not tell; the others have asked for nothing.
            if ((window & ~setup->resource_id_mask) != setup->resource_id_base)
                continue;
            for (const xcb_atom_t selection : {xcb_atom_t{XCB_ATOM_PRIMARY}, clipboard})
                xcb_xfixes_select_selection_input(connection, window, selection, 0);
        }
    }
    xcb_flush(connection);
}

} // namespace vellumry
