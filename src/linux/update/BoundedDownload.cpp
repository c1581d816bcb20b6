// SPDX-License-Identifier: GPL-3.0-or-later
#include "linux/update/BoundedDownload.h"

#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QTimer>

namespace vellumry {

namespace {

/// One download under way; belongs to its reply.
class Running : public QObject {
public:
    Running(const BoundedDownload& download, QNetworkReply* reply, OneShot<OrReason<qint64>> result)
        : QObject(reply)
        , m_download(download)
        , m_reply(reply)
        , m_result(std::move(result)) {
        // Never more in memory than is taken at once.
        m_reply->setReadBufferSize(qint64(1) << 20);
        connect(m_reply, &QNetworkReply::readyRead, this, &Running::read);
        connect(m_reply, &QNetworkReply::finished, this, &Running::finish);
        QTimer::singleShot(m_download.limit, this, [this] { fail(QStringLiteral("it takes too long")); });
    }

private:
    void fail(const QString& why) {
        if (!std::exchange(m_isOver, true)) {
            m_reply->disconnect(this);
            m_reply->abort();
            m_reply->deleteLater();
            m_result.deliver(std::unexpected(Reason{why}));
        }
    }
    [[nodiscard]] bool isAccepted() {
        const int status = m_reply->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
        if (status == 200)
            return true;
        fail(QStringLiteral("the server answers with %1").arg(status));
        return false;
    }
    void read() {
        if (m_isOver || !isAccepted())
            return;
        const QByteArray bytes = m_reply->readAll();
        m_count += bytes.size();
        if (m_count > m_download.mostBytes)
            fail(QStringLiteral("it is longer than it may be"));
        else if (!bytes.isEmpty() && !m_download.take(bytes))
            fail(QStringLiteral("it cannot be written"));
    }
    void finish() {
        if (m_isOver)
            return;
        if (m_reply->error() != QNetworkReply::NoError && m_reply->bytesAvailable() == 0) {
            fail(QStringLiteral("network error %1").arg(m_reply->error()));
            return;
        }
        read();
        if (m_isOver)
            return;
        if (m_download.isExact && m_count != m_download.mostBytes) {
            fail(QStringLiteral("it is shorter than it should be"));
            return;
        }
        m_isOver = true;
        m_reply->deleteLater();
        m_result.deliver(m_count);
    }

    BoundedDownload m_download;
    QNetworkReply* m_reply;
    OneShot<OrReason<qint64>> m_result;
    qint64 m_count = 0;
    bool m_isOver = false;
};

} // namespace

OneShot<OrReason<qint64>> BoundedDownload::start(QNetworkAccessManager& network) const {
    const OneShot<OrReason<qint64>> result;
    QNetworkRequest request(url);
    request.setAttribute(QNetworkRequest::RedirectPolicyAttribute, QNetworkRequest::ManualRedirectPolicy);
    request.setAttribute(QNetworkRequest::CookieLoadControlAttribute, QNetworkRequest::Manual);
    request.setAttribute(QNetworkRequest::CookieSaveControlAttribute, QNetworkRequest::Manual);
    request.setAttribute(QNetworkRequest::CacheLoadControlAttribute, QNetworkRequest::AlwaysNetwork);
    // Bytes that are packed would be counted when they have grown already.
    request.setRawHeader("Accept-Encoding", "identity");
    request.setHeader(QNetworkRequest::UserAgentHeader, QStringLiteral("Vellumry"));
    request.setTransferTimeout(static_cast<int>(silence.count()));
    new Running(*this, network.get(request), result);
    return result;
}

} // namespace vellumry
