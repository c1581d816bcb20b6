// SPDX-License-Identifier: GPL-3.0-or-later
#include "VipsLibrary.h"

#include <dlfcn.h>

namespace vellumry::bench {

namespace {

template <typename Function>
bool find(void* library, const char* name, Function& function) {
    function = reinterpret_cast<Function>(dlsym(library, name));
    return function != nullptr;
}

} // namespace

std::optional<VipsLibrary> VipsLibrary::open() {
    void* const library = dlopen("libvips.so.42", RTLD_NOW | RTLD_GLOBAL);
    if (!library)
        return std::nullopt;
    VipsLibrary vips;
    int (*initialise)(const char*) = nullptr;
    void (*useThreads)(int) = nullptr;
    void (*keepResults)(int) = nullptr;
    const bool isWhole = find(library, "vips_init", initialise) && find(library, "vips_concurrency_set", useThreads) &&
                         find(library, "vips_cache_set_max", keepResults) &&
                         find(library, "vips_thumbnail_buffer", vips.m_shrink) &&
                         find(library, "vips_pngsave_buffer", vips.m_writePng) &&
                         find(library, "g_object_unref", vips.m_release) && find(library, "g_free", vips.m_free);
    if (!isWhole || initialise("bench") != 0)
        return std::nullopt;
    useThreads(1);
    // The same picture asked for twice must be opened twice.
    keepResults(0);
    return vips;
}

QByteArray VipsLibrary::thumbnail(const QByteArray& file, int pixels) const {
    Image* image = nullptr;
    void* bytes = nullptr;
    std::size_t size = 0;
    void* const end = nullptr;
    if (m_shrink(const_cast<char*>(file.constData()), static_cast<std::size_t>(file.size()), &image, pixels, "height",
                 pixels, end) != 0)
        return {};
    const int outcome = m_writePng(image, &bytes, &size, end);
    m_release(image);
    if (outcome != 0)
        return {};
    QByteArray png(static_cast<const char*>(bytes), static_cast<qsizetype>(size));
    m_free(bytes);
    return png;
}

} // namespace vellumry::bench
