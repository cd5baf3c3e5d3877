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
    Q_PROPERTY(QString screenshotDir READ screenshotDir CONSTANT)

public:
    ServiceProbe() : m_service(std::make_unique<FoodServiceProcess>(QStringLiteral(NUTRIKA_FOOD_DB)))
    {
        nutrika::ServiceClient *client = nutrika::EnvironmentVariables::shared()->serviceClient();
        client->setOrigin(QUrl(m_service->origin()));
        client->setCaCertificates(QSslCertificate::fromPath(m_service->caPath()));
        client->setApiKey(m_service->apiKey());
    }

    [[nodiscard]] bool ready() const { return m_service && m_service->isReady(); }
    [[nodiscard]] QString screenshotDir() const { return qEnvironmentVariable("NUTRIKA_SCREENSHOT_DIR"); }

    /// Stops the service for good: later requests find nobody listening.
    Q_INVOKABLE void stop() { m_service.reset(); }

    /// An empty calculator with every flag down, as in a fresh process.
    Q_INVOKABLE void resetSession()
    {
        nutrika::EnvironmentVariables *env = nutrika::EnvironmentVariables::shared();
        env->setTrackedNutrientListItems({});
        env->setSearchActive(false);
        env->setPortionActive(-1);
        env->setAccompanimentsActive(false);
        env->setFoodItemForAccompaniments(std::nullopt);
        env->setEditRecipeActive(false);
    }

    /// The carbohydrates the service gives for `size` `unit` of a food.
    Q_INVOKABLE double carbohydrates(qint64 foodId, qint64 size, const QString &unit)
    {
        QUrl url(m_service->origin() +
                 QStringLiteral("/api/v1/healthcare//food/%1/get_nutrients").arg(foodId));
        url.setQuery(QUrlQuery{{QStringLiteral("amount_value"), QString::number(size)},
                               {QStringLiteral("amount_unit"), unit}});
        const QJsonObject reply = get(url).object();
        double carbs = -1;
        for (const QString &group : {QStringLiteral("macronutrients"), QStringLiteral("micronutrients")}) {
            for (const QJsonValue &n : reply.value(group).toArray()) {
                if (n[QStringLiteral("nutrient")][QStringLiteral("name")] == QStringLiteral("Carbohydrates"))
                    carbs = n[QStringLiteral("amount")][QStringLiteral("value")].toDouble();
            }
        }
        return carbs;
    }

private:
    QJsonDocument get(const QUrl &url)
    {
        QNetworkRequest request(url);
        request.setRawHeader("Authorization", "Api-Key " + m_service->apiKey().toUtf8());
        request.setSslConfiguration(m_service->sslConfiguration());
        QNetworkReply *reply = m_network.get(request);
        QEventLoop loop;
        connect(reply, &QNetworkReply::finished, &loop, &QEventLoop::quit);
        loop.exec();
        reply->deleteLater();
        return QJsonDocument::fromJson(reply->readAll());
    }

    std::unique_ptr<FoodServiceProcess> m_service;
    QNetworkAccessManager m_network;
};
