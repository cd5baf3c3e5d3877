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
inline QString describe(const std::optional<QImage> &image)
{
    return image ? u"image %1x%2"_s.arg(image->width()).arg(image->height()) : u"none"_s;
}
template <typename T> QString describe(const std::optional<T> &records)
{
    return records ? u"records"_s : u"none"_s;
}

/// Calls `request(client, arguments..., context, done)` and spins the event loop until `done` runs, at most
/// a minute; what `done` was given, or nothing.
template <typename Result, auto request, typename... Arguments>
std::optional<Result> await(ServiceClient &client, const Arguments &...arguments)
{
    QObject context;
    std::optional<Result> result;
    request(client, arguments..., &context, [&result](const auto &value) {
        if constexpr (std::is_same_v<Result, QString>)
            result = describe(value); // a probe's outcome
        else
            result = value;
    });
    return QTest::qWaitFor([&result] { return result.has_value(); }, 60000) ? result : std::nullopt;
}

/// A probe that sends through `request` with these arguments.
template <auto request, typename... Arguments> Probe make(Arguments... arguments)
{
    return [=](ServiceClient &client) {
        return await<QString, request>(client, arguments...).value_or(QString());
    };
}

/// Points `client` at `origin`, trusting the authority that signs the recording server's certificate.
inline void pointAt(ServiceClient &client, const QString &origin)
{
    client.setOrigin(QUrl(origin));
    client.setCaCertificates(QSslCertificate::fromPath(RecordingServer::tlsDirectory() + u"/ca.pem"_s));
}

} // namespace probe
