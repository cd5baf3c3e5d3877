#include "ServiceClient.h"

#include "HttpLogging.h"

#include <QCoreApplication>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QThread>

using namespace Qt::Literals::StringLiterals;

namespace nutrika {

namespace {

const QString managerName = u"nutrika-service-client"_s;

// Runs while the application still exists, so that the managers' cached TLS connections close cleanly.
void deleteManagers()
{
    if (const QCoreApplication *app = QCoreApplication::instance())
        qDeleteAll(app->findChildren<QNetworkAccessManager *>(managerName, Qt::FindDirectChildrenOnly));
}

// The paths begin with a slash; an origin written with one must not add a second.
QString withoutTrailingSlash(QString origin)
{
    while (origin.endsWith(u'/'))
        origin.chop(1);
    return origin;
}

bool isHeaderSafe(const QByteArray &value)
{
    return std::none_of(value.cbegin(), value.cend(),
                        [](char c) { return c == '\r' || c == '\n' || c == '\0'; });
}

// Why a request cannot go out; empty when it can.
QString refusal(const QNetworkRequest &request)
{
    const QUrl url = request.url();
    if (!url.isValid())
        return u"the URL is not valid"_s;
    if (url.scheme() != u"https" || url.host().isEmpty())
        return u"the service origin is not an https origin"_s;
    if (!isHeaderSafe(request.rawHeader("Authorization")))
        return u"the API key holds a line break or a NUL character"_s;
    return {};
}

} // namespace

ServiceClient::ServiceClient(QObject *parent)
    : QObject(parent), m_origin(withoutTrailingSlash(qEnvironmentVariable("NUTRIKA_SERVICE_ORIGIN")))
{
    if (m_origin.isEmpty())
        m_origin = QString::fromUtf8(NUTRIKA_DEFAULT_SERVICE_ORIGIN);
    if (const QString path = qEnvironmentVariable("NUTRIKA_CA_CERT"); !path.isEmpty()) {
        const QList<QSslCertificate> extra = QSslCertificate::fromPath(path, QSsl::Pem);
        if (extra.isEmpty())
            qCWarning(lcHttp) << "NUTRIKA_CA_CERT names" << path << "which holds no PEM certificate";
        setCaCertificates(extra);
    }
}

ServiceClient::~ServiceClient()
{
    delete m_manager.data();
}

void ServiceClient::setApiKey(const QString &key)
{
    if (key == m_apiKey)
        return;
    m_apiKey = key;
    emit apiKeyChanged();
}

QUrl ServiceClient::origin() const
{
    return QUrl::fromEncoded(m_origin.toUtf8());
}

void ServiceClient::setOrigin(const QUrl &origin)
{
    const QString text = withoutTrailingSlash(QString::fromUtf8(origin.toEncoded()));
    if (text == m_origin)
        return;
    m_origin = text;
    emit originChanged();
}

void ServiceClient::setCaCertificates(const QList<QSslCertificate> &certificates)
{
    m_caCertificates = certificates;
    // Setting any authority stops Qt from loading the system ones on demand, so list them too.
    m_trustedCertificates = certificates.isEmpty() ? QList<QSslCertificate>()
                                                   : QSslConfiguration::systemCaCertificates() + certificates;
}

QSslConfiguration ServiceClient::sslConfiguration() const
{
    QSslConfiguration configuration = QSslConfiguration::defaultConfiguration();
    if (!m_trustedCertificates.isEmpty())
        configuration.setCaCertificates(m_trustedCertificates);
    return configuration;
}

QNetworkAccessManager *ServiceClient::networkAccessManager()
{
    QCoreApplication *app = QCoreApplication::instance();
    Q_ASSERT(!app || QThread::currentThread() == app->thread());
    if (!m_manager) {
        m_manager = new QNetworkAccessManager(app);
        m_manager->setObjectName(managerName);
        if (app)
            qAddPostRoutine(deleteManagers);
    }
    return m_manager;
}

QNetworkRequest ServiceClient::requestFor(const QString &pathWithQuery) const
{
    return QNetworkRequest(QUrl::fromEncoded((m_origin + pathWithQuery).toUtf8(), QUrl::StrictMode));
}

void ServiceClient::send(QNetworkRequest request, QObject *context, RawCompletion done)
{
    QObject *receiver = context ? context : this;
    const QString url = request.url().toDisplayString();

    if (const QString reason = refusal(request); !reason.isEmpty()) {
        qCWarning(lcHttp).noquote() << "not sending" << url << "because" << reason;
        QMetaObject::invokeMethod(
            receiver, [done = std::move(done)] { done(std::nullopt, {}); }, Qt::QueuedConnection);
        return;
    }

    request.setSslConfiguration(sslConfiguration());
    qCDebug(lcHttp).noquote() << "GET" << url;
    QNetworkReply *reply = networkAccessManager()->get(request);
    QObject::connect(reply, &QNetworkReply::finished, reply, &QObject::deleteLater);
    QObject::connect(reply, &QNetworkReply::finished, receiver, [reply, url, done = std::move(done)] {
        const QVariant code = reply->attribute(QNetworkRequest::HttpStatusCodeAttribute);
        const QByteArray body = reply->readAll();
        if (!code.isValid()) {
            qCDebug(lcHttp).noquote() << "no response from" << url << ":" << reply->errorString();
            done(std::nullopt, body);
            return;
        }
        qCDebug(lcHttp).noquote() << code.toInt() << url << body.size() << "bytes";
        done(code.toInt(), body);
    });
}

void ServiceClient::sendJsonRequest(const QString &path, const QueryParameters &query, QObject *context,
                                    JsonCompletion done)
{
    QString pathWithQuery = path;
    if (!query.isEmpty())
        pathWithQuery += u'?' + QString::fromLatin1(encodeQuery(query));
    QNetworkRequest request = requestFor(pathWithQuery);
    request.setRawHeader("Authorization", "Api-Key " + m_apiKey.toUtf8());
    send(std::move(request), context,
         [done = std::move(done)](std::optional<int> status, const QByteArray &body) {
             done(ServiceReply::classify(status, body));
         });
}

void ServiceClient::sendRawRequest(const QString &pathWithQuery, QObject *context, RawCompletion done)
{
    send(requestFor(pathWithQuery), context, std::move(done));
}

} // namespace nutrika
