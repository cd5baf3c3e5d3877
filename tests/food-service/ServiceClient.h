#pragma once

#include "FoodServiceProcess.h"

#include <QByteArray>
#include <QJsonDocument>
#include <QNetworkAccessManager>
#include <QStringList>

struct ServiceReply
{
    int status = 0;
    QByteArray body;
    QByteArray contentType;
    [[nodiscard]] QJsonDocument json() const { return QJsonDocument::fromJson(body); }
};

// Blocking requests to a FoodServiceProcess. Targets are sent byte for byte: the double slash
// and the percent escapes stay as written.
class ServiceClient
{
public:
    explicit ServiceClient(const FoodServiceProcess &service);

    // A GET with the right "Authorization: Api-Key" header.
    ServiceReply get(const QByteArray &target);
    // Sends `request` as written over a new TLS connection, for requests a well-behaved client
    // would never send, and reads until the service closes it.
    ServiceReply sendRaw(const QByteArray &request);

private:
    const FoodServiceProcess &m_service;
    QNetworkAccessManager m_network;
};

// Replies as lines, to compare whole: "[1] 904001: 1 cup, mashed, 225 g, default, pictured" for a
// portion, "Carbohydrates 26.9512 grams" for each nutrient of a list.
QString describePortion(const QJsonValue &portion);
QStringList describeNutrients(const QJsonValue &nutrients);
