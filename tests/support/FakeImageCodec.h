// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/files/ImageCodec.h"

#include <utility>
#include <vector>

namespace vellumry {

/// Answers every picture with the same summary, at once, and remembers what it was asked.
class FakeImageCodec : public ImageCodec {
public:
    struct Request {
        QByteArray image;
        int thumbnailPixels;
        bool operator==(const Request&) const = default;
    };

    ImageSummary summary;          ///< the answer; empty at first, as for bytes that are no picture
    std::vector<Request> requests; ///< in the order in which they came
    QByteArray picture;            ///< what every preview looks like
    std::vector<Request> previews; ///< the same for previews

    int preparations = 0; ///< how often it was told that a picture comes
    int rests = 0;        ///< how often it was told that none is expected

    void prepare() override { ++preparations; }
    void rest() override { ++rests; }
    [[nodiscard]] QCoro::Task<ImageSummary> summarise(QByteArray image, int thumbnailPixels) override {
        requests.push_back({std::move(image), thumbnailPixels});
        const ImageSummary answer = summary; // what is returned is moved from
        co_return answer;
    }
    [[nodiscard]] QCoro::Task<QByteArray> preview(QByteArray image, int longerSide) override {
        previews.push_back({std::move(image), longerSide});
        const QByteArray answer = picture;
        co_return answer;
    }
};

} // namespace vellumry
