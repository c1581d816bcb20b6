// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <optional>

namespace vellumry::bench {

/// libvips, loaded at run time, to measure beside. One thread.
class VipsLibrary {
public:
    /// Nothing where it is not installed. It works on one thread of its own from then on, as the reader does.
    [[nodiscard]] static std::optional<VipsLibrary> open();

    /// The picture as a PNG with `pixels` on its longer side; empty when it cannot be opened.
    [[nodiscard]] QByteArray thumbnail(const QByteArray& file, int pixels) const;

private:
    struct Image;
    // Both end their arguments with names and values of options, and a null pointer (libvips 8.14, C interface).
    using Shrink = int (*)(void* bytes, std::size_t size, Image** out, int width, ...);
    using WritePng = int (*)(Image* in, void** bytes, std::size_t* size, ...);
    using Free = void (*)(void* memory);

    VipsLibrary() = default;

    Shrink m_shrink = nullptr;
    WritePng m_writePng = nullptr;
    Free m_release = nullptr;
    Free m_free = nullptr;
};

} // namespace vellumry::bench
