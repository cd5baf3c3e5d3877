#include "RequestFrame.h"

#include "ApiKey.h"
#include "HttpLogging.h"

#include <QCoreApplication>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QPointer>
#include <QThread>

using namespace Qt::Literals::StringLiterals;

namespace nutrika {

namespace {

using Completion = std::function<void(std::optional<int> status, const QByteArray &body)>;

QPointer<QNetworkAccessManager> sharedManager;

void deleteSharedManager()
{
    delete sharedManager.data();
}

bool isHeaderSafe(const QByteArray &value)
{
    return std::none_of(value.cbegin(), value.cend(), [](char c) { return c == '\r' || c == '\n' || c == '\0'; });
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

void send(QNetworkRequest request, QObject *context, Completion done)
{
    QNetworkAccessManager *manager = sharedNetworkAccessManager();
    QObject *receiver = context ? context : manager;
    const QString url = request.url().toDisplayString();

    if (const QString reason = refusal(request); !reason.isEmpty()) {
        qCWarning(lcHttp).noquote() << "not sending" << url << "because" << reason;
        QMetaObject::invokeMethod(receiver, [done = std::move(done)] { done(std::nullopt, {}); },
                                  Qt::QueuedConnection);
        return;
    }

    request.setSslConfiguration(serviceSslConfiguration());
    qCDebug(lcHttp).noquote() << "GET" << url;
    QNetworkReply *reply = manager->get(request);
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

QNetworkRequest requestFor(const QString &pathWithQuery)
{
    return QNetworkRequest(QUrl::fromEncoded((serviceOrigin() + pathWithQuery).toUtf8(), QUrl::StrictMode));
}

} // namespace

QNetworkAccessManager *sharedNetworkAccessManager()
{
    Q_ASSERT(!QCoreApplication::instance() || QThread::currentThread() == QCoreApplication::instance()->thread());
    if (!sharedManager) {
        sharedManager = new QNetworkAccessManager(QCoreApplication::instance());
        // Deleted while the application still exists, so that its cached TLS connections close cleanly.
        qAddPostRoutine(deleteSharedManager);
    }
    return sharedManager;
}

void sendJsonRequest(const QString &path, const QueryParameters &query, QObject *context,
                     std::function<void(const ServiceReply &)> done)
{
    QString pathWithQuery = path;
    if (!query.isEmpty())
        pathWithQuery += u'?' + QString::fromLatin1(encodeQuery(query));
    QNetworkRequest request = requestFor(pathWithQuery);
    request.setRawHeader("Authorization", "Api-Key " + API_KEY.toUtf8());
    send(std::move(request), context, [done = std::move(done)](std::optional<int> status, const QByteArray &body) {
        done(ServiceReply::classify(status, body));
    });
}

void sendRawRequest(const QString &pathWithQuery, QObject *context,
                    std::function<void(std::optional<int> status, const QByteArray &body)> done)
{
    send(requestFor(pathWithQuery), context, std::move(done));
}

} // namespace nutrika
