#pragma once

#include <functional>
#include <QByteArray>
#include <QList>
#include <QSslCertificate>
#include <QSslKey>
#include <QTcpServer>

class QSslSocket;

/// An HTTPS server on 127.0.0.1, port 0, that records the head of every request it receives and
/// answers each with the same scripted reply, then closes the connection.
class RecordingServer : public QTcpServer
{
    Q_OBJECT

public:
    struct Reply
    {
        int status = 200;
        QByteArray body;
        QByteArray contentType = "application/json";
        /// Announced body length when larger than the body: the connection closes early.
        qint64 announcedLength = -1;
        /// Held back this long before it is sent.
        int delayMs = 0;
    };

    struct Request
    {
        /// For example "GET /path?query HTTP/1.1".
        QByteArray requestLine;
        /// Header lines exactly as received, without the line break.
        QList<QByteArray> headerLines;

        /// The value of the named header, or a null array when it was not sent.
        [[nodiscard]] QByteArray header(QByteArrayView name) const;
        /// The lower-cased header names, in the order received.
        [[nodiscard]] QList<QByteArray> headerNames() const;
    };

    /// Serves with a certificate from the test TLS directory: "server.pem" chains to "ca.pem",
    /// "stranger.pem" to nothing the client trusts.
    explicit RecordingServer(const QString &certificateFile = QStringLiteral("server.pem"));

    [[nodiscard]] QString origin() const;
    void setReply(const Reply &reply) { m_reply = reply; }
    /// Answers each request with what `responder` makes of it, in place of the one scripted reply.
    void setResponder(std::function<Reply(const Request &)> responder) { m_responder = std::move(responder); }
    [[nodiscard]] const QList<Request> &requests() const { return m_requests; }

    /// The directory holding the test certificates.
    [[nodiscard]] static QString tlsDirectory();

protected:
    void incomingConnection(qintptr descriptor) override;

private:
    void answer(QSslSocket *socket, const QByteArray &head);

    QSslCertificate m_certificate;
    QSslKey m_key;
    Reply m_reply;
    std::function<Reply(const Request &)> m_responder;
    QList<Request> m_requests;
};
