// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QSize>
#include <QString>
#include <optional>

/// What the program and its reader process say to each other over a stream socket, the reader's standard input. A
/// message is its length as four bytes (little-endian, not counting themselves) and that many bytes. A request's first
/// byte carries one file descriptor (SCM_RIGHTS): a sealed memory file with the picture. Requests are answered in their
/// order. Any thread.
namespace vellumry::readerprotocol {

/// What is asked for. The numbers go over the wire; further operations take further numbers.
/// `preview` is answered with a thumbnail alone, which is packed quickly.
enum class Operation : quint8 { summarise = 1, readFast = 2, readAccurately = 3, preview = 4 };

struct Request {
    quint64 id = 0;
    Operation operation = Operation::summarise;
    /// The longer side at most, 1 to `maxPixels`: of the thumbnail, or of the picture when its text is read.
    qint32 pixels = 0;

    bool operator==(const Request&) const = default;
};

struct Reply {
    quint64 id = 0;
    std::optional<QSize> pixelSize;      ///< as stored; as it was read, when text was asked for
    std::optional<QByteArray> thumbnail; ///< PNG
    bool isScreenshot = false;
    /// The text as it stands in the picture, a line feed behind each line. Absent when the picture could not be opened
    /// (then `pixelSize` is absent too), when reading failed, and when it was not asked for.
    std::optional<QString> text;
    /// Text was asked for and this computer has no engine that reads: the picture was not opened.
    bool lacksEngine = false;

    bool operator==(const Reply&) const = default;
};

constexpr qint32 maxPixels = 8192;
/// Neither side believes in a longer message.
constexpr quint32 maxRequestBytes = 64;
constexpr quint32 maxReplyBytes = 64 * 1024 * 1024;
/// A message, its length included. Nothing when it would be longer than the other side accepts.
[[nodiscard]] QByteArray encode(const Request& request);
[[nodiscard]] std::optional<QByteArray> encode(const Reply& reply);

/// Reads a message without its length; nothing for bytes that are not exactly one such message.
[[nodiscard]] std::optional<Request> decodeRequest(const QByteArray& message);
[[nodiscard]] std::optional<Reply> decodeReply(const QByteArray& message);

/// The length in the first four bytes, which `bytes` must have.
[[nodiscard]] quint32 messageLength(const char* bytes);
constexpr int lengthBytes = 4;

} // namespace vellumry::readerprotocol
