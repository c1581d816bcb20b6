// SPDX-License-Identifier: GPL-3.0-or-later
// A reader that misbehaves in the way that the first bytes of the picture ask for: "crash", "hang", "leave" (once, in
// peace, without an answer), "flood" (says that its answer is endless), "lie" (answers another question), "babble" (no
// answer at all, but bytes), "blind" (has no engine that reads), "environment" (tells its variables). Any other picture
// is answered with the size 7 x 9, and with its first bytes for its text.
#include "reader/ReaderProtocol.h"
#include "reader/ReaderSocket.h"

#include <QStringList>

#include <csignal>
#include <cstdlib>
#include <unistd.h>

using namespace vellumry;

namespace {

QByteArray beginningOf(int descriptor) {
    QByteArray bytes(16, '\0');
    const ssize_t count = pread(descriptor, bytes.data(), static_cast<std::size_t>(bytes.size()), 0);
    return bytes.first(std::max<ssize_t>(count, 0));
}

void send(const QByteArray& bytes) {
    if (!readersocket::send(STDIN_FILENO, bytes, -1, readersocket::Clock::now() + std::chrono::seconds(10)))
        std::exit(3);
}

QString environment() {
    QStringList variables;
    for (char** variable = environ; *variable; ++variable)
        variables.append(QString::fromLocal8Bit(*variable));
    return variables.join(u'\n');
}

void answer(const readerprotocol::Request& request, const QByteArray& picture) {
    if (picture.startsWith("crash"))
        raise(SIGSEGV);
    if (picture.startsWith("hang"))
        pause();
    if (picture.startsWith("leave"))
        std::exit(0);
    if (picture.startsWith("flood"))
        return send(QByteArray(4, '\xFF') + QByteArray(1000, 'x'));
    if (picture.startsWith("babble"))
        return send(QByteArray("\x05\0\0\0abcde", 9));
    readerprotocol::Reply reply;
    reply.id = request.id + (picture.startsWith("lie") ? 1 : 0);
    reply.lacksEngine = picture.startsWith("blind");
    reply.pixelSize = QSize(7, 9);
    if (request.operation != readerprotocol::Operation::summarise)
        reply.text = picture.startsWith("environment") ? environment() : QString::fromUtf8(picture);
    send(*readerprotocol::encode(reply));
}

} // namespace

int main() {
    for (;;) {
        const auto message = readersocket::receive(STDIN_FILENO, readerprotocol::maxRequestBytes,
                                                   readersocket::Clock::now() + std::chrono::seconds(30));
        const auto request = message ? readerprotocol::decodeRequest(message->bytes) : std::nullopt;
        if (!request)
            return 0;
        answer(*request, beginningOf(message->attached.get()));
    }
}
