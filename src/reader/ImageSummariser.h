// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "reader/ReaderProtocol.h"

namespace vellumry {

/// Tells what is worth knowing of a picture. Runs in the reader process, where a crafted
/// file can do no more than end it. One thread.
class ImageSummariser {
public:
    /// A picture with more pixels than this is not decoded.
    static constexpr qint64 maxArea = 250'000'000;

    /// Loads the decoders: from here on no file is opened.
    ImageSummariser();

    /// The size as stored, an upright thumbnail that is never larger than the picture, and the marks. Empty for bytes
    /// that are no picture. `file` must stay where it is meanwhile; it is not copied. The reply carries no identity.
    [[nodiscard]] readerprotocol::Reply summarise(QByteArrayView file, int thumbnailPixels) const;
    /// The picture at a size to look at; no size, no marks. Empty as above.
    [[nodiscard]] readerprotocol::Reply preview(QByteArrayView file, int longerSide) const;
};

} // namespace vellumry
