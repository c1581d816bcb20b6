// SPDX-License-Identifier: GPL-3.0-or-later
#include "linux/update/FeedServer.h"

#include <QTcpSocket>
#include <stdexcept>

namespace vellumry {

FeedServer::FeedServer() {
    if (!m_server.listen(QHostAddress::LocalHost))
        throw std::runtime_error("no port on the loopback");
    QObject::connect(&m_server, &QTcpServer::newConnection, &m_server,
                     [this] { connected(m_server.nextPendingConnection()); });
}

QUrl FeedServer::url(const QString& path) const {
    return QUrl(QStringLiteral("http://127.0.0.1:%1%2").arg(m_server.serverPort()).arg(path));
}

void FeedServer::serve(const QString& path, const QByteArray& body) {
    serveRaw(path, "HTTP/1.1 200 OK\r\nConnection: close\r\nContent-Length: " + QByteArray::number(body.size()) +
                       "\r\n\r\n" + body);
}

void FeedServer::serveRaw(const QString& path, const QByteArray& whole, const QByteArray& again) {
    m_answers.insert(path, {whole, again, false});
}

void FeedServer::hang(const QString& path) {
    m_answers.insert(path, {{}, {}, true});
}

void FeedServer::connected(QTcpSocket* socket) {
    QObject::connect(socket, &QTcpSocket::disconnected, socket, &QObject::deleteLater);
    QObject::connect(socket, &QTcpSocket::readyRead, socket, [this, socket] {
        const QByteArray head = socket->readAll();
        ++asked;
        const Answer answer = m_answers.value(QString::fromLatin1(head.split(' ').value(1)),
                                              {"HTTP/1.1 404 Not Found\r\nContent-Length: 0\r\n\r\n", {}, false});
        if (answer.isSilent)
            return;
        socket->write(answer.whole);
        if (answer.again.isEmpty()) {
            socket->disconnectFromHost();
            return;
        }
        const auto more = [socket, again = answer.again] { socket->write(again); };
        QObject::connect(socket, &QTcpSocket::bytesWritten, socket, more);
        more();
    });
}

} // namespace vellumry
