// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "reader/HeifLibrary.h"

#include <QByteArray>
#include <QImage>
#include <memory>

namespace vellumry {

/// The first picture of a HEIC file (ISO/IEC 23008-12). Runs in the reader process, where a crafted file can do no more
/// than end it. One thread.
class HeifPicture {
public:
    /// True when the file type box names a brand of pictures coded with HEVC. Linear in the box, which is bounded.
    [[nodiscard]] static bool isOne(QByteArrayView file);

    /// Nothing for bytes that are no such file. `file` must stay where it is as long as the picture lives.
    [[nodiscard]] static std::optional<HeifPicture> open(const HeifLibrary& library, QByteArrayView file);

    /// As stored, before it is cut and turned. Known without decoding.
    [[nodiscard]] QSize size() const { return m_size; }
    /// The picture cut and turned as the file says, eight bits a channel. Null when it cannot be decoded. Throws
    /// std::bad_alloc when there is no memory for it.
    [[nodiscard]] QImage decode() const;
    /// The EXIF block, laid out as a TIFF file; empty when there is none.
    [[nodiscard]] QByteArray exif() const;

private:
    struct ContextDeleter {
        decltype(&heif_context_free) free;
        void operator()(heif_context* context) const { free(context); }
    };
    struct HandleDeleter {
        decltype(&heif_image_handle_release) release;
        void operator()(heif_image_handle* handle) const { release(handle); }
    };
    using Context = std::unique_ptr<heif_context, ContextDeleter>;
    using Handle = std::unique_ptr<heif_image_handle, HandleDeleter>;

    HeifPicture(const HeifLibrary& library, Context context, Handle handle, QSize size)
        : m_library(library)
        , m_context(std::move(context))
        , m_handle(std::move(handle))
        , m_size(size) {}

    HeifLibrary m_library;
    Context m_context;
    Handle m_handle;
    QSize m_size;
};

} // namespace vellumry
