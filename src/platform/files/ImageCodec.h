// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QCoroTask>
#include <QSize>
#include <optional>

namespace vellumry {

/// What is known of a picture without showing it.
struct ImageSummary {
    /// Width and height in pixels as stored; absent when the header cannot be read.
    std::optional<QSize> pixelSize;
    /// PNG, upright, at most the asked number of pixels on the longer side; absent when the picture cannot be decoded
    /// or has more than 250,000,000 pixels.
    std::optional<QByteArray> thumbnail;
    /// A mark in the file says that it is a screenshot.
    bool isScreenshot = false;

    bool operator==(const ImageSummary&) const = default;
};

/// Opens foreign pictures where they can do no harm. Main thread; the work happens elsewhere, within a deadline.
class ImageCodec {
public:
    virtual ~ImageCodec() = default;
    /// A picture is on its way: whatever must be started to open it starts now, while its bytes still arrive. Returns
    /// at once, and is worth calling only when one really comes.
    virtual void prepare() {}
    /// No picture is expected any more: whatever stands ready for the next one may go, behind those that are being
    /// opened. Returns at once.
    virtual void rest() {}
    /// An empty summary for bytes that are no picture, and when the decoder died or took too long.
    [[nodiscard]] virtual QCoro::Task<ImageSummary> summarise(QByteArray image, int thumbnailPixels) = 0;
    /// The picture to look at: a PNG, upright, at most `longerSide` pixels on its longer side and never larger than it
    /// is, packed quickly rather than tightly. Empty where `summarise` has no thumbnail.
    [[nodiscard]] virtual QCoro::Task<QByteArray> preview(QByteArray image, int longerSide) = 0;
};

} // namespace vellumry
