#pragma once

#include <QProcess>
#include <QSslConfiguration>
#include <QString>

// Runs `nutrika-food-service serve` on a free loopback port, for the demo host and the tests.
//
//   FoodServiceProcess service(QStringLiteral(NUTRIKA_FOOD_DB));
//   QVERIFY2(service.isReady(), qPrintable(service.errorString()));
//   request.setUrl(QUrl(service.origin() + "/api/v1/healthcare//food?search=banana"));
//   request.setRawHeader("Authorization", "Api-Key " + service.apiKey().toUtf8());
//   request.setSslConfiguration(service.sslConfiguration());
//
// The constructor returns once the service listens (or failed to start); the destructor stops it
// with SIGTERM. The service also gets SIGTERM when the thread that started it ends, so it never
// outlives its owner, even one killed with SIGKILL.
class FoodServiceProcess
{
public:
    explicit FoodServiceProcess(const QString &databasePath,
                                const QString &apiKey = QStringLiteral("test-api-key"),
                                const QString &program = serviceBinary());
    ~FoodServiceProcess();
    FoodServiceProcess(const FoodServiceProcess &) = delete;
    FoodServiceProcess &operator=(const FoodServiceProcess &) = delete;

    [[nodiscard]] bool isReady() const { return !m_origin.isEmpty(); }
    // Why the service is not ready.
    [[nodiscard]] QString errorString() const { return m_error; }

    // "https://127.0.0.1:<port>", without a trailing slash.
    [[nodiscard]] QString origin() const { return m_origin; }
    // The PEM file of the CA that signed the service's certificate.
    [[nodiscard]] QString caPath() const { return m_caPath; }
    [[nodiscard]] QString apiKey() const { return m_apiKey; }
    // TLS settings that trust the service's CA.
    [[nodiscard]] QSslConfiguration sslConfiguration() const;

    // Sends SIGTERM and waits; true when the service exited cleanly with status 0.
    bool stop();

    // The service program the build made.
    [[nodiscard]] static QString serviceBinary();
    // A key nobody can guess, for a service that lives as long as one run of a program.
    [[nodiscard]] static QString randomApiKey();

private:
    void start(const QString &program, const QString &databasePath);
    [[nodiscard]] bool readReadyLine();

    QProcess m_process;
    QString m_apiKey;
    QString m_origin;
    QString m_caPath;
    QString m_error;
};
