// SPDX-License-Identifier: GPL-3.0-or-later
#include "linux/x11/selection/XcbBuffers.h"

#include <array>
#include <chrono>
#include <ctime>
#include <sys/ioctl.h>
#include <vector>

namespace vellumry {

namespace {

/// XCB_QUEUE_BUFFER_SIZE.
constexpr int bufferSize = 16 * 1024;
constexpr int requestHeader = 24;
/// With it, a request is 256 bytes long and so many of them fill the buffer to its last byte.
constexpr std::array<char, 256 - requestHeader> zeros{};
constexpr int requests = bufferSize / 256;
constexpr std::chrono::milliseconds patience{20};

constexpr timespec pause{0, 200'000};

/// xcb fills its buffer with what there is when it looks, so it must not look too early.
void waitForABufferful(int descriptor) {
    const auto end = std::chrono::steady_clock::now() + patience;
    int waiting = 0;
    while (ioctl(descriptor, FIONREAD, &waiting) == 0 && waiting < bufferSize && std::chrono::steady_clock::now() < end)
        nanosleep(&pause, nullptr);
}

} // namespace

void overwriteBuffers(XcbConnection& connection) {
    xcb_connection_t* const handle = connection.handle();
    // No client selects events on a window of our own.
    const xcb_window_t window = xcb_generate_id(handle);
    xcb_create_window(handle, XCB_COPY_FROM_PARENT, window, connection.root(), 0, 0, 1, 1, 0,
                      XCB_WINDOW_CLASS_INPUT_ONLY, XCB_COPY_FROM_PARENT, 0, nullptr);
    xcb_flush(handle);
    for (int i = 0; i < requests; ++i)
        xcb_change_property(handle, XCB_PROP_MODE_REPLACE, window, XCB_ATOM_STRING, XCB_ATOM_STRING, 8, zeros.size(),
                            zeros.data());
    xcb_flush(handle);

    // An answer is 8 bytes longer than the request was, so that they are more than a bufferful.
    std::vector<xcb_get_property_cookie_t> cookies;
    for (int i = 0; i < requests; ++i)
        cookies.push_back(xcb_get_property(handle, 0, window, XCB_ATOM_STRING, XCB_ATOM_STRING, 0, zeros.size() / 4));
    xcb_flush(handle);
    waitForABufferful(connection.fileDescriptor());
    for (const xcb_get_property_cookie_t cookie : cookies)
        const XcbPointer<xcb_get_property_reply_t> reply(xcb_get_property_reply(handle, cookie, nullptr));
    xcb_destroy_window(handle, window);
    xcb_flush(handle);
}

} // namespace vellumry
