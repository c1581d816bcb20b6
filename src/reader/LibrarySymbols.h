// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <dlfcn.h>

namespace vellumry {

/// Looks up the functions of a library that was loaded at run time, and remembers whether one was missing. One thread.
class LibrarySymbols {
public:
    /// `handle` is dlopen(3)'s.
    explicit LibrarySymbols(void* handle)
        : m_handle(handle) {}

    template <typename Function>
    void find(Function& function, const char* name) {
        function = reinterpret_cast<Function>(dlsym(m_handle, name));
        m_isComplete = m_isComplete && function;
    }
    [[nodiscard]] bool isComplete() const { return m_isComplete; }

private:
    void* m_handle;
    bool m_isComplete = true;
};

} // namespace vellumry
