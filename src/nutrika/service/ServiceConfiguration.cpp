#include "ServiceConfiguration.h"

#include "HttpLogging.h"

#include <QSslCertificate>

namespace nutrika {

QString serviceOrigin()
{
    QString origin = qEnvironmentVariable("NUTRIKA_SERVICE_ORIGIN");
    if (origin.isEmpty())
        origin = QString::fromUtf8(NUTRIKA_DEFAULT_SERVICE_ORIGIN);
    // The paths begin with a slash; an origin written with one must not add a third.
    while (origin.endsWith(u'/'))
        origin.chop(1);
    return origin;
}

QSslConfiguration serviceSslConfiguration()
{
    static QString loadedPath;
    static QList<QSslCertificate> authorities;

    QSslConfiguration configuration = QSslConfiguration::defaultConfiguration();
    const QString path = qEnvironmentVariable("NUTRIKA_CA_CERT");
    if (path.isEmpty())
        return configuration;
    if (path != loadedPath) {
        const QList<QSslCertificate> extra = QSslCertificate::fromPath(path, QSsl::Pem);
        if (extra.isEmpty())
            qCWarning(lcHttp) << "NUTRIKA_CA_CERT names" << path << "which holds no PEM certificate";
        // Setting any authority stops Qt from loading the system ones on demand, so list them too.
        authorities = QSslConfiguration::systemCaCertificates() + extra;
        loadedPath = path;
    }
    configuration.setCaCertificates(authorities);
    return configuration;
}

} // namespace nutrika
