#include "ServiceClient.h"

#include <QEventLoop>
#include <QNetworkReply>
#include <QNetworkRequest>
#include <QRegularExpression>
#include <QSslSocket>
#include <QTimer>
#include <QUrl>

ServiceClient::ServiceClient(const FoodServiceProcess &service) : m_service(service) {}

ServiceReply ServiceClient::get(const QByteArray &target)
{
    return get(target, {{"Authorization", "Api-Key " + m_service.apiKey().toUtf8()}});
}

ServiceReply ServiceClient::get(const QByteArray &target, const Headers &headers)
{
    QNetworkRequest request(QUrl::fromEncoded(m_service.origin().toUtf8() + target));
    request.setSslConfiguration(m_service.sslConfiguration());
    for (const auto &[name, value] : headers)
        request.setRawHeader(name, value);
    QNetworkReply *reply = m_network.get(request);
    QEventLoop loop;
    QObject::connect(reply, &QNetworkReply::finished, &loop, &QEventLoop::quit);
    QTimer::singleShot(60000, &loop, &QEventLoop::quit);
    loop.exec();
    ServiceReply result;
    result.status = reply->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
    result.body = reply->readAll();
    result.contentType = reply->header(QNetworkRequest::ContentTypeHeader).toByteArray();
    if (result.status == 0)
        result.transportError = reply->errorString();
    reply->deleteLater();
    return result;
}

ServiceReply ServiceClient::sendRaw(const QByteArray &request)
{
    const QUrl origin(m_service.origin());
    QSslSocket socket;
    socket.setSslConfiguration(m_service.sslConfiguration());
    socket.connectToHostEncrypted(origin.host(), static_cast<quint16>(origin.port()));
    ServiceReply result;
    if (!socket.waitForEncrypted(60000)) {
        result.transportError = socket.errorString();
        return result;
    }
    socket.write(request);
    // Reads until the server closes or the whole reply is in.
    static const QRegularExpression contentLength(QStringLiteral("\r\nContent-Length: *(\\d+)"),
                                                  QRegularExpression::CaseInsensitiveOption);
    while (socket.waitForReadyRead(60000)) {
        result.body += socket.readAll();
        const auto headerEnd = result.body.indexOf("\r\n\r\n");
        const auto length = contentLength.match(QString::fromLatin1(result.body.left(headerEnd)));
        if (headerEnd >= 0 && length.hasMatch() &&
            result.body.size() >= headerEnd + 4 + length.captured(1).toInt())
            break;
    }
    // "HTTP/1.1 400 Bad Request" then headers and the body.
    const QList<QByteArray> statusLine = result.body.left(result.body.indexOf("\r\n")).split(' ');
    result.status = statusLine.size() > 1 ? statusLine.at(1).toInt() : 0;
    const auto bodyStart = result.body.indexOf("\r\n\r\n");
    result.body = bodyStart < 0 ? QByteArray() : result.body.mid(bodyStart + 4);
    return result;
}
