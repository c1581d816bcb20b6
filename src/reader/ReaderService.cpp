// SPDX-License-Identifier: GPL-3.0-or-later
#include "reader/ReaderService.h"

#include "reader/PictureDecoder.h"
#include "reader/ReaderSandbox.h"
#include "reader/ReaderSocket.h"

#ifdef __GLIBC__
#include <malloc.h>
#endif
#include <new>
#include <sys/mman.h>
#include <sys/socket.h>
#include <sys/stat.h>

namespace vellumry {

namespace {

/// The asking side ends a slower reader by the clock; these end one that is no longer watched.
constexpr unsigned processorSeconds = 20;
constexpr unsigned processorSecondsForReading = 180;
constexpr std::chrono::seconds transferTime{10};

/// A picture's bytes, shared with the process that sent them.
class MappedPicture {
public:
    explicit MappedPicture(int descriptor) {
        struct stat status {};
        if (fstat(descriptor, &status) != 0 || status.st_size <= 0)
            return;
        m_size = static_cast<std::size_t>(status.st_size);
        m_memory = mmap(nullptr, m_size, PROT_READ, MAP_PRIVATE, descriptor, 0);
    }
    MappedPicture(const MappedPicture&) = delete;
    MappedPicture& operator=(const MappedPicture&) = delete;
    ~MappedPicture() {
        if (m_memory != MAP_FAILED)
            munmap(m_memory, m_size);
    }

    [[nodiscard]] QByteArrayView bytes() const {
        if (m_memory == MAP_FAILED)
            return {};
        return {static_cast<const char*>(m_memory), static_cast<qsizetype>(m_size)};
    }

private:
    void* m_memory = MAP_FAILED;
    std::size_t m_size = 0;
};

/// What a large picture took is not kept for the next one, which may be small or never come.
void giveMemoryBack() {
#ifdef __GLIBC__
    malloc_trim(0);
#endif
}

bool isAtEnd(int socket) {
    char byte = 0;
    return recv(socket, &byte, 1, MSG_PEEK | MSG_DONTWAIT) == 0;
}

} // namespace

ReaderService::End ReaderService::run() {
    using readersocket::Clock;
    while (readersocket::waitForInput(m_socket, Clock::now() + m_patience)) {
        if (isAtEnd(m_socket))
            return End::idle;
        const auto message =
            readersocket::receive(m_socket, readerprotocol::maxRequestBytes, Clock::now() + transferTime);
        const auto request = message ? readerprotocol::decodeRequest(message->bytes) : std::nullopt;
        if (!request)
            return End::violation;
        if (!answer(*request, message->attached.get()))
            return End::violation;
        giveMemoryBack();
    }
    return End::idle;
}

readerprotocol::Reply ReaderService::read(QByteArrayView file, int longerSide, PictureReader::Mode mode) {
    readersandbox::allowProcessorSeconds(processorSecondsForReading);
    readerprotocol::Reply reply;
    reply.lacksEngine = !m_pictureReader;
    if (reply.lacksEngine)
        return reply;
    QImage picture = picturedecoder::imageForReading(file, longerSide);
    if (picture.isNull())
        return reply;
    reply.pixelSize = picture.size();
    try {
        reply.text = m_pictureReader->read(std::move(picture), mode);
    } catch (const std::bad_alloc&) {
        reply.text.reset();
    }
    return reply;
}

readerprotocol::Reply ReaderService::replyTo(const readerprotocol::Request& request, QByteArrayView file) {
    using readerprotocol::Operation;
    switch (request.operation) {
    case Operation::readFast:
        return read(file, request.pixels, PictureReader::Mode::fast);
    case Operation::readAccurately:
        return read(file, request.pixels, PictureReader::Mode::accurate);
    case Operation::preview:
        readersandbox::allowProcessorSeconds(processorSeconds);
        return m_summariser.preview(file, request.pixels);
    case Operation::summarise:
        break;
    }
    readersandbox::allowProcessorSeconds(processorSeconds);
    return m_summariser.summarise(file, request.pixels);
}

bool ReaderService::answer(const readerprotocol::Request& request, int picture) {
    const MappedPicture file(picture);
    readerprotocol::Reply reply = replyTo(request, file.bytes());
    reply.id = request.id;
    auto message = readerprotocol::encode(reply);
    if (!message) {
        reply.thumbnail.reset();
        reply.text.reset();
        message = readerprotocol::encode(reply);
    }
    return message && readersocket::send(m_socket, *message, -1, readersocket::Clock::now() + transferTime);
}

} // namespace vellumry
