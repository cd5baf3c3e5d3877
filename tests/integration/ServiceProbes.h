#pragma once

#include "AccompanyingFoodsRequest.h"
#include "FilterOptionsRequest.h"
#include "FoodSearchRequest.h"
#include "NutrientsRequest.h"
#include "PortionImageRequest.h"
#include "PortionsRequest.h"
#include "RecordingServer.h"
#include "ServiceClient.h"

#include <functional>
#include <QTest>

/// Sends one request through its public function and describes the outcome in a short text; an empty
/// text if it never completes.
using Probe = std::function<QString(nutrika::ServiceClient &client)>;
Q_DECLARE_METATYPE(Probe)

namespace probe {

using namespace nutrika;
using namespace Qt::Literals::StringLiterals;

inline QString describe(const ServiceResult<FoodSearchPage> &result)
{
    if (const auto *failure = std::get_if<ServiceFailure>(&result))
        return failureMessage(*failure).title;
    const auto &page = std::get<FoodSearchPage>(result);
    return u"page of %1: %2 generic, %3 branded"_s.arg(page.count)
        .arg(page.generic.size())
        .arg(page.branded.size());
}
template <typename T> QString describe(const std::optional<T> &records)
{
    return records ? u"records"_s : u"none"_s;
}

/// A probe that sends through `request` with these arguments and waits a minute at most.
template <auto request, typename... Arguments> Probe make(Arguments... arguments)
{
    return [=](ServiceClient &client) {
        QObject context; // gone on return, so a late completion is dropped
        QString outcome;
        request(client, arguments..., &context, [&outcome](const auto &value) { outcome = describe(value); });
        return QTest::qWaitFor([&outcome] { return !outcome.isEmpty(); }, 60000) ? outcome : QString();
    };
}

/// Points `client` at `origin`, trusting the authority that signs the recording server's certificate.
inline void pointAt(ServiceClient &client, const QString &origin)
{
    client.setOrigin(QUrl(origin));
    client.setCaCertificates(QSslCertificate::fromPath(RecordingServer::tlsDirectory() + u"/ca.pem"_s));
}

} // namespace probe
