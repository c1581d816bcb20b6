// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QHash>
#include <QTcpServer>
#include <QUrl>

namespace vellumry {

/// A web server on this machine's loopback that answers each path with bytes as they stand, head and all.
class FeedServer {
public:
    FeedServer();

    [[nodiscard]] QUrl url(const QString& path) const;
    /// Answers with `body` and 200.
    void serve(const QString& path, const QByteArray& body);
    /// Answers with `whole`, and then closes the connection or sends `again` without end.
    void serveRaw(const QString& path, const QByteArray& whole, const QByteArray& again = QByteArray());
    /// Takes the question and never answers.
    void hang(const QString& path);

    int asked = 0;

private:
    struct Answer {
        QByteArray whole;
        QByteArray again;
        bool isSilent = false;
    };
    void connected(QTcpSocket* socket);

    QTcpServer m_server;
    QHash<QString, Answer> m_answers;
};

} // namespace vellumry
