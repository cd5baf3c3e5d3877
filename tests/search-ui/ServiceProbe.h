#pragma once

#include "ApiKey.h"
#include "FoodServiceProcess.h"

#include <QObject>
#include <memory>

/// Runs the local food-data service for the search screen tests and points the module at it.
class ServiceProbe : public QObject
{
    Q_OBJECT
    Q_PROPERTY(bool ready READ ready CONSTANT)
    Q_PROPERTY(QString screenshotDir READ screenshotDir CONSTANT)

public:
    ServiceProbe()
        : m_service(std::make_unique<FoodServiceProcess>(QStringLiteral(NUTRIKA_FOOD_DB)))
    {
        qputenv("NUTRIKA_SERVICE_ORIGIN", m_service->origin().toUtf8());
        qputenv("NUTRIKA_CA_CERT", m_service->caPath().toUtf8());
        nutrika::API_KEY = m_service->apiKey();
    }

    [[nodiscard]] bool ready() const { return m_service && m_service->isReady(); }
    [[nodiscard]] QString screenshotDir() const { return qEnvironmentVariable("NUTRIKA_SCREENSHOT_DIR"); }

    /// Stops the service for good: later requests find nobody listening.
    Q_INVOKABLE void stop() { m_service.reset(); }

private:
    std::unique_ptr<FoodServiceProcess> m_service;
};
