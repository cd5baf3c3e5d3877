#pragma once

#include "QueryEncoding.h"
#include "ServiceReply.h"

#include <functional>
#include <optional>
#include <QByteArray>
#include <QList>
#include <QObject>
#include <QPointer>
#include <QSslCertificate>
#include <QSslConfiguration>
#include <QString>
#include <QtQmlIntegration>
#include <QUrl>

class QNetworkAccessManager;
class QNetworkRequest;

namespace nutrika {

/// The client of the food-data service: the key, the origin, the extra certificate authorities and the
/// one network access manager every request goes through. The session owns the one of the process.
class ServiceClient : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("The session owns the service client")
    /// Sent as "Authorization: Api-Key <key>"; read afresh for each request. Never printed.
    Q_PROPERTY(QString apiKey READ apiKey WRITE setApiKey NOTIFY apiKeyChanged)
    /// Scheme, host and port of the service, such as "https://food.example.org".
    Q_PROPERTY(QUrl origin READ origin WRITE setOrigin NOTIFY originChanged)

public:
    using RawCompletion = std::function<void(std::optional<int> status, const QByteArray &body)>;
    using JsonCompletion = std::function<void(const ServiceReply &)>;

    /// Starts with the build's origin and no extra authority, unless NUTRIKA_SERVICE_ORIGIN or
    /// NUTRIKA_CA_CERT (a PEM file) say otherwise; both are read here only.
    explicit ServiceClient(QObject *parent = nullptr);
    ~ServiceClient() override;

    [[nodiscard]] const QString &apiKey() const { return m_apiKey; }
    void setApiKey(const QString &key);
    [[nodiscard]] QUrl origin() const;
    void setOrigin(const QUrl &origin);
    /// The origin as request URLs begin, without a trailing slash.
    [[nodiscard]] const QString &originText() const { return m_origin; }
    /// Authorities trusted besides the system's.
    [[nodiscard]] const QList<QSslCertificate> &caCertificates() const { return m_caCertificates; }
    void setCaCertificates(const QList<QSslCertificate> &certificates);

    /// TLS settings of every request: the system authorities plus the extra ones.
    [[nodiscard]] QSslConfiguration sslConfiguration() const;
    /// The one manager, created on the main thread at first use.
    [[nodiscard]] QNetworkAccessManager *networkAccessManager();

    /// GET origin + path + "?" + encoded query, with the Authorization header. `done` runs on the main
    /// thread unless `context` has been destroyed by then.
    void sendJsonRequest(const QString &path, const QueryParameters &query, QObject *context,
                         JsonCompletion done);
    /// GET origin + pathWithQuery with no header of the module's own. `done` gets the HTTP status, absent
    /// when no response arrived, and the body bytes.
    void sendRawRequest(const QString &pathWithQuery, QObject *context, RawCompletion done);

signals:
    void apiKeyChanged();
    void originChanged();

private:
    [[nodiscard]] QNetworkRequest requestFor(const QString &pathWithQuery) const;
    void send(QNetworkRequest request, QObject *context, RawCompletion done);

    QString m_apiKey;
    QString m_origin;
    QList<QSslCertificate> m_caCertificates;
    QList<QSslCertificate> m_trustedCertificates;
    QPointer<QNetworkAccessManager> m_manager;
};

} // namespace nutrika
