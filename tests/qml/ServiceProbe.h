#pragma once

#include "EnvironmentVariables.h"
#include "FoodServiceProcess.h"

#include <memory>
#include <QEventLoop>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QObject>
#include <QtQmlIntegration>
#include <QUrlQuery>

/// Runs the local food-data service for the screen tests, points the session's client at it, and
/// answers the tests' own questions straight from the service, past the module's code.
class ServiceProbe : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    Q_PROPERTY(bool ready READ ready CONSTANT)

public:
    ServiceProbe() : m_service(std::make_unique<FoodServiceProcess>(QStringLiteral(NUTRIKA_FOOD_DB)))
    {
        nutrika::ServiceClient *client = nutrika::EnvironmentVariables::shared()->serviceClient();
        client->setOrigin(QUrl(m_service->origin()));
        client->setCaCertificates(QSslCertificate::fromPath(m_service->caPath()));
        client->setApiKey(m_service->apiKey());
    }

    [[nodiscard]] bool ready() const { return m_service && m_service->isReady(); }

    /// Stops the service for good: later requests find nobody listening.
    Q_INVOKABLE void stop() { m_service.reset(); }

    /// The carbohydrates the service gives for `size` `unit` of a food.
    Q_INVOKABLE double carbohydrates(qint64 foodId, qint64 size, const QString &unit)
    {
        return nutrient(foodId, size, unit, QStringLiteral("Carbohydrates"));
    }

    /// The amount of the nutrient `name` the service gives for `size` `unit` of a food, or -1.
    Q_INVOKABLE double nutrient(qint64 foodId, qint64 size, const QString &unit, const QString &name)
    {
        QUrl url(m_service->origin() +
                 QStringLiteral("/api/v1/healthcare//food/%1/get_nutrients").arg(foodId));
        url.setQuery(QUrlQuery{{QStringLiteral("amount_value"), QString::number(size)},
                               {QStringLiteral("amount_unit"), unit}});
        QNetworkRequest request(url);
        request.setRawHeader("Authorization", "Api-Key " + m_service->apiKey().toUtf8());
        request.setSslConfiguration(m_service->sslConfiguration());
        QNetworkReply *reply = m_network.get(request);
        QEventLoop loop;
        connect(reply, &QNetworkReply::finished, &loop, &QEventLoop::quit);
        loop.exec();
        reply->deleteLater();
        const QJsonObject nutrients = QJsonDocument::fromJson(reply->readAll()).object();
        for (const QString &group : {QStringLiteral("macronutrients"), QStringLiteral("micronutrients")}) {
            for (const QJsonValue &n : nutrients.value(group).toArray()) {
                if (n[QStringLiteral("nutrient")][QStringLiteral("name")] == name)
                    return n[QStringLiteral("amount")][QStringLiteral("value")].toDouble();
            }
        }
        return -1;
    }

private:
    std::unique_ptr<FoodServiceProcess> m_service;
    QNetworkAccessManager m_network;
};
