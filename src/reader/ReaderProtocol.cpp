// SPDX-License-Identifier: GPL-3.0-or-later
#include "reader/ReaderProtocol.h"

#include <QDataStream>
#include <QIODevice>
#include <QtEndian>

namespace vellumry::readerprotocol {

namespace {

enum Flag : quint8 { hasPixelSize = 1, hasThumbnail = 2, isMarkedAsScreenshot = 4, hasText = 8, isWithoutEngine = 16 };

void prepare(QDataStream& stream) {
    stream.setVersion(QDataStream::Qt_6_4);
    stream.setByteOrder(QDataStream::LittleEndian);
}

QByteArray withLength(const QByteArray& message) {
    QByteArray framed(lengthBytes, Qt::Uninitialized);
    qToLittleEndian(static_cast<quint32>(message.size()), framed.data());
    return framed + message;
}

} // namespace

QByteArray encode(const Request& request) {
    QByteArray message;
    QDataStream stream(&message, QIODevice::WriteOnly);
    prepare(stream);
    stream << request.id << static_cast<quint8>(request.operation) << request.pixels;
    return withLength(message);
}

std::optional<QByteArray> encode(const Reply& reply) {
    QByteArray message;
    QDataStream stream(&message, QIODevice::WriteOnly);
    prepare(stream);
    const quint8 flags = (reply.pixelSize ? hasPixelSize : 0) | (reply.thumbnail ? hasThumbnail : 0) |
                         (reply.isScreenshot ? isMarkedAsScreenshot : 0) | (reply.text ? hasText : 0) |
                         (reply.lacksEngine ? isWithoutEngine : 0);
    const QSize size = reply.pixelSize.value_or(QSize(0, 0));
    stream << reply.id << flags << static_cast<qint32>(size.width()) << static_cast<qint32>(size.height())
           << reply.thumbnail.value_or(QByteArray()) << reply.text.value_or(QString()).toUtf8();
    if (message.size() > static_cast<qsizetype>(maxReplyBytes))
        return std::nullopt;
    return withLength(message);
}

std::optional<Request> decodeRequest(const QByteArray& message) {
    QDataStream stream(message);
    prepare(stream);
    Request request;
    quint8 operation = 0;
    stream >> request.id >> operation >> request.pixels;
    if (stream.status() != QDataStream::Ok || !stream.atEnd())
        return std::nullopt;
    if (operation < static_cast<quint8>(Operation::summarise) || operation > static_cast<quint8>(Operation::preview))
        return std::nullopt;
    if (request.pixels < 1 || request.pixels > maxPixels)
        return std::nullopt;
    request.operation = static_cast<Operation>(operation);
    return request;
}

std::optional<Reply> decodeReply(const QByteArray& message) {
    QDataStream stream(message);
    prepare(stream);
    Reply reply;
    quint8 flags = 0;
    qint32 width = 0;
    qint32 height = 0;
    QByteArray thumbnail;
    QByteArray text;
    stream >> reply.id >> flags >> width >> height >> thumbnail >> text;
    if (stream.status() != QDataStream::Ok || !stream.atEnd())
        return std::nullopt;
    if (flags & hasPixelSize) {
        if (width < 1 || height < 1)
            return std::nullopt;
        reply.pixelSize = QSize(width, height);
    }
    if (flags & hasThumbnail)
        reply.thumbnail = thumbnail;
    if (flags & hasText)
        reply.text = QString::fromUtf8(text);
    reply.isScreenshot = flags & isMarkedAsScreenshot;
    reply.lacksEngine = flags & isWithoutEngine;
    return reply;
}

quint32 messageLength(const char* bytes) {
    return qFromLittleEndian<quint32>(bytes);
}

} // namespace vellumry::readerprotocol
