#include "FilterOptionsRequest.h"

#include "Diagnostics.h"
#include "ReplyFields.h"
#include "ServiceClient.h"

#include <QJsonArray>

using namespace Qt::Literals::StringLiterals;

namespace nutrika {

namespace {

std::optional<QStringList> labels(const QJsonValue &options)
{
    QStringList result;
    for (const QJsonValue option : options.toArray()) {
        std::optional<QString> label = option.isObject()
                                           ? lenient::string(option.toObject().value("label"_L1))
                                           : lenient::string(option);
        if (!label)
            return std::nullopt;
        result.append(std::move(*label));
    }
    return result;
}

} // namespace

QString filterOptionsPath()
{
    return u"/api/v1/healthcare//food/brands_and_categories"_s;
}

QueryParameters filterOptionsParameters(const QString &search)
{
    return {{u"limit"_s, u"100"_s}, {u"offset"_s, u"0"_s}, {u"search"_s, search}};
}

ServiceResult<FilterOptions> mapFilterOptionsReply(const ServiceReply &reply)
{
    if (!hasJsonBody(reply) || !reply.json.isObject())
        return failureOf(reply);
    const QJsonObject root = reply.json.object();
    std::optional<QStringList> brands = labels(root.value("brands"_L1));
    std::optional<QStringList> categories = labels(root.value("categories"_L1));
    if (!brands || !categories)
        return ServiceFailure::ServerError;
    return FilterOptions{std::move(*brands), std::move(*categories)};
}

void requestFilterOptions(ServiceClient &client, const QString &search, QObject *context,
                          std::function<void(const std::optional<FilterOptions> &)> done)
{
    client.sendJsonRequest(filterOptionsPath(), filterOptionsParameters(search), context,
                           [done = std::move(done)](const ServiceReply &reply) {
                               ServiceResult<FilterOptions> result = mapFilterOptionsReply(reply);
                               if (auto *options = std::get_if<FilterOptions>(&result)) {
                                   done(std::move(*options));
                                   return;
                               }
                               printDiagnostic(u"Error loading brands/categories");
                               done(std::nullopt);
                           });
}

} // namespace nutrika
