#pragma once

#include <QProcess>
#include <QString>

/// The local food-data service, started on a free loopback port with a random API key for this run.
class FoodService
{
public:
    FoodService();
    ~FoodService();
    FoodService(const FoodService &) = delete;
    FoodService &operator=(const FoodService &) = delete;

    /// Starts the service and waits until it listens; false with errorString() set otherwise.
    bool start();
    [[nodiscard]] QString errorString() const { return m_error; }
    [[nodiscard]] QString origin() const { return m_origin; }
    [[nodiscard]] QString caPath() const { return m_caPath; }
    [[nodiscard]] QString apiKey() const { return m_apiKey; }

private:
    QProcess m_process;
    QString m_apiKey;
    QString m_origin;
    QString m_caPath;
    QString m_error;
};
