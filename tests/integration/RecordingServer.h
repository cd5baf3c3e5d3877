#pragma once

#include <QFile>
#include <QSslKey>
#include <QSslServer>
#include <QSslSocket>

/// An HTTPS server on 127.0.0.1, port 0, that records the head of every request it receives and
/// answers each with the scripted reply, then closes the connection.
class RecordingServer : public QSslServer
{
public:
    struct Reply
    {
        int status = 200;
        QByteArray body = "{}";
        qint64 announcedLength = -1; // when larger than the body, the connection closes early
    };

    struct Request
    {
        QByteArray requestLine;        // "GET /path?query HTTP/1.1"
        QList<QByteArray> headerLines; // as received, without the line break
    };

    /// Serves with a certificate from the test TLS directory: "server.pem" chains to "ca.pem",
    /// "stranger.pem" to nothing the client trusts.
    explicit RecordingServer(const QString &certificateFile = QStringLiteral("server.pem"))
    {
        QFile key(tlsDirectory() + QStringLiteral("/server.key"));
        key.open(QIODevice::ReadOnly);
        QSslConfiguration tls = QSslConfiguration::defaultConfiguration();
        tls.setLocalCertificate(QSslCertificate::fromPath(tlsDirectory() + u'/' + certificateFile).value(0));
        tls.setPrivateKey(QSslKey(&key, QSsl::Rsa));
        setSslConfiguration(tls);
        listen(QHostAddress::LocalHost, 0);
        connect(this, &QTcpServer::pendingConnectionAvailable, this, [this] {
            auto *socket = static_cast<QSslSocket *>(nextPendingConnection());
            connect(socket, &QSslSocket::disconnected, socket, &QObject::deleteLater);
            connect(socket, &QSslSocket::readyRead, this, [this, socket, head = QByteArray()]() mutable {
                head += socket->readAll();
                if (head.contains("\r\n\r\n"))
                    answer(socket, std::exchange(head, {}));
            });
        });
    }

    [[nodiscard]] QString origin() const { return QStringLiteral("https://127.0.0.1:%1").arg(serverPort()); }
    /// The reply to every request from now on.
    void setReply(const Reply &reply) { m_reply = reply; }
    [[nodiscard]] const QList<Request> &requests() const { return m_requests; }
    [[nodiscard]] static QString tlsDirectory() { return QStringLiteral(NUTRIKA_TEST_TLS_DIR); }

private:
    void answer(QSslSocket *socket, const QByteArray &head)
    {
        QList<QByteArray> lines = head.left(head.indexOf("\r\n\r\n")).split('\n');
        for (QByteArray &line : lines)
            line.chop(line.endsWith('\r') ? 1 : 0);
        m_requests.append({lines.takeFirst(), lines});
        const Reply &reply = m_reply;
        const QByteArray response =
            "HTTP/1.1 " + QByteArray::number(reply.status) +
            " Scripted\r\nContent-Type: application/json\r\nContent-Length: " +
            QByteArray::number(std::max<qint64>(reply.announcedLength, reply.body.size())) +
            "\r\nConnection: close\r\n\r\n" + reply.body;
        socket->write(response);
        socket->disconnectFromHost();
    }

    Reply m_reply;
    QList<Request> m_requests;
};
