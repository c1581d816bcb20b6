// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <memory>

namespace vellumry {

/// The destructor request of a proxy. Not a template argument: the generated functions are static in each source.
template <typename Proxy>
struct WaylandDestroyer {
    void (*destroy)(Proxy*) = nullptr;
    void operator()(Proxy* proxy) const { destroy(proxy); }
};

/// Owns a proxy of libwayland.
template <typename Proxy>
using WaylandPointer = std::unique_ptr<Proxy, WaylandDestroyer<Proxy>>;

template <typename Proxy>
[[nodiscard]] WaylandPointer<Proxy> owned(Proxy* proxy, void (*destroy)(Proxy*)) {
    return WaylandPointer<Proxy>(proxy, WaylandDestroyer<Proxy>{destroy});
}

} // namespace vellumry
