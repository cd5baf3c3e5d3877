#include "ServiceClient.h"

#include <QEventLoop>
#include <QJsonArray>
#include <QNetworkReply>
#include <QSslSocket>
#include <QTimer>
#include <QUrl>

using namespace Qt::Literals::StringLiterals;

ServiceClient::ServiceClient(const FoodServiceProcess &service) : m_service(service) {}

ServiceReply ServiceClient::get(const QByteArray &target)
{
    QNetworkRequest request(QUrl::fromEncoded(m_service.origin().toUtf8() + target));
    request.setSslConfiguration(m_service.sslConfiguration());
    request.setRawHeader("Authorization", "Api-Key " + m_service.apiKey().toUtf8());
    QNetworkReply *reply = m_network.get(request);
    QEventLoop loop;
    QObject::connect(reply, &QNetworkReply::finished, &loop, &QEventLoop::quit);
    QTimer::singleShot(60000, &loop, &QEventLoop::quit);
    loop.exec();
    ServiceReply result{reply->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt(), reply->readAll(),
                        reply->header(QNetworkRequest::ContentTypeHeader).toByteArray()};
    reply->deleteLater();
    return result;
}

ServiceReply ServiceClient::sendRaw(const QByteArray &request)
{
    const QUrl origin(m_service.origin());
    QSslSocket socket;
    socket.setSslConfiguration(m_service.sslConfiguration());
    socket.connectToHostEncrypted(origin.host(), static_cast<quint16>(origin.port()));
    if (!socket.waitForEncrypted(60000))
        return {};
    socket.write(request);
    QByteArray received;
    while (socket.waitForReadyRead(60000))
        received += socket.readAll();
    // "HTTP/1.1 400 Bad Request", the headers, a blank line and the body.
    const auto bodyStart = received.indexOf("\r\n\r\n");
    return {received.left(received.indexOf("\r\n")).split(' ').value(1).toInt(),
            bodyStart < 0 ? QByteArray() : received.mid(bodyStart + 4),
            {}};
}

QString describePortion(const QJsonValue &portion)
{
    return u"[%2] %1: %3, %4 g%5%6"_s.arg(
        QString::number(portion[u"id"].toInteger()), QString::number(portion[u"order_num"].toInt()),
        portion[u"description"].toString(), QString::number(portion[u"size"].toDouble()),
        portion[u"is_default"].toBool() ? u", default"_s : QString(),
        portion[u"image_name"].toString().isEmpty() ? QString() : u", pictured"_s);
}

QStringList describeNutrients(const QJsonValue &nutrients)
{
    QStringList lines;
    for (const auto &nutrient : nutrients.toArray())
        lines << nutrient[u"nutrient"][u"name"].toString() + u' ' +
                     QString::number(nutrient[u"amount"][u"value"].toDouble()) + u' ' +
                     nutrient[u"amount"][u"units"].toString();
    return lines;
}
