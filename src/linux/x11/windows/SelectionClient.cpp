// SPDX-License-Identifier: GPL-3.0-or-later
#include "linux/x11/windows/SelectionClient.h"

#include <QByteArrayList>
#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <iterator>
#include <memory>
#include <utility>

#include <X11/Xlib-xcb.h>

namespace vellumry {

namespace {

struct FreeDeleter {
    void operator()(void* memory) const { std::free(memory); }
};
template <typename Reply>
using Answer = std::unique_ptr<Reply, FreeDeleter>;

/// More than any property read here may need, in 32-bit units: a foreign window may carry megabytes.
constexpr std::uint32_t longestProperty = 4096;

/// A property that the server was asked for; its answer is waited for when it is taken, and never twice. Errors of
/// windows that have gone meanwhile come with the answer and reach no handler.
class AskedProperty {
public:
    AskedProperty(xcb_connection_t* connection, XWindow window, XAtom property)
        : m_connection(connection)
        , m_cookie(xcb_get_property(connection, 0, static_cast<xcb_window_t>(window), static_cast<xcb_atom_t>(property),
                                    XCB_GET_PROPERTY_TYPE_ANY, 0, longestProperty)) {}
    AskedProperty(AskedProperty&& other) noexcept
        : m_connection(std::exchange(other.m_connection, nullptr))
        , m_cookie(other.m_cookie) {}
    AskedProperty& operator=(AskedProperty&&) = delete;
    ~AskedProperty() {
        if (m_connection)
            xcb_discard_reply(m_connection, m_cookie.sequence);
    }

    [[nodiscard]] QByteArray bytes() {
        const auto reply = take();
        return reply && reply->format == 8 ? QByteArray(valueOf(*reply), lengthOf(*reply)) : QByteArray();
    }
    [[nodiscard]] QString text() {
        const QByteArray all = bytes();
        return QString::fromUtf8(all.constData(), qsizetype(qstrnlen(all.constData(), size_t(all.size()))));
    }
    [[nodiscard]] std::vector<std::uint32_t> numbers() {
        const auto reply = take();
        if (!reply || reply->format != 32)
            return {};
        const auto* const values = reinterpret_cast<const std::uint32_t*>(valueOf(*reply));
        return {values, values + lengthOf(*reply) / 4};
    }

private:
    [[nodiscard]] Answer<xcb_get_property_reply_t> take() {
        xcb_generic_error_t* error = nullptr;
        Answer<xcb_get_property_reply_t> reply(
            xcb_get_property_reply(std::exchange(m_connection, nullptr), m_cookie, &error));
        std::free(error);
        return reply;
    }
    static const char* valueOf(const xcb_get_property_reply_t& reply) {
        return static_cast<const char*>(xcb_get_property_value(&reply));
    }
    static qsizetype lengthOf(const xcb_get_property_reply_t& reply) { return xcb_get_property_value_length(&reply); }

    xcb_connection_t* m_connection;
    xcb_get_property_cookie_t m_cookie;
};

/// All that is asked of a window.
struct AskedWindow {
    AskedWindow(XlibConnection& x, xcb_connection_t* connection, XWindow window)
        : windowClass(connection, window, x.atom("WM_CLASS"))
        , process(connection, window, x.atom("_NET_WM_PID"))
        , gtkApplication(connection, window, x.atom("_GTK_APPLICATION_ID"))
        , kdeDesktopFile(connection, window, x.atom("_KDE_NET_WM_DESKTOP_FILE")) {}

    AskedProperty windowClass;
    AskedProperty process;
    AskedProperty gtkApplication;
    AskedProperty kdeDesktopFile;
};

std::vector<xcb_window_t> childrenOf(xcb_connection_t* connection, xcb_query_tree_cookie_t cookie) {
    xcb_generic_error_t* error = nullptr;
    const Answer<xcb_query_tree_reply_t> tree(xcb_query_tree_reply(connection, cookie, &error));
    std::free(error);
    if (!tree)
        return {};
    const xcb_window_t* const children = xcb_query_tree_children(tree.get());
    return {children, children + xcb_query_tree_children_length(tree.get())};
}

/// The windows of the selection's owner; one trip.
std::vector<xcb_window_t> windowsOfOwner(XlibConnection& x, xcb_connection_t* connection, const char* selection) {
    const auto root = static_cast<xcb_window_t>(x.root());
    const auto ownerCookie = xcb_get_selection_owner(connection, static_cast<xcb_atom_t>(x.atom(selection)));
    AskedProperty managed(connection, root, x.atom("_NET_CLIENT_LIST"));
    const auto treeCookie = xcb_query_tree(connection, root);
    xcb_generic_error_t* error = nullptr;
    const Answer<xcb_get_selection_owner_reply_t> answer(
        xcb_get_selection_owner_reply(connection, ownerCookie, &error));
    std::free(error);
    const xcb_window_t owner = answer ? answer->owner : XCB_NONE;
    std::vector<xcb_window_t> windows = managed.numbers();
    std::ranges::copy(childrenOf(connection, treeCookie), std::back_inserter(windows));
    // A window's number begins with its client's; the server tells every client which bits are left to it.
    const std::uint32_t clientBits = ~xcb_get_setup(connection)->resource_id_mask;
    std::erase_if(windows, [&](xcb_window_t window) { return ((window ^ owner) & clientBits) != 0; });
    if (owner <= 1)
        windows.clear();
    return windows;
}

} // namespace

std::optional<SelectionClient> SelectionClient::of(XlibConnection& x, const char* selection) {
    xcb_connection_t* const connection = XGetXCBConnection(x.display());
    std::vector<AskedWindow> asked;
    for (const xcb_window_t window : windowsOfOwner(x, connection, selection))
        asked.emplace_back(x, connection, window);
    for (AskedWindow& window : asked) {
        const QByteArrayList names = window.windowClass.bytes().split('\0');
        SelectionClient client;
        client.windowClass = {QString::fromUtf8(names.value(0)), QString::fromUtf8(names.value(1))};
        if (client.windowClass == windowproperties::WindowClass())
            continue;
        const auto process = window.process.numbers();
        client.process = process.empty() ? 0 : qint64(process.front());
        client.gtkApplication = window.gtkApplication.text();
        client.kdeDesktopFile = window.kdeDesktopFile.text();
        return client;
    }
    return std::nullopt;
}

} // namespace vellumry
