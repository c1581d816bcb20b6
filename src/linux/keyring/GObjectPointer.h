// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <glib-object.h>
#include <memory>

namespace vellumry {

struct GObjectUnreference {
    void operator()(gpointer object) const { g_object_unref(object); }
};

/// Owns one reference to a GObject. Any thread.
template <typename Object>
using GObjectPointer = std::unique_ptr<Object, GObjectUnreference>;

/// Receives the error of a GLib call and frees it.
class GErrorReceiver {
public:
    GErrorReceiver() = default;
    GErrorReceiver(const GErrorReceiver&) = delete;
    GErrorReceiver& operator=(const GErrorReceiver&) = delete;
    ~GErrorReceiver() { g_clear_error(&m_error); }

    /// Where the call writes its error; an error of an earlier call is dropped.
    [[nodiscard]] GError** receive() {
        g_clear_error(&m_error);
        return &m_error;
    }
    [[nodiscard]] explicit operator bool() const { return m_error != nullptr; }
    [[nodiscard]] bool is(GQuark domain, int code) const { return g_error_matches(m_error, domain, code); }

private:
    GError* m_error = nullptr;
};

} // namespace vellumry
