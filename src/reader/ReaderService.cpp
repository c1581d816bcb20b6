// SPDX-License-Identifier: GPL-3.0-or-later
#include "reader/ReaderService.h"

#include "reader/ReaderSandbox.h"
#include "reader/ReaderSocket.h"

#include <sys/mman.h>
#include <sys/socket.h>
#include <sys/stat.h>

namespace vellumry {

namespace {

constexpr unsigned processorSeconds = 20;
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
    }
    return End::idle;
}

bool ReaderService::answer(const readerprotocol::Request& request, int picture) {
    readersandbox::allowProcessorSeconds(processorSeconds);
    const MappedPicture file(picture);
    readerprotocol::Reply reply = m_summariser.summarise(file.bytes(), request.thumbnailPixels);
    reply.id = request.id;
    auto message = readerprotocol::encode(reply);
    if (!message) {
        reply.thumbnail.reset();
        message = readerprotocol::encode(reply);
    }
    return message && readersocket::send(m_socket, *message, -1, readersocket::Clock::now() + transferTime);
}

} // namespace vellumry
