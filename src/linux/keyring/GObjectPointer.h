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
    /// Which error it is, for the log; its message may quote names that do not belong there.
    [[nodiscard]] const char* domain() const { return m_error ? g_quark_to_string(m_error->domain) : "none"; }
    [[nodiscard]] int code() const { return m_error ? m_error->code : 0; }

private:
    GError* m_error = nullptr;
};

} // namespace vellumry
