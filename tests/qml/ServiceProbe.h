#pragma once

#include "EnvironmentVariables.h"
#include "FoodServiceProcess.h"

#include <memory>
#include <QObject>
#include <QtQmlIntegration>

/// Runs the local food-data service for the search screen tests and points the session's client at it.
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

private:
    std::unique_ptr<FoodServiceProcess> m_service;
};
