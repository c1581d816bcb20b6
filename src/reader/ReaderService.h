// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "reader/ImageSummariser.h"
#include "reader/PictureReader.h"

#include <chrono>

namespace vellumry {

/// Answers requests on one socket until none has come for a while. One thread.
class ReaderService {
public:
    enum class End {
        idle,     ///< no request for a while, or the other side is gone
        violation ///< the other side does not speak the protocol
    };

    /// `socket` stays the caller's. Without a picture reader, reading fails.
    explicit ReaderService(int socket, std::unique_ptr<PictureReader> pictureReader = nullptr,
                           std::chrono::milliseconds patience = std::chrono::seconds(5))
        : m_socket(socket)
        , m_patience(patience)
        , m_pictureReader(std::move(pictureReader)) {}

    [[nodiscard]] End run();

private:
    [[nodiscard]] readerprotocol::Reply replyTo(const readerprotocol::Request& request, QByteArrayView file);
    [[nodiscard]] readerprotocol::Reply read(QByteArrayView file, int longerSide, PictureReader::Mode mode);
    [[nodiscard]] bool answer(const readerprotocol::Request& request, int picture);

    int m_socket;
    std::chrono::milliseconds m_patience;
    ImageSummariser m_summariser;
    std::unique_ptr<PictureReader> m_pictureReader;
};

} // namespace vellumry
