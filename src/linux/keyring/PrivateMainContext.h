// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <glib.h>

namespace vellumry {

/// A main context for what GIO wants to tell this thread, as long as it lives. Without one GIO's callbacks pile up for
/// the main thread's context and keep their objects alive there. Made and ended on the same thread.
class PrivateMainContext {
public:
    PrivateMainContext()
        : m_context(g_main_context_new()) {
        g_main_context_push_thread_default(m_context);
    }
    PrivateMainContext(const PrivateMainContext&) = delete;
    PrivateMainContext& operator=(const PrivateMainContext&) = delete;
    ~PrivateMainContext() {
        drain();
        g_main_context_pop_thread_default(m_context);
        g_main_context_unref(m_context);
    }

    /// Delivers what has come, without waiting.
    void drain() {
        while (g_main_context_iteration(m_context, FALSE)) {
        }
    }

private:
    GMainContext* m_context;
};

} // namespace vellumry
