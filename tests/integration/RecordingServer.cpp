#include "RecordingServer.h"

#include <QFile>
#include <QSslSocket>
#include <QTimer>

namespace {

QByteArray readFile(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        qFatal("cannot read %s", qPrintable(path));
    return file.readAll();
}

} // namespace

QByteArray RecordingServer::Request::header(QByteArrayView name) const
{
    for (const QByteArray &line : headerLines) {
        const qsizetype colon = line.indexOf(':');
        if (colon > 0 && QByteArrayView(line).first(colon).compare(name, Qt::CaseInsensitive) == 0)
            return line.mid(colon + 1).trimmed();
    }
    return {};
}

QList<QByteArray> RecordingServer::Request::headerNames() const
{
    QList<QByteArray> names;
    for (const QByteArray &line : headerLines)
        names.append(line.left(line.indexOf(':')).toLower());
    return names;
}

RecordingServer::RecordingServer(const QString &certificateFile)
    : m_certificate(readFile(tlsDirectory() + u'/' + certificateFile)),
      m_key(readFile(tlsDirectory() + QStringLiteral("/server.key")), QSsl::Rsa)
{
    if (!listen(QHostAddress::LocalHost, 0))
        qFatal("cannot listen: %s", qPrintable(errorString()));
}

QString RecordingServer::origin() const
{
    return QStringLiteral("https://127.0.0.1:%1").arg(serverPort());
}

QString RecordingServer::tlsDirectory()
{
    return QStringLiteral(NUTRIKA_TEST_TLS_DIR);
}

void RecordingServer::incomingConnection(qintptr descriptor)
{
    auto *socket = new QSslSocket(this);
    if (!socket->setSocketDescriptor(descriptor)) {
        delete socket;
        return;
    }
    socket->setLocalCertificate(m_certificate);
    socket->setPrivateKey(m_key);
    connect(socket, &QSslSocket::disconnected, socket, &QObject::deleteLater);
    connect(socket, &QSslSocket::errorOccurred, socket, &QObject::deleteLater);
    connect(socket, &QSslSocket::readyRead, this, [this, socket, head = QByteArray()]() mutable {
        head += socket->readAll();
        if (head.contains("\r\n\r\n"))
            answer(socket, std::exchange(head, {}));
    });
    socket->startServerEncryption();
}

void RecordingServer::answer(QSslSocket *socket, const QByteArray &head)
{
    QList<QByteArray> lines = head.left(head.indexOf("\r\n\r\n")).split('\n');
    for (QByteArray &line : lines)
        line.chop(line.endsWith('\r') ? 1 : 0);
    m_requests.append({lines.takeFirst(), lines});

    const Reply reply = m_responder ? m_responder(m_requests.last()) : m_reply;
    const qint64 length = std::max<qint64>(reply.announcedLength, reply.body.size());
    const QByteArray response =
        "HTTP/1.1 " + QByteArray::number(reply.status) + " Scripted\r\nContent-Type: " + reply.contentType +
        "\r\nContent-Length: " + QByteArray::number(length) + "\r\nConnection: close\r\n\r\n" + reply.body;
    const auto send = [socket, response] {
        socket->write(response);
        socket->disconnectFromHost();
    };
    if (reply.delayMs > 0)
        QTimer::singleShot(reply.delayMs, socket, send);
    else
        send();
}
