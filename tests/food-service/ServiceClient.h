#pragma once

#include "FoodServiceProcess.h"

#include <QByteArray>
#include <QJsonDocument>
#include <QList>
#include <QNetworkAccessManager>
#include <QPair>

struct ServiceReply
{
    int status = 0;
    QByteArray body;
    QByteArray contentType;
    QString transportError;
    [[nodiscard]] QJsonDocument json() const { return QJsonDocument::fromJson(body); }
};

// Blocking GET requests to a FoodServiceProcess. Targets are sent byte for byte:
// the double slash and the percent escapes stay as written.
class ServiceClient
{
public:
    using Headers = QList<QPair<QByteArray, QByteArray>>;

    explicit ServiceClient(const FoodServiceProcess &service);

    // With the right "Authorization: Api-Key" header.
    ServiceReply get(const QByteArray &target);
    ServiceReply get(const QByteArray &target, const Headers &headers);
    // Sends `request` as written over a new TLS connection: for requests a
    // well-behaved client would never send. Only the status is read.
    ServiceReply sendRaw(const QByteArray &request);

private:
    const FoodServiceProcess &m_service;
    QNetworkAccessManager m_network;
};
